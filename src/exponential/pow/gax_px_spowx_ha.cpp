// daksPowx_32f_A24: x^y over an array, one y for all, single precision, high-accuracy grade.
#include "exponential/pow/pow_32f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::pow::Table32 _gaxsPowHATab = {
#include "exponential/pow/pow_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksPowx_32f_A24(const float* src, float exponent, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::pow::PowxKernel32>(
      src, dst, len, dakvm::pow::PowxKernel32::Context(_gaxsPowHATab, &exponent),
      _GAX_THISFUNC_NAME);
}
