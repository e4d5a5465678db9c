// _dTan, the tangent of one element, and its entries gaxdTan_SC and _gaxsTan_SC.
#include "trigonometric/scalar/evaluate.hpp"
#include "trigonometric/tan/tan_64f.hpp"

namespace dakvm::scalar {
namespace {
constexpr tan::Table _dTanTab = {
#include "trigonometric/tan/tan_64f.inc"
};
}  // namespace

Status _dTan(const double* x, double* tangent) {
  return evaluate<tan::Kernel>(_dTanTab, x, tangent);
}
Status _dTan(const float* x, float* tangent) { return evaluate<tan::Kernel>(_dTanTab, x, tangent); }

}  // namespace dakvm::scalar

DAKVM_SCALAR_ENTRY(DAKVM_EXPORT, double, gaxdTan_SC, gaxdTan_SC, "dTan", dakvm::scalar::_dTan)
DAKVM_SCALAR_ENTRY(extern "C", float, _gaxsTan_SC, gaxsTan_SC, "sTan", dakvm::scalar::_dTan)
