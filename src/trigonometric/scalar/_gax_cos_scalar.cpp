// _dCos, the cosine of one element, and its entries gaxdCos_SC and _gaxsCos_SC.
#include "trigonometric/scalar/evaluate.hpp"
#include "trigonometric/sincos/sincos_kernel.hpp"

namespace dakvm::scalar {
namespace {
constexpr sincos::CosTable _dCosTab = {
#include "trigonometric/sincos/cos_64f.inc"
};
}  // namespace

Status _dCos(const double* x, double* cosine) {
  return evaluate<sincos::CosKernel>(_dCosTab, x, cosine);
}
Status _dCos(const float* x, float* cosine) {
  return evaluate<sincos::CosKernel>(_dCosTab, x, cosine);
}

}  // namespace dakvm::scalar

DAKVM_SCALAR_ENTRY(DAKVM_EXPORT, double, gaxdCos_SC, gaxdCos_SC, "dCos", dakvm::scalar::_dCos)
DAKVM_SCALAR_ENTRY(extern "C", float, _gaxsCos_SC, gaxsCos_SC, "sCos", dakvm::scalar::_dCos)
