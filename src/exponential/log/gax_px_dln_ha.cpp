// daksLn_64f_A53: ln(x) over an array, double precision, high-accuracy grade.
#include "exponential/log/log_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::log::LnTable _gaxdLnHATab = {
#include "exponential/log/ln_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksLn_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::log::TableKernel<double, dakvm::log::LnTable>>(
      src, dst, len, _gaxdLnHATab, _GAX_THISFUNC_NAME);
}
