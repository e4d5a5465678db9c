// daksAtan2_32f_A21: angles of points over two arrays, single precision, middle-accuracy grade.
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

DAKVM_EXPORT int32_t daksAtan2_32f_A21(const float* src1, const float* src2, float* dst,
                                       int32_t len) {
  return dakvm::frame::map<dakvm::atan2::Kernel<float>>(src1, src2, dst, len, _gaxdAtanHATab,
                                                        _GAX_THISFUNC_NAME);
}
