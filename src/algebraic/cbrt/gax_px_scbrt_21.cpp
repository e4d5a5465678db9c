// daksCbrt_32f_A21: cbrt(x) over an array, single precision, 21-bit grade.
#include "algebraic/cbrt/cbrt_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::cbrt::Table _gaxdCbrtHATab = {
#include "algebraic/cbrt/cbrt_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksCbrt_32f_A21(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::cbrt::Kernel<float>>(src, dst, len, _gaxdCbrtHATab,
                                                       _GAX_THISFUNC_NAME);
}
