// atan(x) for one element, double precision.
//
// Method     With y = |x| and its breakpoint c (arc.hpp),
//                atan(y) = hi + t + (t s P(s) + lo),  t = u/(1 + y c),  u = y - c
//            and t in two doubles: 1/D of the denominator's first 26 bits, corrected by one step.
// Exactness  u and y c are exact, and so is what 1 + y c loses when it is rounded twice, to q and
//            to D: (y c - q) + ((q - D) + 1). The splits leave 26 bits, so D_hi r_hi and r_hi u_hi
//            are exact.
// Error      t is off by 2^-74 of itself, registers 2^-64: below 1/8 the polynomial decides, 0.5023
//            ulp.
// Special    NaN, infinities, |x| >= 2^54, |x| < 2^-53: apply.
// Source     T. J. Dekker, Numer. Math. 18 (1971) 224-242, for the split and the quotient.
//            Constants: tools/gentables/atan.cpp.
#pragma once

#include "inverse/atan/arc.hpp"
#include "x87/double_double.hpp"

namespace dakvm::atan {

struct Table {
  Arc arc;
  double one, half_pi_hi, half_pi_lo;
  double splitter;  // 2^27 + 1
};

// One number of [2^-53, 2^54) on its way.
struct Element {
  double y, c, sign;
  const Row* row;
  double u, q, D, D_hi, e, t_hi, T_lo, t_value, S, magnitude;
  Split u_split, D_split, r_split;

  DAKVM_INLINE void start(const Table& t, const double* x) {
    const auto bits = Bits<double>::read(x);
    put_words(y, bits.magnitude(), bits.low);
    put_words(sign, 0x3ff00000 | (bits.high & 0x80000000), 0);
    row = choose_breakpoint(t.arc, bits.magnitude(), c);
  }

  DAKVM_INLINE void reduce(const Table& t) {
    const Ext difference = Ext{y} - c;
    u = narrow<double>(difference);
    u_split.multiply(difference, t.splitter);
    q = narrow<double>(Ext{y} * c);
  }
  DAKVM_INLINE void form_denominator(const Table& t) {
    u_split.subtract(u);
    D = narrow<double>(t.one + Ext{q});
  }
  DAKVM_INLINE void split_denominator(const Table& t) { D_split.multiply(D, t.splitter); }
  DAKVM_INLINE void split_denominator_rest(const Table&) { D_split.subtract(D); }
  DAKVM_INLINE void invert(const Table& t) {
    const Ext high = D_split.high();
    D_hi = narrow<double>(high);
    r_split.multiply(t.one / high, t.splitter);
  }
  // Divided once more: division runs beside the other operations, an 80-bit field would not.
  DAKVM_INLINE void split_reciprocal(const Table& t) { r_split.subtract(t.one / Ext{D_hi}); }
  DAKVM_INLINE void correct_reciprocal(const Table& t) {
    const Ext r_hi = r_split.high();
    const Ext D_lo = ((Ext{y} * c - q) + ((Ext{q} - D) + t.one)) + (Ext{D} - D_hi);
    e = narrow<double>((t.one - D_hi * r_hi) - D_lo * r_hi);
  }
  DAKVM_INLINE void divide(const Table& t) {
    const Ext r_hi = r_split.high();
    const Ext r_lo = (Ext{e} + t.one) * e * r_hi;
    const Ext u_hi = u_split.high();
    const Ext u_lo = u - u_hi;
    t_hi = narrow<double>(r_hi * u_hi);
    T_lo = narrow<double>(r_lo * u_hi + (u_lo * r_lo + r_hi * u_lo));
  }
  DAKVM_INLINE void round_quotient(const Table&) { t_value = narrow<double>(Ext{T_lo} + t_hi); }
  DAKVM_INLINE void add_breakpoint(const Table&) { S = narrow<double>(Ext{row->hi} + t_value); }
  DAKVM_INLINE void add_rest(const Table& t) {
    settle(&t);
    const Ext s = Ext{t_value} * t_value;
    const Ext higher = s * polynomial(t.arc, s) * t_value;
    const Ext t_rest = T_lo + (Ext{t_hi} - t_value);
    const Ext S_rest = t_value + (Ext{row->hi} - S);
    magnitude = narrow<double>((S_rest + ((t_rest + higher) + row->lo)) + S);
  }
  DAKVM_INLINE Ext attach_sign(const Table&) const { return Ext{magnitude} * sign; }
};

struct Kernel64 {
  using Element = atan::Element;
  using Stages =
      frame::Pipeline<&Element::reduce, &Element::form_denominator, &Element::split_denominator,
                      &Element::split_denominator_rest, &Element::invert,
                      &Element::split_reciprocal, &Element::correct_reciprocal, &Element::divide,
                      &Element::round_quotient, &Element::add_breakpoint, &Element::add_rest,
                      &Element::attach_sign>;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<double> x) {
    constexpr uint32_t least = (1023 - 53) << 20;
    return x.magnitude() - least < beyond_breakpoints - least;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const double* src, double* dst) {
    const auto bits = Bits<double>::read(src);
    if (bits.is_nan()) {
      *dst = narrow<double>(load(src) + load(src));
      return Status::ok;
    }
    put_signed(*dst, round_to_double(magnitude_of(t, bits)), bits);
    return Status::ok;
  }

 private:
  // Small numbers are their own arc tangents, and raise what a rounded result raises.
  static Ext magnitude_of(const Table& t, Bits<double> x) {
    if (x.magnitude() >= beyond_breakpoints) return Ext{opaque(t.half_pi_hi)} + t.half_pi_lo;
    double y;
    put_words(y, x.magnitude(), x.low);
    const Ext wide = opaque(y);
    if (x.exponent() == 0) return wide + round_to_double(wide * wide);
    return round_to_double(wide + t.one) * wide;
  }
};

}  // namespace dakvm::atan
