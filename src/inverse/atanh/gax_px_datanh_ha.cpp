// daksAtanh_64f_A53: artanh(x) over an array, double precision, high-accuracy grade.
#include "inverse/atanh/atanh_64f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::atanh::Table _gaxdAtanhHATab = {
#include "inverse/atanh/atanh_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAtanh_64f_A53(const double* src, double* dst, int32_t len) {
  return dakvm::frame::map<dakvm::atanh::Kernel>(src, dst, len, _gaxdAtanhHATab,
                                                 _GAX_THISFUNC_NAME);
}
