// daksSqrt_64f_A53: sqrt(x) over an array, double precision, high-accuracy grade.
#include "algebraic/sqrt/sqrt_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sqrt::Table _gaxdSqrtHATab = {
#include "algebraic/sqrt/sqrt_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksSqrt_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sqrt::Kernel<double>>(src, dst, len, _gaxdSqrtHATab,
                                                        _GAX_THISFUNC_NAME);
}
