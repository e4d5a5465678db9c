// x^y for one element, double precision; Pow and Powx share this file.
//
// Method     |x| = 2^E m, three short reciprocals bring m to K: with Rp = R1 R2 R3,
//                m Rp = K + u,  K = 1.442694902420044 (1/ln2, 23 bits),  |u| < 2^-14.
//            log2|x| = Hi + Lo + v + q(v) with v = u + err, err what the product m Rp lost, Hi + Lo
//            the logarithms of the reciprocals, q the rest of log2(1 + v/K). Its sum is B + t2.
//            y (B + t2) = N/128 + r with N = 128 M + j, 0 <= j < 128, |r| < 2^-7.9;
//                x^y = sgn 2^M 2^(j/128) 2^r = sgn 2^M V,  V = Ehi + (w Ehi + Elo), w = 2^r - 1.
// Exactness  R1, R2 are multiples of 2^-15, R3 of 2^-22 and Rp < 2: Rp is a double. The high parts
//            are multiples of 2^-40: Hi is exact. m Rp is a multiple of 2^-63 near K: u is a
//            double. A split has two roundings; v - (c - d) has 27 bits. P = yh Bh has 52 bits.
// Error      log2|x| is off by 2^-68 of itself, which y log2|x| < 2^10 makes 2^-58 of the result;
//            the rounding of V comes on top: 0.5064 ulp. In 1.2e-5 < |x - 1| < 2.3e-5, where Hi is
//            0 or as small as v, the polynomial's error counts in full: 0.55 ulp.
// Special    NaN, infinities, zeros, |x| = 1, subnormal x, x < 0 under a y that is no integer:
//            apply. Results near or beyond the bounds of double: the end of the chain.
// Source     T. J. Dekker, Numer. Math. 18 (1971) 224-242, for the split and the products.
//            P. T. P. Tang, ACM TOMS 16 (1990) 378-400. Tables: tools/gentables/pow.cpp.
#pragma once

#include "exponential/pow/special.hpp"
#include "x87/double_double.hpp"

namespace dakvm::pow {

struct Table {
  double R1[33], L1[33][2];  // reciprocals, and their logarithms as high and low part
  double R2[33], L2[33][2];
  double R3[129], L3[129][2];
  double pow2[128][2];          // Ehi, Elo
  double e1, e2, e3, e4;        // q(v) = e1 v + ... + e4 v^4
  double f1, f2, f3, f4, f5;    // 2^r - 1 = f1 r + ... + f5 r^5
  double out_of_range[2];       // 2^1023, 2^-1022: their squares leave the range of double
  double zero, one, minus_one;  // `one` and `minus_one` are the two signs
  double shifter;               // 1.5 * 2^45
  double K, splitter;           // splitter is 2^27 + 1
  double raise, lower;          // 2^200, 2^-200
};
static_assert(sizeof(Table) == 860 * sizeof(double));

// Powx takes y apart once, with the first element that needs it: done earlier, it would raise
// inexact in a call where no element does.
struct FixedAndSplit : Fixed<double, Table> {
  using Fixed::Fixed;
  mutable Split y_split{0, 0};
  mutable bool is_split = false;

  DAKVM_INLINE void split_once() const {
    if (!is_split) [[unlikely]]
      split();
  }

 private:
  [[gnu::cold, gnu::noinline]] void split() const {
    is_split = true;
    // Every x takes a smaller or larger y out of the chain.
    if (Bits<double>::read(&y).exponent() - 952 > 1087 - 952) return;
    y_split.multiply(y, table.splitter);
    settle(&y_split);
    y_split.subtract(y);
  }
};

template <class Context>
struct Element {
  static constexpr bool one_exponent = std::is_same_v<Context, FixedAndSplit>;

  double m, y, p1, p2, Rp, Hi, u, T, B, t2a, t2b, V, scale;
  Split m_split, Rp_split, B_split, y_split;
  int32_t E, M, far;
  uint32_t i1, i2, i3, sign;

  // |x| is normal here: what makes a subnormal x normal is 2^raised.
  DAKVM_INLINE void start_at(Bits<double> x, const double* exponent, bool negative,
                             int32_t raised = 0) {
    const uint32_t high = x.magnitude();
    E = (static_cast<int32_t>(high - 0x3fe7c000) >> 20) - raised;
    i1 = ((high & 0xfc000) + 0x4000) >> 15;
    sign = negative ? 0x80000000 : 0;
    put_words(m, (high & 0xfffff) | 0x3ff00000, x.low);
    y = narrow<double>(Ext{*exponent});
  }
  DAKVM_INLINE void start(const Context&, const double* x, const double* exponent) {
    const auto bits = Bits<double>::read(x);
    start_at(bits, exponent,
             bits.is_negative() && kind_of(Bits<double>::read(exponent)) == Integer::odd);
  }
  DAKVM_INLINE void start(const Context& context, const double* x) {
    const auto bits = Bits<double>::read(x);
    context.split_once();
    start_at(bits, &context.y, bits.is_negative() && context.kind == Integer::odd);
  }

  DAKVM_INLINE void reduce_once(const Context& context) {
    const Table& t = context.table;
    p1 = narrow<double>(Ext{m} * t.R1[i1]);
    m_split.multiply(m, t.splitter);
  }
  DAKVM_INLINE void reduce_twice(const Context& context) {
    const Table& t = context.table;
    i2 = ((Bits<double>::read(&p1).high & 0xfc00) + 0x400) >> 11;
    p2 = narrow<double>(Ext{m} * t.R1[i1] * t.R2[i2]);
    m_split.subtract(m);
  }
  DAKVM_INLINE void reduce_thrice(const Context& context) {
    const Table& t = context.table;
    i3 = ((Bits<double>::read(&p2).high & 0xff0) + 0x10) >> 5;
    const Ext product = Ext{t.R1[i1]} * t.R2[i2] * t.R3[i3];
    Rp = narrow<double>(product);
    Rp_split.multiply(product, t.splitter);
    Hi = narrow<double>(Ext(E) + t.L1[i1][0] + t.L2[i2][0] + t.L3[i3][0]);
  }
  DAKVM_INLINE void take_remainder(const Context& context) {
    const Table& t = context.table;
    Rp_split.subtract(Rp);
    const Ext remainder = Ext{m} * Rp - t.K;
    u = narrow<double>(remainder);
    T = narrow<double>(Hi + remainder);
  }
  DAKVM_INLINE void logarithm(const Context& context) {
    const Table& t = context.table;
    const Ext mh = m_split.high(), ml = m - mh;
    const Ext Rph = Rp_split.high(), Rpl = Rp - Rph;
    const Ext err = ml * Rpl + ((Rph * ml + (mh * Rph - Ext{m} * Rp)) + mh * Rpl);
    const Ext Lo = Ext{t.L2[i2][1]} + t.L3[i3][1] + t.L1[i1][1];
    const Ext v = u + err;
    const Ext tail = ((Ext{Hi} - T + u) + err) + Lo;
    const Ext q = v * (((t.e4 * v + t.e3) * v + t.e2) * v + t.e1);
    const double A = round_to_double(T + q);
    t2a = narrow<double>(q + (Ext{T} - A));
    const double sum = round_to_double(A + tail);
    t2b = narrow<double>(tail + (Ext{A} - sum));
    B = narrow<double>(sum);
    far = 0;
    const uint32_t s = Bits<double>::read(&y).exponent() + Bits<double>::read(&T).exponent();
    if (s - 1985 >= 2057 - 1985) [[unlikely]]
      leave_the_chain(s);
  }
  // Certain to overflow, to underflow, or to round to 1: the rest of the chain is fed with harmless
  // numbers, and `far` sends the result where it belongs.
  [[gnu::cold, gnu::noinline]] void leave_the_chain(uint32_t s) {
    if (s >= 2057)
      far = Bits<double>::read(&y).is_negative() == Bits<double>::read(&T).is_negative() ? 4000
                                                                                         : -4000;
    put_words(y, 0x3ff00000, 0);
    put_words(B, 0, 0);
    put_words(t2a, 0x00100000, 0);  // V = 1 + 2^-1022: inexact, and 1 to nearest
    put_words(t2b, 0, 0);
  }
  DAKVM_INLINE void split_factors(const Context& context) {
    const Table& t = context.table;
    B_split.multiply(B, t.splitter);
    if constexpr (!one_exponent) y_split.multiply(y, t.splitter);
  }
  DAKVM_INLINE void split_rest(const Context&) {
    B_split.subtract(B);
    if constexpr (!one_exponent) y_split.subtract(y);
  }
  DAKVM_INLINE void power(const Context& context) {
    const auto [Ehi, rest] = mantissa(context);
    V = narrow<double>(Ehi + rest);
  }
  DAKVM_INLINE Ext finish(const Context& context) const {
    if (static_cast<uint32_t>(M) + 1021 <= 1021 + 1022) [[likely]]
      return Ext{V} * scale;
    return near_the_bounds(context);
  }

 private:
  DAKVM_INLINE const Split& split_of_y(const Context& context) const {
    if constexpr (one_exponent)
      return context.y_split;
    else
      return y_split;
  }

  // V in two parts.
  struct Parts {
    double Ehi;
    Ext rest;
  };
  DAKVM_INLINE Parts mantissa(const Context& context) {
    const Table& t = context.table;
    const Ext Bh = B_split.high(), Bl = B - Bh;
    const Ext yh = split_of_y(context).high(), yl = y - yh;
    const Ext P = yh * Bh;
    const double Z = round_to_double(t.shifter + P);
    const auto N = static_cast<int32_t>(low_word(Z));
    M = (N >> 7) + far;
    put_words(scale, sign | ((static_cast<uint32_t>(M) + 1023) & 0x7ff) << 20, 0);
    const Ext r =
        ((yl * Bh + (yh * Bl + yl * Bl)) + (Ext{t2a} + t2b) * y) + (P - (Ext{Z} - t.shifter));
    const Ext w = r * ((((t.f5 * r + t.f4) * r + t.f3) * r + t.f2) * r + t.f1);
    const auto& [Ehi, Elo] = t.pow2[static_cast<uint32_t>(N) % 128];
    return {Ehi, w * Ehi + Elo};
  }

  // The result is not certain to be a normal number.
  [[gnu::cold, gnu::noinline]] Ext near_the_bounds(const Context& context) const {
    const Table& t = context.table;
    const Ext sgn = sign != 0 ? t.minus_one : t.one;
    const int32_t Me = M + static_cast<int32_t>(Bits<double>::read(&V).exponent()) - 1023;
    const auto beyond = [&](int which) -> Ext {
      const double edge = opaque(t.out_of_range[which]);
      return round_to_double(Ext{edge} * edge);
    };
    if (Me >= 1024) return beyond(0) * sgn;
    if (Me < -1084) return beyond(1) * sgn;
    double power;
    if (Me >= -1022) {
      put_power_of_two(power, static_cast<uint32_t>(M - M / 2 + 1023));
      const Ext half = power;
      put_power_of_two(power, static_cast<uint32_t>(M / 2 + 1023));
      return V * half * power * sgn;
    }
    put_power_of_two(power, static_cast<uint32_t>(M + 1223));
    const Ext scaled_by = power, g = sgn * t.lower;
    if (Me < -1032) return g * (V * scaled_by) + beyond(1);
    Element again = *this;
    const auto [Ehi, rest] = again.mantissa(context);
    const double lo = round_to_double(rest + (Ext{Ehi} - V));
    Split V_split;
    V_split.multiply(V, t.splitter);
    x87::settle(&V_split);
    V_split.subtract(V);
    x87::settle(&V_split);
    const double Vh = round_to_double(V_split.high());
    const double low_part =
        round_to_double((Ext{lo} + round_to_double(Ext{V} - Vh)) * scaled_by * g);
    return Vh * scaled_by * g + low_part + beyond(1);
  }

 public:
  using Stages =
      frame::Pipeline<&Element::reduce_once, &Element::reduce_twice, &Element::reduce_thrice,
                      &Element::take_remainder, &Element::logarithm, &Element::split_factors,
                      &Element::split_rest, &Element::power, &Element::finish>;
};

// The general path for any finite x but 0 and 1.
template <class Context>
Ext general(const Context& context, const double* x, const double* y, bool negative) {
  const Table& t = context.table;
  if constexpr (Element<Context>::one_exponent) context.split_once();
  Element<Context> element;
  auto bits = Bits<double>::read(x);
  if (bits.exponent() == 0) {
    const double normal = round_to_double(Ext{*x} * t.raise);
    element.start_at(Bits<double>::read(&normal), y, negative, 200);
  } else {
    element.start_at(bits, y, negative);
  }
  return Element<Context>::Stages::run(element, context);
}

template <class Context>
[[gnu::cold, gnu::noinline]] Status _gaxdPow_HA_scalar(const Context& context, const double* x,
                                                       const double* y, double* z) {
  return pow_scalar<double>(context.table, x, y, z,
                            [&](bool negative) { return general(context, x, y, negative); });
}

struct PowKernel64 {
  using Element = pow::Element<Varying<Table>>;
  using Stages = Element::Stages;

  DAKVM_INLINE static bool is_ordinary(const Varying<Table>&, Bits<double> x, Bits<double> y) {
    return is_general(x) && y.magnitude() - 1 < 0x7ff00000 - 1 &&
           (!x.is_negative() || kind_of(y) != Integer::no);
  }
  DAKVM_INLINE static Status apply(const Varying<Table>& context, const double* x, const double* y,
                                   double* z) {
    return _gaxdPow_HA_scalar(context, x, y, z);
  }
};

struct PowxKernel64 {
  using Context = FixedAndSplit;
  using Element = pow::Element<Context>;
  using Stages = Element::Stages;

  DAKVM_INLINE static bool is_ordinary(const Context& context, Bits<double> x) {
    return is_general(x) && Bits<double>::read(&context.y).magnitude() - 1 < 0x7ff00000 - 1 &&
           (!x.is_negative() || context.kind != Integer::no);
  }
  DAKVM_INLINE static Status apply(const Context& context, const double* x, double* z) {
    return _gaxdPow_HA_scalar(context, x, &context.y, z);
  }
};

}  // namespace dakvm::pow
