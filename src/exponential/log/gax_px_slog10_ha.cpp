// daksLog10_32f_A24: log10(x) over an array, single precision, high-accuracy grade.
#include "exponential/log/log_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::log::Log10Table _gaxdLgHATab = {
#include "exponential/log/log10_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksLog10_32f_A24(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::log::TableKernel<float, dakvm::log::Log10Table>>(
      src, dst, len, _gaxdLgHATab, _GAX_THISFUNC_NAME);
}
