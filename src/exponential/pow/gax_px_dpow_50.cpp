// daksPow_64f_A50: x^y over two arrays, double precision, lower-accuracy grade.
#include "exponential/pow/pow_64f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::pow::Table _gaxdPowHATab = {
#include "exponential/pow/pow_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksPow_64f_A50(const double* src1, const double* src2, double* dst,
                                     int32_t len) {
  return dakvm::frame::map<dakvm::pow::PowKernel64>(
      src1, src2, dst, len, dakvm::pow::Varying<dakvm::pow::Table>{_gaxdPowHATab},
      _GAX_THISFUNC_NAME);
}
