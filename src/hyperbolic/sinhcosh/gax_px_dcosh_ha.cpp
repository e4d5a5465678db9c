// daksCosh_64f_A53: cosh(x) over an array, double precision, high-accuracy grade.
#include "hyperbolic/sinhcosh/sinhcosh_64f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sinhcosh::CoshHighTable _gaxdCoshHATab = {
#include "hyperbolic/sinhcosh/cosh_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksCosh_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sinhcosh::CoshHighKernel>(src, dst, len, _gaxdCoshHATab,
                                                            _GAX_THISFUNC_NAME);
}
