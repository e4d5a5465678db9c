// daksCos_32f_A21: cosine over an array, single precision, 21-bit grade.
#include "trigonometric/sincos/sincos_32f.hpp"

namespace {
// The name of the scalar entry that infinities belong to.
constexpr char _GAX_THISFUNC_NAME[] = "sCos_HA";
constexpr dakvm::sincos::CosTable32 _gaxsCosLATab = {
#include "trigonometric/sincos/cos_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksCos_32f_A21(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sincos::CosKernel32>(src, dst, len, _gaxsCosLATab,
                                                       _GAX_THISFUNC_NAME);
}
