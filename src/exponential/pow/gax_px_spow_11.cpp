// daksPow_32f_A11: x^y over two arrays, single precision, 11-bit grade.
#include "exponential/pow/pow_32f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::pow::Table32 _gaxsPowHATab = {
#include "exponential/pow/pow_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksPow_32f_A11(const float* src1, const float* src2, float* dst,
                                     int32_t len) {
  return dakvm::frame::map<dakvm::pow::PowKernel32>(
      src1, src2, dst, len, dakvm::pow::Varying<dakvm::pow::Table32>{_gaxsPowHATab},
      _GAX_THISFUNC_NAME);
}
