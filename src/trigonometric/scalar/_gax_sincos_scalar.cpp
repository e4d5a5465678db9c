// _dSinCos, sine and cosine of one element, and its entries gaxdSinCos_SC and _gaxsSinCos_SC.
#include "trigonometric/scalar/evaluate.hpp"
#include "trigonometric/sincos/sincos_kernel.hpp"

namespace dakvm::scalar {
namespace {
constexpr sincos::SinTable _dSinCosTab = {
#include "trigonometric/sincos/sin_64f.inc"
};
}  // namespace

Status _dSinCos(const double* x, double* sine, double* cosine) {
  return evaluate<sincos::SinCosKernel>(_dSinCosTab, x, sine, cosine);
}
Status _dSinCos(const float* x, float* sine, float* cosine) {
  return evaluate<sincos::SinCosKernel>(_dSinCosTab, x, sine, cosine);
}

}  // namespace dakvm::scalar

#define DAKVM_SCALAR_ENTRY_2(linkage, T, entry, form, name)                                      \
  linkage void entry(int32_t i, const T* src, T* sines, T* cosines, int32_t* status,             \
                     const char* who) {                                                          \
    using namespace dakvm::scalar;                                                               \
    report(_dSinCos(src + i, sines + i, cosines + i), i, src, sines, cosines, status, who);      \
  }                                                                                              \
  DAKVM_EXPORT void form##_A11(int32_t i, const T* src, T* sines, T* cosines, int32_t* status) { \
    entry(i, src, sines, cosines, status, name "_A11");                                          \
  }                                                                                              \
  DAKVM_EXPORT void form##_LA(int32_t i, const T* src, T* sines, T* cosines, int32_t* status) {  \
    entry(i, src, sines, cosines, status, name "_LA");                                           \
  }                                                                                              \
  DAKVM_EXPORT void form##_HA(int32_t i, const T* src, T* sines, T* cosines, int32_t* status) {  \
    entry(i, src, sines, cosines, status, name "_HA");                                           \
  }
DAKVM_SCALAR_ENTRY_2(DAKVM_EXPORT, double, gaxdSinCos_SC, gaxdSinCos_SC, "dSinCos")
DAKVM_SCALAR_ENTRY_2(extern "C", float, _gaxsSinCos_SC, gaxsSinCos_SC, "sSinCos")
