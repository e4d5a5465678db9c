// daksErfc_32f_A24: erfc(x) over an array, single precision, 24-bit grade.
#include "error/erfc/erfc_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::erfc::Table<float> _gaxdErfcHATab = {
#include "error/erfc/erfc_ha_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksErfc_32f_A24(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::erfc::Kernel<float>>(src, dst, len, _gaxdErfcHATab,
                                                       _GAX_THISFUNC_NAME);
}
