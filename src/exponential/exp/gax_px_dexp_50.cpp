// daksExp_64f_A50: e^x over an array, double precision, lower-accuracy grade.
#include "exponential/exp/exp_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::exp::LowTable _gaxdExpLATab = {
#include "exponential/exp/exp_50_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksExp_64f_A50(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::exp::LowKernel<double>>(src, dst, len, _gaxdExpLATab,
                                                          _GAX_THISFUNC_NAME);
}
