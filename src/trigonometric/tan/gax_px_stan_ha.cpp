// daksTan_32f_A24: tangent over an array, single precision, high-accuracy grade.
#include "trigonometric/tan/tan_32f.hpp"

namespace {
// The name of the scalar entry that infinities belong to.
constexpr char _GAX_THISFUNC_NAME[] = "sTan_HA";
constexpr dakvm::tan::Table32 _gaxsTanHATab = {
#include "trigonometric/tan/tan_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksTan_32f_A24(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::tan::Kernel32>(src, dst, len, _gaxsTanHATab, _GAX_THISFUNC_NAME);
}
