// What the arc tangents of double accuracy share: angles at breakpoints, two in each binade, and a
// polynomial between them.
//
// Method     atan(q) = atan(c) + atan(t),  t = (q - c)/(1 + q c),  |t| <= 0.125
//            with c the middle of the half binade, [2^e, 1.5 2^e) or [1.5 2^e, 2^(e+1)), that holds
//            q. Below 1/8 c is zero: t = q, and the same formulas hold.
//            atan(t) = t + t s P(s),  s = t^2,  P of degree 6.
// Exactness  hi has 26 bits. c has 3, so that its products with doubles have at most 56 and are
//            exact.
// Error      polynomial 2^-61.8 of t at worst, at |t| = 0.125.
// Source     Table and polynomial: tools/gentables/atan.cpp.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::atan {
using namespace x87;

struct Row {
  double hi, lo;  // their sum is atan(c)
};

struct Arc {
  Row rows[114];  // for c = 1.25 2^-3, 1.75 2^-3, 1.25 2^-2, ..., 1.75 2^53
  double c1, c2, c3, c4, c5, c6, c7;
};
static_assert(sizeof(Arc) == (2 * 114 + 7) * sizeof(double));

constexpr uint32_t first_breakpoint = 0x3fc00000;    // 1/8: q below it have c = 0
constexpr uint32_t beyond_breakpoints = 0x43500000;  // 2^54: q from there on have the last c
constexpr Row origin{};

// The breakpoint of a q with this high word.
DAKVM_INLINE const Row* choose_breakpoint(const Arc& t, uint32_t q, double& c) {
  const bool near_zero = q < first_breakpoint;
  const uint32_t capped = q < beyond_breakpoints ? q : beyond_breakpoints - 1;
  put_words(c, near_zero ? 0 : (capped & 0xfff80000) | 0x40000, 0);
  return near_zero ? &origin : &t.rows[(capped - first_breakpoint) >> 19];
}

DAKVM_INLINE Ext polynomial(const Arc& t, Ext s) {
  return (((((t.c7 * s + t.c6) * s + t.c5) * s + t.c4) * s + t.c3) * s + t.c2) * s + t.c1;
}

}  // namespace dakvm::atan
