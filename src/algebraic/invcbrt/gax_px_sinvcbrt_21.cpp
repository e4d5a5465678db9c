// daksInvCbrt_32f_A21: 1/cbrt(x) over an array, single precision, 21-bit grade.
#include "algebraic/invcbrt/invcbrt_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::invcbrt::Table _gaxdInvSqrtHATab = {
#include "algebraic/invcbrt/invcbrt_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksInvCbrt_32f_A21(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::invcbrt::Kernel<float>>(src, dst, len, _gaxdInvSqrtHATab,
                                                          _GAX_THISFUNC_NAME);
}
