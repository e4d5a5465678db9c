// daksErf_32f_A24: erf(x) over an array, single precision, 24-bit grade.
#include "error/erf/erf_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::erf::Table _gaxdErfHATab = {
#include "error/erf/erf_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksErf_32f_A24(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::erf::Kernel<float>>(src, dst, len, _gaxdErfHATab,
                                                      _GAX_THISFUNC_NAME);
}
