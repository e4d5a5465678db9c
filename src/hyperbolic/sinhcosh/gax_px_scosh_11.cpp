// daksCosh_32f_A11: cosh(x) over an array, single precision, 11-bit grade.
#include "hyperbolic/sinhcosh/sinhcosh_32f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sinhcosh::SingleTable _gaxsCoshHATab = {
#include "hyperbolic/sinhcosh/sinhcosh_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksCosh_32f_A11(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sinhcosh::SingleKernel<false>>(src, dst, len, _gaxsCoshHATab,
                                                                 _GAX_THISFUNC_NAME);
}
