// daksAsinh_32f_A24: arsinh(x) over an array, single precision, high-accuracy grade.
#include "inverse/asinhacosh/asinhacosh_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::asinhacosh::AsinhTable _gaxdAsinhHATab = {
#include "inverse/asinhacosh/asinh.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAsinh_32f_A24(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::asinhacosh::AsinhKernel<float>>(src, dst, len, _gaxdAsinhHATab,
                                                                  _GAX_THISFUNC_NAME);
}
