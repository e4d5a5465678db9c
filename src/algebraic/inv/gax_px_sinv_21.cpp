// daksInv_32f_A21: 1 / x over an array, single precision, 21-bit grade.
#include "algebraic/inv/inv_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::inv::Table<float> _gaxsInvHATab = {.one = 1};
}  // namespace

DAKVM_EXPORT int32_t daksInv_32f_A21(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::inv::Kernel<float>>(src, dst, len, _gaxsInvHATab,
                                                      _GAX_THISFUNC_NAME);
}
