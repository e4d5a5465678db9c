// x^y for one element, single precision; Pow and Powx share this file.
//
// Method     |x| = 2^E m, f = m R - 1 with a reciprocal R of the leading bits, |f| < 2^-7.9;
//                log2|x| = Hi + f chi + l,  l = Lo + g chi + (f + g) clo,
//            Hi + Lo = E - log2 R, chi + clo = 1/ln2, g = log(1 + f) - f a polynomial.
//            y log2|x| = N/128 + r with N = 128 M + j, 0 <= j < 128, |r| <= 2^-8;
//                x^y = sgn 2^M V,  V = Ehi + (w Ehi + Elo), w = 2^r - 1.
//            V is rounded to a multiple of 2^-60: results that are floats, or midpoints of two,
//            have an exact V, which this restores.
// Exactness  24 bits of m by 13 of R: f is a multiple of 2^-35 and has 28 bits. y Hi has 24 + 38
//            bits, y f chi 24 + 28 + 12, and N/128 is taken away from their sum without error.
// Error      Absolute in V < 2: y l 2^-64.5, sum r and w together 2^-64, V 2^-64, constants 2^-67:
//            below 2^-61 before V's rounding, which adds 2^-61; then one rounding at the store,
//            subnormal results included.
// Special    NaN, infinities, zeros, |x| = 1, subnormal x, x < 0 under a y that is no integer:
//            apply. Results far outside float: leave_the_chain.
// Source     P. T. P. Tang, ACM TOMS 16 (1990) 378-400. Tables: tools/gentables/pow.cpp.
#pragma once

#include "exponential/pow/special.hpp"

namespace dakvm::pow {

struct Table32 {
  double R[129], L[129][2];                // reciprocals; -log2 R as high and low part
  double pow2[128][2];                     // Ehi, Elo
  double chi, clo;                         // their sum is 1/ln2
  double c2, c3, c4, c5, c6, c7, c8, c9;   // g = c2 f^2 + ... + c9 f^9
  double f1, f1_tail, f2, f3, f4, f5, f6;  // 2^r - 1
  double shifter, grid;                    // 1.5 * 2^45; 12, whose sum with V ends at 2^-60
  double zero, one, minus_one, raise;      // raise is 2^64
};

template <class Context>
struct Element32 {
  double Hi, f, Z, scale;
  Ext l;
  float m, y;
  int32_t E;
  uint32_t row, sign;

  // |x| is normal here: what makes a subnormal x normal is 2^raised.
  DAKVM_INLINE void take_base(Bits<float> x, int32_t raised = 0) {
    const uint32_t magnitude = x.magnitude();
    E = (static_cast<int32_t>(magnitude - 0x3f348000) >> 23) - raised;
    row = ((magnitude & 0x7fffff) + 0x8000) >> 16;
    put_word(m, (magnitude & 0x7fffff) | 0x3f800000);
  }
  DAKVM_INLINE void take_exponent(const float* exponent, bool negative) {
    sign = negative ? 0x80000000 : 0;
    y = narrow<float>(Ext{*exponent});
  }
  DAKVM_INLINE void start(const Context&, const float* x, const float* exponent) {
    const auto bits = Bits<float>::read(x);
    take_base(bits);
    take_exponent(exponent,
                  bits.is_negative() && kind_of(Bits<float>::read(exponent)) == Integer::odd);
  }
  DAKVM_INLINE void start(const Context& context, const float* x) {
    const auto bits = Bits<float>::read(x);
    take_base(bits);
    take_exponent(&context.y, bits.is_negative() && context.kind == Integer::odd);
  }

  DAKVM_INLINE void logarithm(const Context& context) {
    const Table32& t = context.table;
    const auto& [L_high, L_low] = t.L[row];
    const Ext high = Ext(E) + L_high;
    const Ext F = Ext{m} * t.R[row] - t.one;
    const Ext F2 = F * F;
    const Ext series =
        (((t.c9 * F + t.c8) * F2 + (t.c7 * F + t.c6)) * F2 + (t.c5 * F + t.c4)) * F2 +
        (t.c3 * F + t.c2);
    const Ext g = F2 * series;
    const Ext rest = (L_low + (F + g) * t.clo) + g * t.chi;
    Hi = narrow<double>(high);
    f = narrow<double>(F);
    l = rest;
    Z = narrow<double>(t.shifter + (high + F * t.chi + rest) * y);
  }
  DAKVM_INLINE void split_index(const Context& context) {
    const auto bits = Bits<double>::read(&Z);
    auto M = static_cast<uint32_t>(static_cast<int32_t>(bits.low) >> 7);
    if (bits.high - 0x42c7ffff > 1 || M + 200 > 400) [[unlikely]]
      M = leave_the_chain(context, static_cast<int32_t>(bits.high) < 0x42c80000);
    row = low_word(Z) % 128;
    put_words(scale, sign | (M + 1023) << 20, 0);
  }
  DAKVM_INLINE Ext rebuild(const Context& context) const {
    const Table32& t = context.table;
    const Ext n = Ext{Z} - t.shifter;
    const Ext r = ((Ext{y} * Hi - n) + Ext{y} * f * t.chi) + l * y;
    const Ext r2 = r * r;
    const Ext w =
        (((t.f6 * r + t.f5) * r2 + (t.f4 * r + t.f3)) * r2 + (t.f2 * r + t.f1_tail)) * r + r * t.f1;
    const auto& [Ehi, Elo] = t.pow2[row];
    const Ext V = Ehi + (w * Ehi + Elo);
    return ((V + t.grid) - t.grid) * scale;
  }

  using Stages =
      frame::Pipeline<&Element32::logarithm, &Element32::split_index, &Element32::rebuild>;

 private:
  // |y log2|x|| is 200 or more, perhaps far more: 2^400 or 2^-400 stands for the result.
  [[gnu::cold, gnu::noinline]] uint32_t leave_the_chain(const Context& context, bool small) {
    y = 0;
    Z = context.table.shifter;
    return static_cast<uint32_t>(small ? -400 : 400);
  }
};

// The general path for any finite x but 0 and 1: first x, then y.
template <class Context>
Element32<Context> _gaxScalarPowfX(const Context& context, const float* x) {
  Element32<Context> element;
  const auto bits = Bits<float>::read(x);
  if (bits.exponent() == 0) {
    const float normal = round_to_float(Ext{*x} * context.table.raise);
    element.take_base(Bits<float>::read(&normal), 64);
  } else {
    element.take_base(bits);
  }
  return element;
}
template <class Context>
Ext _gaxScalarPowfY(const Context& context, Element32<Context> element, const float* y,
                    bool negative) {
  element.take_exponent(y, negative);
  return Element32<Context>::Stages::run(element, context);
}

template <class Context>
[[gnu::cold, gnu::noinline]] Status _gaxsPow_HA_scalar(const Context& context, const float* x,
                                                       const float* y, float* z) {
  return pow_scalar<float>(context.table, x, y, z, [&](bool negative) {
    return _gaxScalarPowfY(context, _gaxScalarPowfX(context, x), y, negative);
  });
}

struct PowKernel32 {
  using Element = Element32<Varying<Table32>>;
  using Stages = Element::Stages;

  DAKVM_INLINE static bool is_ordinary(const Varying<Table32>&, Bits<float> x, Bits<float> y) {
    return is_general(x) && y.magnitude() - 1 < 0x7f800000 - 1 &&
           (!x.is_negative() || kind_of(y) != Integer::no);
  }
  DAKVM_INLINE static Status apply(const Varying<Table32>& context, const float* x, const float* y,
                                   float* z) {
    return _gaxsPow_HA_scalar(context, x, y, z);
  }
};

struct PowxKernel32 {
  using Context = Fixed<float, Table32>;
  using Element = Element32<Context>;
  using Stages = Element::Stages;

  DAKVM_INLINE static bool is_ordinary(const Context& context, Bits<float> x) {
    return is_general(x) && Bits<float>::read(&context.y).magnitude() - 1 < 0x7f800000 - 1 &&
           (!x.is_negative() || context.kind != Integer::no);
  }
  DAKVM_INLINE static Status apply(const Context& context, const float* x, float* z) {
    return _gaxsPow_HA_scalar(context, x, &context.y, z);
  }
};

}  // namespace dakvm::pow
