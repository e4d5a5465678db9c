// daksSqrt_32f_A24: sqrt(x) over an array, single precision, high-accuracy grade.
#include "algebraic/sqrt/sqrt_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sqrt::Table _gaxdSqrtHATab = {
#include "algebraic/sqrt/sqrt_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksSqrt_32f_A24(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sqrt::Kernel<float>>(src, dst, len, _gaxdSqrtHATab,
                                                       _GAX_THISFUNC_NAME);
}
