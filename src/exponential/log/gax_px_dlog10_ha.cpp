// daksLog10_64f_A53: log10(x) over an array, double precision, high-accuracy grade.
#include "exponential/log/log_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::log::Log10Table _gaxdLgHATab = {
#include "exponential/log/log10_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksLog10_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::log::TableKernel<double, dakvm::log::Log10Table>>(
      src, dst, len, _gaxdLgHATab, _GAX_THISFUNC_NAME);
}
