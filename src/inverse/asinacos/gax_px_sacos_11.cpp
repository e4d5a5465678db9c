// daksAcos_32f_A11: acos(x) over an array, single precision, 11-bit grade.
#include "inverse/asinacos/asinacos_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::inverse::AcosTable _gaxdACosHATab = {
#include "inverse/asinacos/acos_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAcos_32f_A11(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::inverse::AcosKernel<float>>(src, dst, len, _gaxdACosHATab,
                                                              _GAX_THISFUNC_NAME);
}
