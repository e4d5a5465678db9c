// daksDiv_32f_A11: a / b over an array, single precision, 11-bit grade.
#include "algebraic/div/div_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::div::Table<float> _gaxsDivHATab = {.zero = 0};
}  // namespace

DAKVM_EXPORT int32_t daksDiv_32f_A11(const float* src1, const float* src2, float* dst,
                                     int32_t len) {
  return dakvm::frame::map<dakvm::div::Kernel<float>>(src1, src2, dst, len, _gaxsDivHATab,
                                                      _GAX_THISFUNC_NAME);
}
