// daksCosh_64f_A50: cosh(x) over an array, double precision, lower-accuracy grade.
#include "hyperbolic/sinhcosh/sinhcosh_64f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sinhcosh::CoshLowTable _gaxdCoshLATab = {
#include "hyperbolic/sinhcosh/cosh_50_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksCosh_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sinhcosh::CoshLowKernel>(src, dst, len, _gaxdCoshLATab,
                                                           _GAX_THISFUNC_NAME);
}
