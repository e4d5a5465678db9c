// daksSinCos_32f_A21: sine and cosine over an array, single precision, 21-bit grade.
#include "trigonometric/sincos/sincos_32f.hpp"

namespace {
// The name of the scalar entry that infinities belong to.
constexpr char _GAX_THISFUNC_NAME[] = "sSinCos_HA";
constexpr dakvm::sincos::SinCosTable32 _gaxsSinCosLATab = {
#include "trigonometric/sincos/sincos_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksSinCos_32f_A21(const float* src, float* sines, float* cosines,
                                        int32_t len) {
  return dakvm::frame::map<dakvm::sincos::SinCosKernel32>(src, sines, cosines, len,
                                                          _gaxsSinCosLATab, _GAX_THISFUNC_NAME);
}
