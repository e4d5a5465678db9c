// daksInv_64f_A53: 1 / x over an array, double precision, high-accuracy grade.
#include "algebraic/inv/inv_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::inv::Table<double> _gaxdInvHATab = {.one = 1};
}  // namespace

DAKVM_EXPORT int32_t daksInv_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::inv::Kernel<double>>(src, dst, len, _gaxdInvHATab,
                                                       _GAX_THISFUNC_NAME);
}
