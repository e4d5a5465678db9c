// daksSinh_64f_A50: sinh(x) over an array, double precision, lower-accuracy grade.
#include "hyperbolic/sinhcosh/sinhcosh_64f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sinhcosh::SinhLowTable _gaxdSinhLATab = {
#include "hyperbolic/sinhcosh/sinh_50_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksSinh_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sinhcosh::SinhLowKernel>(src, dst, len, _gaxdSinhLATab,
                                                           _GAX_THISFUNC_NAME);
}
