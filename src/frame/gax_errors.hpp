// Notification of one exceptional element: the flag of its status, raised by an x87 operation.
#pragma once

#include <cstddef>
#include <cstdint>

#include "dakvmpx.h"

namespace dakvm {

// What is known of one exceptional element while it is being notified.
struct ErrorContext {
  int32_t code;
  int32_t index;
  unsigned char reserved[32];
  char name[64];
  int32_t name_length;
};
// A composed name of 64 characters has its terminator on the length's first byte, and the length is
// stored afterwards.
static_assert(offsetof(ErrorContext, reserved) == 8 && offsetof(ErrorContext, name) == 40 &&
              offsetof(ErrorContext, name_length) == 104 && sizeof(ErrorContext) == 108);

namespace frame {
inline void gax_error(int32_t code, int32_t index, const double* src1, const double* src2,
                      double* dst1, double* dst2, const char* name) {
  gaxdError(code, index, src1, src2, dst1, dst2, name);
}
inline void gax_error(int32_t code, int32_t index, const float* src1, const float* src2,
                      float* dst1, float* dst2, const char* name) {
  gaxsError(code, index, src1, src2, dst1, dst2, name);
}
}  // namespace frame
}  // namespace dakvm

extern "C" {
// Composes prefix, name and suffix, cut to 8, 64 and 8 characters, in `buffer`; returns the length.
uint32_t _gaxCreateFuncNameStr(const char* prefix, const char* name, const char* suffix,
                               char* buffer);
// Raises the IEEE flag that belongs to the context's code; of other codes it takes no notice.
void _gaxStdErrorHandlerExcept(const dakvm::ErrorContext* context);
}
