// daksPowx_64f_A53: x^y over an array, one y for all, double precision, high-accuracy grade.
#include "exponential/pow/pow_64f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::pow::Table _gaxdPowHATab = {
#include "exponential/pow/pow_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksPowx_64f_A53(const double* src, double exponent, double* dst,
                                      int32_t len) {
  return dakvm::frame::map<dakvm::pow::PowxKernel64>(
      src, dst, len, dakvm::pow::PowxKernel64::Context(_gaxdPowHATab, &exponent),
      _GAX_THISFUNC_NAME);
}
