// daksInvSqrt_64f_A50: 1/sqrt(x) over an array, double precision, lower-accuracy grade.
#include "algebraic/invsqrt/invsqrt_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::invsqrt::Table _gaxdInvSqrtHATab = {
#include "algebraic/invsqrt/invsqrt_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksInvSqrt_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::invsqrt::Kernel<double>>(src, dst, len, _gaxdInvSqrtHATab,
                                                           _GAX_THISFUNC_NAME);
}
