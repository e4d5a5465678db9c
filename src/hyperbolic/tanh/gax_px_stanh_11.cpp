// daksTanh_32f_A11: tanh(x) over an array, single precision, 11-bit grade.
#include "hyperbolic/tanh/tanh_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::tanh::Table _gaxdTanhHATab = {
#include "hyperbolic/tanh/tanh_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksTanh_32f_A11(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::tanh::Kernel<float>>(src, dst, len, _gaxdTanhHATab,
                                                       _GAX_THISFUNC_NAME);
}
