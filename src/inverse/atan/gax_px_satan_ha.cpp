// daksAtan_32f_A24: atan(x) over an array, single precision, high-accuracy grade.
#include "inverse/atan/atan_32f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::atan::Table32 _gaxsAtanHATab = {
#include "inverse/atan/atan_ha_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAtan_32f_A24(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::atan::Kernel32>(src, dst, len, _gaxsAtanHATab,
                                                  _GAX_THISFUNC_NAME);
}
