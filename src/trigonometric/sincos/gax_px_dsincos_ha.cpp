// daksSinCos_64f_A53: sin(x) and cos(x) over an array, double precision, high-accuracy grade.
#include "trigonometric/sincos/sincos_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sincos::SinTable _gaxdSinCosHATab = {
#include "trigonometric/sincos/sin_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksSinCos_64f_A53(const double* src, double* dst1, double* dst2,
                                        int32_t len) {
  return dakvm::frame::map<dakvm::sincos::SinCosKernel>(src, dst1, dst2, len, _gaxdSinCosHATab,
                                                        _GAX_THISFUNC_NAME);
}
