// gaxsatan_scalar: atan of a single float, left unrounded in st(0).
#include "inverse/atan/atan_32f.hpp"

namespace {
constexpr dakvm::atan::Table32 table = {
#include "inverse/atan/atan_ha_32f.inc"
};
}  // namespace

DAKVM_EXPORT long double gaxsatan_scalar(float x) { return dakvm::atan::arc_tangent(table, &x); }
