// daksSinh_32f_A11: sinh(x) over an array, single precision, 11-bit grade.
#include "hyperbolic/sinhcosh/sinhcosh_32f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sinhcosh::SingleTable _gaxsSinhHATab = {
#include "hyperbolic/sinhcosh/sinhcosh_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksSinh_32f_A11(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sinhcosh::SingleKernel<true>>(src, dst, len, _gaxsSinhHATab,
                                                                _GAX_THISFUNC_NAME);
}
