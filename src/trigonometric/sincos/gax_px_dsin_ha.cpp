// daksSin_64f_A53: sin(x) over an array, double precision, high-accuracy grade.
#include "trigonometric/sincos/sincos_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::sincos::SinTable _gaxdSinHATab = {
#include "trigonometric/sincos/sin_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksSin_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::sincos::SinKernel>(src, dst, len, _gaxdSinHATab,
                                                     _GAX_THISFUNC_NAME);
}
