// daksSinh_64f_A53: sinh(x) over an array, double precision, high-accuracy grade.
#include "hyperbolic/sinhcosh/sinhcosh_64f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sinhcosh::SinhHighTable _gaxdSinhHATab = {
#include "hyperbolic/sinhcosh/sinh_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksSinh_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sinhcosh::SinhHighKernel>(src, dst, len, _gaxdSinhHATab,
                                                            _GAX_THISFUNC_NAME);
}
