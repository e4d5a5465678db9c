// daksAsinh_64f_A53: arsinh(x) over an array, double precision, high-accuracy grade.
#include "inverse/asinhacosh/asinhacosh_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::asinhacosh::AsinhTable _gaxdAsinhHATab = {
#include "inverse/asinhacosh/asinh.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAsinh_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::asinhacosh::AsinhKernel<double>>(src, dst, len, _gaxdAsinhHATab,
                                                                   _GAX_THISFUNC_NAME);
}
