// daksLog10_64f_A50: log10(x) over an array, double precision, lower-accuracy grade.
#include "exponential/log/log_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::log::Log10SeriesTable _gaxdLgLATab = {
#include "exponential/log/log10_50_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksLog10_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::log::SeriesKernel<dakvm::log::Log10SeriesTable>>(
      src, dst, len, _gaxdLgLATab, _GAX_THISFUNC_NAME);
}
