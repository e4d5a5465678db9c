// erf(x) for one element; every grade and both types share this file.
//
// Method     y = |x|; the sign goes on at the end. In each of 22 intervals, a quarter of a binade
//            wide, from 1/8 to 5.92,
//                erf(y) = c0 + t (c1 + t c2) + t^3 P(t),  t = a y + b in [-1/2, 1/2],
//            with c0, c1, c2 in two parts and P of degree 11. Arguments from 5.92 on take a row
//            whose sum is 1 + 2^-200. From 2^-40 to 1/8
//                erf(y) = C y + A u + y^2 u Q(y^2),  u = y^3, Q of degree 4,
//            with C = 2/sqrt(pi) and A = -C/3 in two parts; below 2^-40 erf(x) = C x.
// Exactness  The heads of t, of s = c1 + t c2, of y and u have 26 bits, as c2 has, C and A 25: the
//            products of two of these are exact, and so is the error of a sum that they lead. a y +
//            b is exact, because a is a power of two and b a multiple of 1/2; in the last row it is
//            off by 2^-54, where c1 is 2^-44.
// Error      The polynomials 2^-63.8 or less, in [4, 5] 2^-59.9; tails 2^-80; the rounding of 64
//            bits before the store. Largest seen 0.5089 ulp in [4, 5], 0.5007 ulp elsewhere.
// Special    Zeros, |x| < 2^-40, infinities, NaN: apply. Subnormal results round once.
// Source     T. J. Dekker, Numer. Math. 18 (1971) 224-242, for the products in two parts. Rows:
//            tools/gentables/erf.cpp.
#pragma once

#include "frame/frame.hpp"
#include "x87/double_double.hpp"

namespace dakvm::erf {
using namespace x87;

struct Row {
  double a, b;
  double c0, c0_lo, c1, c1_lo, c2, c2_lo;
  double d[12];
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
};
static_assert(sizeof(Table) == 460 * sizeof(double));

// 1 + 2^-200: where erf rounds to 1, and is not 1.
inline constexpr Row one = {0, 0, 1, 0x1p-200, 0, 0, 0, 0, {}};

struct Argument {
  double y;
  uint32_t negative;

  DAKVM_INLINE void take(uint32_t lead, Bits<double> magnitude) {
    negative = lead >> 31;
    put_words(y, magnitude.high, magnitude.low);
  }
  DAKVM_INLINE double sign(const Table& t) const { return t.signs[negative]; }
};

// y >= 1/8
struct Medium : Argument {
  double t;
  double slope;      // c1 + t_head c2
  double sum, tail;  // c0 + t_head slope_head, and what is left of c0 + t (c1 + t c2)
  Split t_parts, slope_parts;
  const Row* row;

  template <class T>
  DAKVM_INLINE void start(const Table& t, const T* src) {
    const auto x = Bits<T>::read(src);
    const auto magnitude = widened_magnitude(x), saturated = Bits<double>::read(&t.saturated);
    take(x.lead(), magnitude);
    const bool is_saturated = (uint64_t{magnitude.high} << 32 | magnitude.low) >=
                              (uint64_t{saturated.high} << 32 | saturated.low);
    const uint32_t index = (magnitude.high - Bits<double>::read(&t.small).high) >> 18;
    row = is_saturated ? &one : &t.rows[index];
  }

  DAKVM_INLINE void reduce(const Table& table) {
    const Ext reduced = round_to_double(Ext{y} * row->a + row->b);
    t = narrow<double>(reduced);
    t_parts.multiply(reduced, table.splitter);
  }
  DAKVM_INLINE void split_t(const Table&) { t_parts.subtract(t); }
  DAKVM_INLINE void sum_slope(const Table& table) {
    const Ext rounded = round_to_double(row->c1 + row->c2 * t_parts.high());
    slope = narrow<double>(rounded);
    slope_parts.multiply(rounded, table.splitter);
  }
  DAKVM_INLINE void split_slope(const Table&) { slope_parts.subtract(slope); }
  DAKVM_INLINE void sum_head(const Table&) {
    sum = narrow<double>(row->c0 + t_parts.high() * slope_parts.high());
  }
  DAKVM_INLINE void sum_tails(const Table&) {
    const Row& r = *row;
    const Ext th = t_parts.high(), tl = t - th;
    const Ext rest =
        ((r.c1 - Ext{slope}) + r.c2 * th) + (r.c2 * tl + r.c2_lo * th + r.c2_lo * tl) + r.c1_lo;
    const Ext sh = slope_parts.high(), sl = (slope - sh) + rest;
    tail = narrow<double>(((r.c0 - Ext{sum}) + th * sh) + (th * sl + tl * sh + tl * sl) + r.c0_lo);
  }
  DAKVM_INLINE Ext rebuild(const Table& table) const {
    settle(&table);
    const auto& d = row->d;
    const Ext u = t;
    Ext P = d[11];
    for (int k = 10; k >= 0; --k) P = P * u + d[k];
    return (sum + (tail + u * u * u * P)) * sign(table);
  }
};

// 2^-40 <= y < 1/8
struct Small : Argument {
  double sum;  // C y + A u of the heads
  Split y_parts, cube_parts;

  template <class T>
  DAKVM_INLINE void start(const Table&, const T* src) {
    const auto x = Bits<T>::read(src);
    take(x.lead(), widened_magnitude(x));
  }

  DAKVM_INLINE Ext square() const { return Ext{y} * y; }
  DAKVM_INLINE Ext cube() const { return y * square(); }

  DAKVM_INLINE void multiply(const Table& t) {
    y_parts.multiply(y, t.splitter);
    cube_parts.multiply(cube(), t.splitter);
  }
  DAKVM_INLINE void split(const Table&) {
    y_parts.subtract(y);
    cube_parts.subtract(cube());
  }
  DAKVM_INLINE void sum_heads(const Table& t) {
    sum = narrow<double>(t.slope_hi * y_parts.high() + t.cubic_hi * cube_parts.high());
  }
  DAKVM_INLINE Ext rebuild(const Table& t) const {
    settle(&t);
    const Ext yh = y_parts.high(), yl = y - yh;
    const Ext uh = cube_parts.high(), s = square(), u = y * s, ul = u - uh;
    Ext rest = (t.slope_hi * yh - sum) + t.cubic_hi * uh;
    rest += t.cubic_lo * ul + t.cubic_hi * ul + t.cubic_lo * uh;
    rest += t.slope_lo * yh + t.slope_hi * yl + t.slope_lo * yl;
    const auto& q = t.series;
    rest += s * u * (q[0] + s * (q[1] + s * (q[2] + s * (q[3] + s * q[4]))));
    return (sum + rest) * sign(t);
  }
};

// 2/sqrt(pi) x for a nonzero x below 2^-40, in two parts and times 2^200.
struct Linear {
  Ext lead, tail;

  DAKVM_INLINE Linear(const Table& t, Ext raised) {
    const Ext h = head_of(raised, t.splitter), l = raised - h;
    lead = h * t.slope_hi;
    tail = h * t.slope_lo + l * t.slope_lo + l * t.slope_hi;
  }
};

DAKVM_INLINE Ext linear(const Table& t, Ext x) {
  const Linear product(t, x * t.raise);
  return (product.lead + product.tail) * t.lower;
}
// For a subnormal x.
DAKVM_INLINE Ext linear_from_subnormal(const Table& t, Ext x) {
  const Ext y = __builtin_fabsl(x);
  if (y < t.unsplit) return x * t.raise * t.slope * t.lower;
  if (y >= t.subnormal) return linear(t, x);
  // The head stays exact when it is scaled down, so that only the rest is rounded, and once.
  const Linear product(t, x * t.raise);
  const Ext head = head_of(product.lead, t.splitter);
  const Ext rest = round_to_double(product.tail) + Ext{round_to_double(product.lead - head)};
  return round_to_double(head * t.lower) + Ext{round_to_double(rest * t.lower)};
}

template <class T>
struct Kernel {
  using Chains = frame::Chains<
      frame::Chain<Medium, frame::Pipeline<&Medium::reduce, &Medium::split_t, &Medium::sum_slope,
                                           &Medium::split_slope, &Medium::sum_head,
                                           &Medium::sum_tails, &Medium::rebuild>>,
      frame::Chain<Small, frame::Pipeline<&Small::multiply, &Small::split, &Small::sum_heads,
                                          &Small::rebuild>>>;

  // Not in a chain: below 2^-40, infinities, NaN.
  DAKVM_INLINE static int32_t chain_of(const Table&, Bits<T> x) {
    constexpr auto word = [](int exponent) {
      return (Bits<T>::bias + static_cast<uint32_t>(exponent)) << Bits<T>::fraction_bits;
    };
    constexpr uint32_t infinity = (2 * Bits<T>::bias + 1) << Bits<T>::fraction_bits;
    const uint32_t magnitude = x.magnitude();
    const int32_t in_chains = magnitude - word(-40) < infinity - word(-40);
    const int32_t small = magnitude < word(-3);
    return Chains::count + (small - Chains::count) * in_chains;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    if (bits.is_infinity()) {
      *dst = narrow<T>(t.signs[bits.lead() >> 31]);
      return Status::ok;
    }
    const Ext x = load(src);
    if (bits.is_nan())
      *dst = narrow<T>(x + x);
    else if (bits.is_zero())
      *dst = narrow<T>(x);
    else if (sizeof(T) == sizeof(double) && bits.exponent() == 0)
      *dst = narrow<T>(linear_from_subnormal(t, x));
    else
      *dst = narrow<T>(linear(t, x));
    return Status::ok;
  }
};

}  // namespace dakvm::erf
