// daksAcosh_64f_A53: arcosh(x) over an array, double precision, high-accuracy grade.
#include "inverse/asinhacosh/asinhacosh_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::asinhacosh::AcoshTable _gaxdAcoshHATab = {
#include "inverse/asinhacosh/acosh.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAcosh_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::asinhacosh::AcoshKernel<double>>(src, dst, len, _gaxdAcoshHATab,
                                                                   _GAX_THISFUNC_NAME);
}
