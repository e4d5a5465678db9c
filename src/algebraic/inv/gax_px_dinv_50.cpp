// daksInv_64f_A50: 1 / x over an array, double precision, lower-accuracy grade.
#include "algebraic/inv/inv_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::inv::Table<double> _gaxdInvHATab = {.one = 1};
}  // namespace

DAKVM_EXPORT int32_t daksInv_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::inv::Kernel<double>>(src, dst, len, _gaxdInvHATab,
                                                       _GAX_THISFUNC_NAME);
}
