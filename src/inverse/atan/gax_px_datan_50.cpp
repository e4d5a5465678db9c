// daksAtan_64f_A50: atan(x) over an array, double precision, lower-accuracy grade.
#include "inverse/atan/atan_64f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::atan::Table _gaxdAtanHATab = {
    .arc =
        {
#include "inverse/atan/arc.inc"
        },
#include "inverse/atan/atan_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAtan_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::atan::Kernel64>(src, dst, len, _gaxdAtanHATab,
                                                  _GAX_THISFUNC_NAME);
}
