// daksInvCbrt_64f_A53: 1/cbrt(x) over an array, double precision, high-accuracy grade.
#include "algebraic/invcbrt/invcbrt_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::invcbrt::Table _gaxdInvSqrtHATab = {
#include "algebraic/invcbrt/invcbrt_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksInvCbrt_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::invcbrt::Kernel<double>>(src, dst, len, _gaxdInvSqrtHATab,
                                                           _GAX_THISFUNC_NAME);
}
