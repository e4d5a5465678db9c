// _dSin, the sine of one element, and its entries gaxdSin_SC and _gaxsSin_SC.
#include "trigonometric/scalar/evaluate.hpp"
#include "trigonometric/sincos/sincos_kernel.hpp"

namespace dakvm::scalar {
namespace {
constexpr sincos::SinTable _dSinTab = {
#include "trigonometric/sincos/sin_64f.inc"
};
}  // namespace

Status _dSin(const double* x, double* sine) {
  return evaluate<sincos::SinKernel>(_dSinTab, x, sine);
}
Status _dSin(const float* x, float* sine) { return evaluate<sincos::SinKernel>(_dSinTab, x, sine); }

}  // namespace dakvm::scalar

DAKVM_SCALAR_ENTRY(DAKVM_EXPORT, double, gaxdSin_SC, gaxdSin_SC, "dSin", dakvm::scalar::_dSin)
DAKVM_SCALAR_ENTRY(extern "C", float, _gaxsSin_SC, gaxsSin_SC, "sSin", dakvm::scalar::_dSin)
