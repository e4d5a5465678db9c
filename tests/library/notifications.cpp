#include "notifications.hpp"

#include "arrays.hpp"

namespace dakvm::test {

std::vector<Notification> notifications;
int32_t notified_length = 0;

namespace {

template <class T>
void record(int32_t code, int32_t index, const T* src1, const T* src2, T* dst1, T* dst2,
            const char* name) {
  Notification n{code, index, {src1, src2, dst1, dst2}, name, 0, false};
  if (notified_length > 0) {
    std::memcpy(&n.stored, dst1 + index, sizeof(T));
    if (index + 1 < notified_length) {
      Word<T> next, canary;
      std::memcpy(&next, dst1 + index + 1, sizeof next);
      std::memset(&canary, untouched, sizeof canary);
      n.next_is_stored = next != canary;
    }
  }
  notifications.push_back(n);
}

}  // namespace

extern "C" {
void __real_gaxdError(int32_t, int32_t, const double*, const double*, double*, double*,
                      const char*);
void __real_gaxsError(int32_t, int32_t, const float*, const float*, float*, float*, const char*);

void __wrap_gaxdError(int32_t code, int32_t index, const double* src1, const double* src2,
                      double* dst1, double* dst2, const char* name) {
  record(code, index, src1, src2, dst1, dst2, name);
  __real_gaxdError(code, index, src1, src2, dst1, dst2, name);
}
void __wrap_gaxsError(int32_t code, int32_t index, const float* src1, const float* src2,
                      float* dst1, float* dst2, const char* name) {
  record(code, index, src1, src2, dst1, dst2, name);
  __real_gaxsError(code, index, src1, src2, dst1, dst2, name);
}
}

}  // namespace dakvm::test
