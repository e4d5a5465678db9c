// daksLn_32f_A11: ln(x) over an array, single precision, 11-bit grade.
#include "exponential/log/log_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::log::LnTable _gaxdLnHATab = {
#include "exponential/log/ln_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksLn_32f_A11(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::log::TableKernel<float, dakvm::log::LnTable>>(
      src, dst, len, _gaxdLnHATab, _GAX_THISFUNC_NAME);
}
