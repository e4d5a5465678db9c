// daksLn_64f_A50: ln(x) over an array, double precision, lower-accuracy grade.
#include "exponential/log/log_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::log::LnSeriesTable _gaxdLnLATab = {
#include "exponential/log/ln_50_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksLn_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::log::SeriesKernel<dakvm::log::LnSeriesTable>>(
      src, dst, len, _gaxdLnLATab, _GAX_THISFUNC_NAME);
}
