// daksExp_32f_A11: e^x over an array, single precision, 11-bit grade.
#include "exponential/exp/exp_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::exp::HighTable _gaxdExpHATab = {
#include "exponential/exp/exp_ha_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksExp_32f_A11(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::exp::HighKernel<float>>(src, dst, len, _gaxdExpHATab,
                                                          _GAX_THISFUNC_NAME);
}
