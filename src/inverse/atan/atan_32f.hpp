// atan(x) for one element, single precision; every grade and gaxsatan_scalar share this file.
//
// Method     y = |x| lies in one of four intervals, each with a breakpoint c:
//                atan(y) = atan(c) + atan(t),  t = (y - c)/(1 + y c),  |t| <= 0.375
//            where c is 0, 9/16, 13/8 or infinite (t = -1/y), a bound belonging to the interval
//            below it. atan(t) = t + t s A(s) with s = t^2 and A of degree 3.
// Exactness  y has 24 bits, c at most 4: y c is exact.
// Error      polynomial 0.117 ulp of single precision; the only rounding is the store. Largest of
//            all 2^32 arguments: 0.6168 ulp.
// Special    NaN and infinities: special.
// Source     Constants and polynomial: tools/gentables/atan.cpp.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::atan {
using namespace x87;

// t = (weight y + shift)/(scale + slope y)
struct Interval {
  double weight, shift, scale, slope;
  double angle;  // atan(c)
};

struct Table32 {
  Interval intervals[4];
  double a1, a2, a3, a4;
  double m_or_p[2];  // -1, 1
};

// A NaN loses its sign.
[[gnu::cold, gnu::noinline]] inline Ext special(const Table32& table, Bits<float> x, Ext sign) {
  if (x.is_infinity()) return table.intervals[3].angle * sign;
  float y;
  put_word(y, x.magnitude());
  return load(&y) + load(&y);
}

// Not staged: the chain is short enough for the processor to overlap elements by itself.
DAKVM_INLINE Ext arc_tangent(const Table32& table, const float* x) {
  const auto bits = Bits<float>::read(x);
  const uint32_t y_word = bits.magnitude();
  const Ext sign = table.m_or_p[1 - (bits.word >> 31)];
  if (!bits.is_finite()) [[unlikely]]
    return special(table, bits, sign);
  const auto& interval =
      table.intervals[(y_word > 0x3ec00000) + (y_word > 0x3f800000) + (y_word > 0x402c0000)];
  const Ext y = __builtin_fabsl(*x);
  const Ext t = (interval.weight * y + interval.shift) / (interval.scale + interval.slope * y);
  const Ext s = t * t;
  const Ext r = t + (s * t) * (table.a1 + s * (table.a2 + s * (table.a3 + s * table.a4)));
  return (r + interval.angle) * sign;
}

struct Kernel32 {
  DAKVM_INLINE static Status apply(const Table32& t, const float* src, float* dst) {
    *dst = narrow<float>(arc_tangent(t, src));
    return Status::ok;
  }
};

}  // namespace dakvm::atan
