// daksAtanh_32f_A24: artanh(x) over an array, single precision, high-accuracy grade.
#include "inverse/atanh/atanh_32f.hpp"

namespace {
constexpr char _GAX_THISFUNC_NAME[] = "";
constexpr dakvm::atanh::LnTable sLnTab = {
#include "inverse/atanh/atanh_32f.inc"
};
}  // namespace

DAKVM_EXPORT int32_t daksAtanh_32f_A24(const float* src, float* dst, int32_t len) {
  return dakvm::frame::map<dakvm::atanh::SingleKernel>(src, dst, len, sLnTab, _GAX_THISFUNC_NAME);
}
