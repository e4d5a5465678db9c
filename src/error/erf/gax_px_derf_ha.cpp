// daksErf_64f_A53: erf(x) over an array, double precision, high-accuracy grade.
#include "error/erf/erf_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::erf::Table _gaxdErfHATab = {
#include "error/erf/erf_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksErf_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::erf::Kernel<double>>(src, dst, len, _gaxdErfHATab,
                                                       _GAX_THISFUNC_NAME);
}
