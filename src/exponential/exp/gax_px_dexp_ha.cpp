// daksExp_64f_A53: e^x over an array, double precision, high-accuracy grade.
#include "exponential/exp/exp_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::exp::HighTable _gaxdExpHATab = {
#include "exponential/exp/exp_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksExp_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::exp::HighKernel<double>>(src, dst, len, _gaxdExpHATab,
                                                           _GAX_THISFUNC_NAME);
}
