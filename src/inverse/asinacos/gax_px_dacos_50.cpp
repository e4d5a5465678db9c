// daksAcos_64f_A50: acos(x) over an array, double precision, lower-accuracy grade.
#include "inverse/asinacos/asinacos_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::inverse::AcosTable _gaxdACosHATab = {
#include "inverse/asinacos/acos_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAcos_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::inverse::AcosKernel<double>>(src, dst, len, _gaxdACosHATab,
                                                               _GAX_THISFUNC_NAME);
}
