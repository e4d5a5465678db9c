// daksInvSqrt_32f_A21: 1/sqrt(x) over an array, single precision, 21-bit grade.
#include "algebraic/invsqrt/invsqrt_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::invsqrt::Table _gaxdInvSqrtHATab = {
#include "algebraic/invsqrt/invsqrt_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksInvSqrt_32f_A21(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::invsqrt::Kernel<float>>(src, dst, len, _gaxdInvSqrtHATab,
                                                          _GAX_THISFUNC_NAME);
}
