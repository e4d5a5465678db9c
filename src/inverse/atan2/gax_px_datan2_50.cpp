// daksAtan2_64f_A50: angles of points over two arrays, double precision, lower-accuracy grade.
#include "inverse/atan2/atan2_kernel.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::atan2::Table _gaxdAtanHATab = {
    .arc =
        {
#include "inverse/atan/arc.inc"
        },
#include "inverse/atan2/atan2_ha_64f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAtan2_64f_A50(const double* src1, const double* src2, double* dst,
                                       int32_t len) {
  return dakvm::frame::map<dakvm::atan2::Kernel<double>>(src1, src2, dst, len, _gaxdAtanHATab,
                                                         _GAX_THISFUNC_NAME);
}
