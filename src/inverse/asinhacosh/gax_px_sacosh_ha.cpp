// daksAcosh_32f_A24: arcosh(x) over an array, single precision, high-accuracy grade.
#include "inverse/asinhacosh/asinhacosh_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::asinhacosh::AcoshTable _gaxdAcoshHATab = {
#include "inverse/asinhacosh/acosh.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAcosh_32f_A24(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::asinhacosh::AcoshKernel<float>>(src, dst, len, _gaxdAcoshHATab,
                                                                  _GAX_THISFUNC_NAME);
}
