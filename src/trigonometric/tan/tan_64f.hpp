// tan(x) for one element, double precision.
//
// Method     From 12800 on x is reduced by pi/2 first: x = q pi/2 + y, y = hi + lo; else q = 0,
//            y = x. With K = nearest(y 32/pi), y = K pi/32 + r, |r| <= 0.0491, and j = 16 q + K
//            modulo 32 the table has the expansion about x_j = j pi/32:
//                rows 0 to 8, 24 to 31   tan(x_j + r)        = T + (1 + T^2) r + c2 r^2 + ...
//                rows 9 to 23            tan(x_j + r) + 1/s  = T + slope r + c2 r^2 + ...
//            up to r^15, where s = x_j + r - pi/2 is y less K2 pi/32, K2 = K - (j - 16): there the
//            multiple of 16 nearest to K. The pole's rows add -1/s = -Rm + C: with s = s_t + rest
//            and R = 1/s_t in double, Rm has the leading 18 bits of R, and
//                C = (rest R + (s_t Rm - 1)) R.
//            The mask that makes Rm, and C's weight, are zero in other rows: one chain for all.
// Exactness  |K| < 2^17 and |K2|/16 < 2^13 + 1; the pieces A1, A2 have 35 bits, B1, B2 39: their
//            products are exact. s_t has 35 bits, s_t Rm 53. In the pole's rows T_hi is a multiple
//            of 2^-40, T_hi - Rm exact. S1 and S2 keep their errors.
// Error      T^2 as a double times r: 0.0225 ulp; the tail's roundings, 0.002 to 0.003 ulp; then
//            the sum's. Largest seen 0.5254 ulp.
// Special    NaN, infinities, |x| < 2^-252: apply.
// Source     T. J. Dekker, Numer. Math. 18 (1971) 224-242, for the sums in two parts.
//            Table: tools/gentables/tan.cpp.
#pragma once

#include "trigonometric/argument_64f.hpp"
#include "x87/double_double.hpp"

namespace dakvm::tan {
using namespace x87;

// Bits that a double keeps; no number itself.
struct Mask {
  uint32_t low, high;

  DAKVM_INLINE void apply(const double& from, double& to) const {
    const auto bits = Bits<double>::read(&from);
    put_words(to, bits.high & high, bits.low & low);
  }
};

struct Row {
  double c8, c9, c10, c2, c11, c3, c12, c4, c13, c5, c14, c6, c15, c7;  // of r^8, r^9, ...
  double T_hi, T_lo;
  double slope1, slope2;  // their sum is the coefficient of r; slope1 is 1, in the pole's rows 0
  double pole_weight;     // 1 in the pole's rows, else 0
  Mask pole_mask;
};
static_assert(sizeof(Row) == 20 * sizeof(double));

struct Table {
  double inv_step, shifter, pole_shifter;      // 32/pi, 1.5 * 2^52, 1.5 * 2^56
  double pole_step1, pole_step2, pole_step3;   // B1, B2, B3: their sum is pi/32
  double step1, step2, step3;                  // A1, A2, A3: likewise
  double step_rest;                            // B1 less pi/32
  Mask short_mask;                             // leaves 35 bits
  double one, zero, infinity, scale, unscale;  // the last two 2^55, 2^-55
  Row rows[32];
};
static_assert(sizeof(Table) == 656 * sizeof(double));

// y less n pi/32 in two parts, by two sums. The first three fields are exact.
struct Remainder {
  double n, difference, second;
  double first, hi, lo;

  DAKVM_INLINE void subtract_two(Ext y, Ext steps, Ext step1, Ext step2) {
    const Ext exact = y - steps * step1, product = steps * step2;
    n = narrow<double>(steps);
    difference = narrow<double>(exact);
    second = narrow<double>(product);
    first = narrow<double>(exact - product);
  }
  DAKVM_INLINE void subtract_third(Ext step3, Ext y_lo) {
    const Ext rest = ((Ext{difference} - first) - second) - n * step3 + y_lo;
    const Sum sum = fast_two_sum(first, rest);
    hi = narrow<double>(sum.head);
    lo = narrow<double>(sum.tail);
  }
};

constexpr uint32_t wide = 0x40c90000;  // 12800

struct Element {
  trig::Argument y;
  double shifted;  // its low word is K
  uint32_t j;
  int32_t pole_offset;  // K - K2
  Remainder r, s;
  double s_t, R, Rm;
  Parts P;
  double S2, L;

  DAKVM_INLINE void start(const Table&, const double* x) { y.take(x); }
  DAKVM_INLINE void round_to_integer(const Table& t) {
    shifted = narrow<double>(Ext{y.hi} * t.inv_step + t.shifter);
  }
  DAKVM_INLINE void subtract_two(const Table& t) {
    settle(&t);
    j = (16 * y.q + low_word(shifted)) % 32;
    pole_offset = static_cast<int32_t>(j) - 16;
    const Ext K = Ext{shifted} - t.shifter;
    r.subtract_two(y.hi, K, t.step1, t.step2);
    s.subtract_two(y.hi, K - Ext(pole_offset), t.pole_step1, t.pole_step2);
  }
  DAKVM_INLINE void subtract_third(const Table& t) {
    settle(&t);
    s.subtract_third(t.pole_step3, y.lo);
    r.subtract_third(t.step3, y.lo);
  }
  DAKVM_INLINE void shorten(const Table& t) { t.short_mask.apply(s.hi, s_t); }
  // The polynomial is too long a chain for one stage.
  DAKVM_INLINE void invert(const Table& t) {
    const Row& c = row(t);
    const Ext x = r.hi;
    R = narrow<double>(t.one / Ext{s_t});
    P.put((((c.c15 * x + c.c14) * x + c.c13) * x + c.c12) * x + c.c11);
  }
  DAKVM_INLINE void shorten_reciprocal(const Table& t) {
    const Row& c = row(t);
    const Ext x = r.hi;
    c.pole_mask.apply(R, Rm);
    P.put(((((P.whole() * x + c.c10) * x + c.c9) * x + c.c8) * x + c.c7) * x + c.c6);
  }
  DAKVM_INLINE void sum_tail(const Table& t) {
    settle(&t);
    const Row& c = row(t);
    const Ext x = r.hi;
    const Ext Q = computed(x * x * ((((P.whole() * x + c.c5) * x + c.c4) * x + c.c3) * x + c.c2));
    const Ext first = c.slope1 * x, second = c.slope2 * x;
    const Ext S1 = round_to_double(first + second);
    const Ext lost_in_S1 = computed(first - S1 + second);
    const Ext leading = Ext{c.T_hi} - Rm;
    const double sum = round_to_double(S1 + leading);
    S2 = sum;
    const Ext lost_in_S2 = computed(leading - sum + S1);
    const Ext E = (s.lo + (Ext{s.hi} - s_t)) * R;
    const Ext C = computed((E + (Ext{s_t} * Rm - t.one)) * (Ext{c.pole_weight} * R));
    L = narrow<double>(((Q + lost_in_S1 + lost_in_S2 + C) + Ext{c.slope2} * r.lo) + c.T_lo);
  }
  DAKVM_INLINE Ext finish(const Table& t) const {
    return S2 + Ext{round_to_double(Ext{r.lo} * row(t).slope1 + L)};
  }

 private:
  DAKVM_INLINE const Row& row(const Table& t) const { return t.rows[j]; }
};

struct Kernel {
  using Element = tan::Element;
  using Stages = frame::Pipeline<&trig::reduce_wide<Element, wide>, &Element::round_to_integer,
                                 &Element::subtract_two, &Element::subtract_third,
                                 &Element::shorten, &Element::invert, &Element::shorten_reciprocal,
                                 &Element::sum_tail, &Element::finish>;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<double> x) {
    return trig::is_ordinary(x);
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const double* src, double* dst) {
    return trig::settle_special_odd(t, src, dst);
  }
};

}  // namespace dakvm::tan
