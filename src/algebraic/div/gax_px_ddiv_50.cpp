// daksDiv_64f_A50: a / b over an array, double precision, lower-accuracy grade.
#include "algebraic/div/div_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::div::Table<double> _gaxdDivHATab = {.zero = 0};
}  // namespace

DAKVM_EXPORT int32_t daksDiv_64f_A50(const double* src1, const double* src2, double* dst,
                                     int32_t len) {
  return dakvm::frame::map<dakvm::div::Kernel<double>>(src1, src2, dst, len, _gaxdDivHATab,
                                                       _GAX_THISFUNC_NAME);
}
