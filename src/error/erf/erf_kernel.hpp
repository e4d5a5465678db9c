// erf(x) for one element; every grade and both types share this file.
//
// Method     y = |x|; the sign goes on at the end. In each of 22 intervals, a quarter of a binade
//            wide, from 1/8 to 5.92,
//                erf(y) = c0 + t (c1 + t c2) + t^3 P(t),  t = a y + b in [-1/2, 1/2],
//            with c0, c1, c2 in two parts and P of degree 11. Below 1/8 and from 5.92 on two more
//            rows make the same sum of other numbers: y (C + A y^2 + y^4 Q(y^2)) with C =
//            2/sqrt(pi) and A = -C/3 in two parts; 1 + 2^-200. So no ordinary argument takes
//            another path.
// Exactness  A float's 24 bits are the head of a value, its difference from the value the tail. So
//            that a y + b is exact, a is a power of two and b a multiple of 1/2; in the last row it
//            is off by 2^-61, where c1 is 2^-44. c2 has 26 bits: th c2 and th s are exact, s the
//            head of c1 + t c2; so is the error of c0 + th s.
// Error      The polynomials 2^-63.8 or less, in [4, 5] 2^-59.9; tails 2^-77; the rounding of 64
//            bits before the store. Largest seen 0.5084 ulp in [4, 5], 0.5003 ulp elsewhere.
// Special    Zeros, |x| < 2^-100, infinities, NaN: apply. Subnormal results round once.
// Source     Rows: tools/gentables/erf.cpp.
#pragma once

#include "frame/frame.hpp"
#include "x87/double_double.hpp"

namespace dakvm::erf {
using namespace x87;

struct Row {
  double a, b;
  double c0, c0_lo, c1, c1_lo, c2, c2_lo;
  double d[12];
  double d0_lo = 0;
};

struct Table {
  Row rows[22];
  double slope, slope_hi, slope_lo;  // 2/sqrt(pi), nearest and in two parts
  double cubic_hi, cubic_lo;         // a third of it, negative
  double series[5];                  // (erf(y) - slope y - cubic y^3)/y^5 in powers of y^2
  double raise, lower;               // 2^200, 2^-200
  double splitter;                   // 2^27 + 1
  double zero;
  double signs[2];
  double unsplit;           // 2^-1034: below it the register's bits suffice for a subnormal result
  double subnormal;         // arguments below it have subnormal results
  double small, saturated;  // where the rows begin and end

  Row near_zero = {
      1,
      0,
      0,
      0,
      slope_hi,
      slope_lo,
      0,
      0,
      {cubic_hi, 0, series[0], 0, series[1], 0, series[2], 0, series[3], 0, series[4], 0},
      cubic_lo};
  Row one = {0, 0, 1, lower, 0, 0, 0, 0, {}};
};

struct Element {
  double y, t;
  const Row* row;
  uint32_t negative;
  float t_head, s_head;  // heads of t and of c1 + t c2
  double sum, tail;      // c0 + t_head s_head, and what is left of c0 + t (c1 + t c2)

  template <class T>
  DAKVM_INLINE void start(const Table& t, const T* src) {
    const auto x = Bits<T>::read(src);
    const auto magnitude = widened_magnitude(x), saturated = Bits<double>::read(&t.saturated);
    negative = x.lead() >> 31;
    put_words(y, magnitude.high, magnitude.low);
    const int32_t place = static_cast<int32_t>(magnitude.high - Bits<double>::read(&t.small).high);
    row = &t.near_zero;
    if (place >= 0) row = &t.rows[place >> 18];
    if ((uint64_t{magnitude.high} << 32 | magnitude.low) >=
        (uint64_t{saturated.high} << 32 | saturated.low))
      row = &t.one;
  }

  DAKVM_INLINE void reduce(const Table&) {
    const Ext reduced = Ext{y} * row->a + row->b;
    t = narrow<double>(reduced);
    t_head = narrow<float>(reduced);
  }
  DAKVM_INLINE void sum_slope(const Table&) {
    s_head = narrow<float>(row->c1 + Ext{row->c2} * t_head);
  }
  DAKVM_INLINE void sum_head(const Table&) { sum = narrow<double>(row->c0 + Ext{t_head} * s_head); }

  DAKVM_INLINE void sum_tails(const Table&) {
    const Row& r = *row;
    const Ext th = t_head, tl = t - th;
    const Ext s_tail =
        ((r.c1 - Ext{s_head}) + r.c2 * th) + (r.c2 * tl + (r.c2_lo * Ext{t} + r.c1_lo));
    const Ext error = ((r.c0 - Ext{sum}) + th * s_head) + r.c0_lo;
    tail = narrow<double>(error + (tl * s_head + t * s_tail));
  }
  DAKVM_INLINE Ext rebuild(const Table& table) const {
    settle(&table);
    const auto& d = row->d;
    const Ext u = t;
    Ext P = d[11];
    for (int k = 10; k >= 0; --k) P = P * u + d[k];
    return (sum + (tail + u * u * u * (P + row->d0_lo))) * table.signs[negative];
  }
};

// A nonzero x below 2^-100: 2/sqrt(pi) x.
DAKVM_INLINE Ext linear(const Table& t, Ext x) {
  const Ext y = __builtin_fabsl(x);
  const Ext raised = x * t.raise;
  if (y < t.unsplit) return raised * t.slope * t.lower;
  const Ext head = head_of(raised, t.splitter), tail = raised - head;
  const Ext product = head * t.slope_hi;
  const Ext rest = head * t.slope_lo + tail * t.slope_lo + tail * t.slope_hi;
  if (y < t.subnormal) return scaled_to_subnormal(product, rest, t.splitter, t.lower);
  return (product + rest) * t.lower;
}

template <class T>
struct Kernel {
  using Element = erf::Element;
  using Stages = frame::Pipeline<&Element::reduce, &Element::sum_slope, &Element::sum_head,
                                 &Element::sum_tails, &Element::rebuild>;

  // From 2^-100 on, finite: the heads of smaller numbers would underflow.
  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<T> x) {
    constexpr uint32_t least = (Bits<T>::bias - 100) << Bits<T>::fraction_bits;
    constexpr uint32_t infinity = (2 * Bits<T>::bias + 1) << Bits<T>::fraction_bits;
    return x.magnitude() - least < infinity - least;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    if (bits.is_infinity()) {
      *dst = narrow<T>(t.signs[bits.lead() >> 31]);
      return Status::ok;
    }
    const Ext x = load(src);
    *dst = narrow<T>(bits.is_nan() ? x + x : bits.is_zero() ? x : linear(t, x));
    return Status::ok;
  }
};

}  // namespace dakvm::erf
