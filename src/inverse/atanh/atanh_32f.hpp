// artanh(x) for one element in single precision.
//
// Method     artanh(y) = ln(t)/2,  t = 2/(1 - y) - 1,  y = |x|
//            t = m 2^E with 1 <= m < 2; the row of the leading 8 fraction bits of m holds a cubic
//            in m for ln(m).
// Error      the first row's cubic is the expansion at 1, at the row's end 2^-26 too large,
//            relatively: 0.7345 ulp, at y = 0.00192. Other rows 2^-33. The cubics cancel to ln(m)
//            from terms near 3: 2^-45 of the result.
// Special    |x| < 2^-28, |x| >= 1, NaN: apply.
// Source     Table: tools/gentables/atanh.cpp.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::atanh {
using namespace x87;

struct Cubic {
  double a0, a1, a2, a3;
};

struct LnTable {
  Cubic rows[256];
  double ln2, minus_one, two, one, half;
};
static_assert(sizeof(LnTable) == 1029 * sizeof(double));

// ln of a positive finite double, which is not checked.
struct LnFinite {
  double t;  // then m, in its place
  int32_t E;

  DAKVM_INLINE void locate(const LnTable&) {
    const uint32_t high = Bits<double>::read(&t).high;
    put_high_word(t, (high & 0xfffff) | 0x3ff00000);
    E = static_cast<int32_t>(high >> 20) - 1023;
  }
  DAKVM_INLINE Ext _gaxsLn_finite(const LnTable& table) const {
    const Cubic& c = table.rows[Bits<double>::read(&t).high >> 12 & 0xff];
    const Ext m = t;
    return static_cast<Ext>(E) * table.ln2 + c.a0 + m * (c.a1 + m * (c.a2 + m * c.a3));
  }
};

// One number with 2^-28 <= |x| < 1 on its way.
struct SingleElement : LnFinite {
  float y, signed_half, ln_t;

  DAKVM_INLINE void start(const LnTable&, const float* x) {
    const auto bits = Bits<float>::read(x);
    put_magnitude(y, bits);
    put_signed_power(signed_half, bits, -1);
  }
  DAKVM_INLINE void divide(const LnTable& table) {
    t = narrow<double>(table.two / (table.one - Ext{y}) + table.minus_one);
  }
  DAKVM_INLINE void take_logarithm(const LnTable& table) {
    ln_t = narrow<float>(_gaxsLn_finite(table));
  }
  DAKVM_INLINE Ext halve(const LnTable&) const { return Ext{ln_t} * signed_half; }
};

struct SingleKernel {
  using Element = SingleElement;
  using Stages = frame::Pipeline<&Element::divide, &Element::locate, &Element::take_logarithm,
                                 &Element::halve>;

  static constexpr uint32_t tiny = 0x31800000, one = 0x3f800000;

  DAKVM_INLINE static bool is_ordinary(const LnTable&, Bits<float> x) {
    return x.magnitude() - tiny < one - tiny;
  }

  // Settled on bits alone: only notifications raise flags.
  [[gnu::cold, gnu::noinline]] static Status apply(const LnTable&, const float* src, float* dst) {
    const auto bits = Bits<float>::read(src);
    const uint32_t sign = bits.word & 0x80000000;
    if (bits.magnitude() < tiny || bits.is_nan()) {
      put_word(*dst, bits.word);
      return Status::ok;
    }
    if (bits.magnitude() == one) {
      put_word(*dst, sign | 0x7f800000);
      return Status::singularity;
    }
    put_word(*dst, sign | 0x7fffffff);
    return Status::domain;
  }
};

}  // namespace dakvm::atanh
