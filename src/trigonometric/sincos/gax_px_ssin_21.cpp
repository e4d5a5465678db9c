// daksSin_32f_A21: sine over an array, single precision, 21-bit grade.
#include "trigonometric/sincos/sincos_32f.hpp"

namespace {
// The name of the scalar entry that infinities belong to.
constexpr char _GAX_THISFUNC_NAME[] = "sSin_HA";
constexpr dakvm::sincos::SinTable32 _gaxsSinLATab = {
#include "trigonometric/sincos/sin_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksSin_32f_A21(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sincos::SinKernel32>(src, dst, len, _gaxsSinLATab,
                                                       _GAX_THISFUNC_NAME);
}
