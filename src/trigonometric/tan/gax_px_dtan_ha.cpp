// daksTan_64f_A53: tan(x) over an array, double precision, high-accuracy grade.
#include "trigonometric/tan/tan_64f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::tan::Table _gaxdTanHATab = {
#include "trigonometric/tan/tan_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksTan_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::tan::Kernel>(src, dst, len, _gaxdTanHATab, _GAX_THISFUNC_NAME);
}
