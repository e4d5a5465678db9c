// daksTanh_64f_A50: tanh(x) over an array, double precision, lower-accuracy grade.
#include "hyperbolic/tanh/tanh_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::tanh::Table _gaxdTanhHATab = {
#include "hyperbolic/tanh/tanh_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksTanh_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::tanh::Kernel<double>>(src, dst, len, _gaxdTanhHATab,
                                                        _GAX_THISFUNC_NAME);
}
