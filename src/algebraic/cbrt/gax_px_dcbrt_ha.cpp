// daksCbrt_64f_A53: cbrt(x) over an array, double precision, high-accuracy grade.
#include "algebraic/cbrt/cbrt_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::cbrt::Table _gaxdCbrtHATab = {
#include "algebraic/cbrt/cbrt_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksCbrt_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::cbrt::Kernel<double>>(src, dst, len, _gaxdCbrtHATab,
                                                        _GAX_THISFUNC_NAME);
}
