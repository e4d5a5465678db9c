// daksTan_32f_A11: tangent over an array, single precision, 11-bit grade.
#include "trigonometric/tan/tan_32f.hpp"

namespace {
// The name of the scalar entry that infinities belong to.
constexpr char _GAX_THISFUNC_NAME[] = "sTan_HA";
constexpr dakvm::tan::Table32 _gaxsTanLATab = {
#include "trigonometric/tan/tan_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksTan_32f_A11(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::tan::Kernel32>(src, dst, len, _gaxsTanLATab, _GAX_THISFUNC_NAME);
}
