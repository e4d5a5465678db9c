// daksCos_64f_A50: cos(x) over an array, double precision, lower-accuracy grade.
#include "trigonometric/sincos/sincos_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sincos::CosTable _gaxdCosHATab = {
#include "trigonometric/sincos/cos_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksCos_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sincos::CosKernel>(src, dst, len, _gaxdCosHATab,
                                                     _GAX_THISFUNC_NAME);
}
