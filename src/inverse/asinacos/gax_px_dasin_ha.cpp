// daksAsin_64f_A53: asin(x) over an array, double precision, high-accuracy grade.
#include "inverse/asinacos/asinacos_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::inverse::AsinTable _gaxdASinHATab = {
#include "inverse/asinacos/asin_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAsin_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::inverse::AsinKernel<double>>(src, dst, len, _gaxdASinHATab,
                                                               _GAX_THISFUNC_NAME);
}
