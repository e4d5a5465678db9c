// daksErfc_64f_A50: erfc(x) over an array, double precision, lower-accuracy grade.
#include "error/erfc/erfc_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::erfc::Table<double> _gaxdErfcHATab = {
#include "error/erfc/erfc_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksErfc_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::erfc::Kernel<double>>(src, dst, len, _gaxdErfcHATab,
                                                        _GAX_THISFUNC_NAME);
}
