// ln(x) and log10(x) for one element; both algorithms, and with them two accuracies.
//
// Method     x = m 2^E with 1 <= m < 2.
//            Series: if m >= sqrt(2), halve m and add 1 to E. With f = m - 1, s = f/(2 + f),
//            z = s^2,
//                ln(m) = 2 artanh(s) = f - s (f - z A(z)),  |s| <= 0.1716
//            where A, of degree 6 with coefficients near 2/3, 2/5, ..., stands for the odd series.
//            Table: with j = nearest(64 (m - 1)), 0 <= j <= 64, and R about 1/(1 + j/64)
//                ln(x) = E ln2 - ln(R) + ln(1 + v),  v = m R - 1,  |v| <= 0.0084
//            Decimal: with k = 0.43359375, log10(e) in 8 bits, and Q for R
//                log10(x) = E log10(2) - log10(Q) + log10(1 + w/k),
//                w = k (m Q - 1),  |w| <= 0.0051
//            log1p is a polynomial of degree 8 in v or w.
//            Near one (|x - 1| <= 5/512, decimal 3/512) the polynomial alone, in x - 1.
// Exactness  m = mh + rest with mh a multiple of 2^-31 (decimal 2^-29). The rows' R has 11
//            fractional bits, k Q has 15, so a = mh R - 1 and a = mh k Q - k are exact. So is hi +
//            a: E ln2_hi and the rows' hi are multiples of 2^-42.
// Error      Table: polynomial 2^-61.3 of the result near one, tails 2^-64, and one rounding of 64
//            bits before the store. Largest seen: ln 0.5009 ulp, log10 0.5045 ulp. Series: g and
//            s g are rounded to double. Largest seen: ln 1.151 ulp, log10 0.933 ulp, between 0.69
//            and 0.76, where h cancels half of E ln2.
// Special    Zeros, subnormal and negative numbers, infinities, NaN; with a table also arguments
//            near one: apply.
// Source     P. T. P. Tang, ACM TOMS 16 (1990) 378-400. Tables: tools/gentables/log.cpp.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::log {
using namespace x87;

struct LnSeriesTable {
  double ln2, sqrt2;
  double raise;  // 2^60, which makes a subnormal number normal
  double zero, one, two;
  double a1, a2, a3, a4, a5, a6, a7;
};
static_assert(sizeof(LnSeriesTable) == 13 * sizeof(double));

struct Log10SeriesTable {
  double log10_2, log10_e, sqrt2;
  double raise, zero, one, two;  // as above
  double a1, a2, a3, a4, a5, a6, a7;
};
static_assert(sizeof(Log10SeriesTable) == 14 * sizeof(double));

struct Row {
  double factor;  // R, decimal k Q
  double hi, lo;  // their sum is -ln(R), decimal -log10(Q)
};

struct LnTable {
  Row rows[65];
  double log_2_hi, log_2_lo;
  double shifter;   // 2^46 + 1: the low 7 bits of a sum are j
  double splitter;  // 2^21
  double near_one;  // bound on |x - 1|; the bound itself is near one
  double raise, zero, one;
  double b2, b3, b4, b5, b6, b7, b8;  // ln(1 + v) = v + b2 v^2 + ... + b8 v^8

  static constexpr uint32_t near_one_512ths = 5;
};
static_assert(sizeof(LnTable) == 210 * sizeof(double));

struct Log10Table {
  Row rows[65];
  double log_2_hi, log_2_lo;
  double shifter, splitter, near_one;  // splitter is 2^23
  double raise, zero, one;
  double k;
  double d1, d2, d3, d4, d5, d6, d7, d8;  // log10(1 + w/k) = w + d1 w + ... + d8 w^8

  static constexpr uint32_t near_one_512ths = 3;
};
static_assert(sizeof(Log10Table) == 212 * sizeof(double));

// E of a number that was raised by 2^raised.
template <class T>
DAKVM_INLINE int32_t exponent_of(Bits<T> x, int32_t raised) {
  return static_cast<int32_t>(x.exponent() - Bits<T>::bias) - raised;
}

// The first statement of a long stage, settle(&t), has it read the table from memory: constants
// that a compiler keeps from one element to the next it spills as 80-bit images, which load slowly.

// One positive normal number on its way through the series.
template <class Table>
struct SeriesElement {
  double m;  // in [sqrt(1/2), sqrt(2))
  int32_t E;
  double f;  // m - 1, exact
  double g;  // f - z A(z)
  double sg;

  DAKVM_INLINE void start(const Table& t, const double* x) { decompose(t, x, 0); }

  DAKVM_INLINE void decompose(const Table& t, const double* x, int32_t raised) {
    const auto bits = Bits<double>::read(x);
    const auto root = Bits<double>::read(&t.sqrt2);
    const uint32_t fraction = bits.high & 0xfffff, root_fraction = root.high & 0xfffff;
    const uint32_t upper =
        (uint64_t{fraction} << 32 | bits.low) >= (uint64_t{root_fraction} << 32 | root.low);
    put_mantissa(m, bits, 0 - upper);
    E = exponent_of(bits, raised) + static_cast<int32_t>(upper);
  }

  DAKVM_INLINE void sum_series(const Table& t) {
    settle(&t);
    const Ext fraction = m - Ext{t.one};
    f = narrow<double>(fraction);
    const Ext s = fraction / (t.two + fraction);
    const Ext z = s * s;
    g = narrow<double>(
        fraction -
        z * ((((((t.a7 * z + t.a6) * z + t.a5) * z + t.a4) * z + t.a3) * z + t.a2) * z + t.a1));
  }
  // Divided once more: division runs beside the other operations, an 80-bit field would not.
  DAKVM_INLINE void correct(const Table& t) { sg = narrow<double>(f / (t.two + Ext{f}) * g); }
  DAKVM_INLINE Ext rebuild(const Table& t) const {
    const Ext h = Ext{f} - sg;
    return join(t, static_cast<Ext>(E), h);
  }

 private:
  DAKVM_INLINE static Ext join(const LnSeriesTable& t, Ext e, Ext h) { return h + e * t.ln2; }
  DAKVM_INLINE static Ext join(const Log10SeriesTable& t, Ext e, Ext h) {
    return e * t.log10_2 + h * t.log10_e;
  }
};

template <class Table>
using SeriesStages =
    frame::Pipeline<&SeriesElement<Table>::sum_series, &SeriesElement<Table>::correct,
                    &SeriesElement<Table>::rebuild>;

// One positive normal number on its way through a table.
template <class Table>
struct TableElement {
  double m;
  int32_t E;
  double indexed, cut;  // sums with shifter and splitter

  template <class T>
  DAKVM_INLINE void start(const Table& t, const T* x) {
    decompose(t, x, 0);
  }

  template <class T>
  DAKVM_INLINE void decompose(const Table&, const T* x, int32_t raised) {
    const auto bits = Bits<T>::read(x);
    put_mantissa(m, bits, 0);
    E = exponent_of(bits, raised);
  }

  DAKVM_INLINE void split(const Table& t) {
    indexed = narrow<double>(Ext{m} + t.shifter);
    cut = narrow<double>(Ext{m} + t.splitter);
  }

  DAKVM_INLINE Ext rebuild(const Table& t) const {
    settle(&t);
    const Row& row = t.rows[low_word(indexed) % 128];
    const Ext mh = Ext{cut} - t.splitter;
    const Ext rest = m - mh;
    const Ext e = static_cast<Ext>(E);
    const Ext hi = e * t.log_2_hi + row.hi;
    const Ext lo = e * t.log_2_lo + row.lo;
    const Ext c = row.factor * rest;
    return sum(t, hi, lo, mh * row.factor, c);
  }

 private:
  // `product` is mh R or mh k Q.
  DAKVM_INLINE static Ext sum(const LnTable& t, Ext hi, Ext lo, Ext product, Ext c);
  DAKVM_INLINE static Ext sum(const Log10Table& t, Ext hi, Ext lo, Ext product, Ext c);
};

// ln(1 + v) - v, also for other tables with these coefficients
template <class Table>
DAKVM_INLINE Ext polynomial(const Table& t, Ext v) {
  return v * v * ((((((t.b8 * v + t.b7) * v + t.b6) * v + t.b5) * v + t.b4) * v + t.b3) * v + t.b2);
}

// log10(1 + w/k)/w - 1
DAKVM_INLINE Ext polynomial(const Log10Table& t, Ext w) {
  return ((((((t.d8 * w + t.d7) * w + t.d6) * w + t.d5) * w + t.d4) * w + t.d3) * w + t.d2) * w +
         t.d1;
}

template <class Table>
Ext TableElement<Table>::sum(const LnTable& t, Ext hi, Ext lo, Ext product, Ext c) {
  const Ext a = product - t.one;
  return (hi + a) + (c + (polynomial(t, a + c) + lo));
}

template <class Table>
Ext TableElement<Table>::sum(const Log10Table& t, Ext hi, Ext lo, Ext product, Ext c) {
  const Ext a = product - t.k;
  const Ext P = polynomial(t, a + c);
  return (hi + a) + (c + (lo + P * c) + P * a);
}

DAKVM_INLINE Ext near_one(const LnTable& t, Ext u) { return u + polynomial(t, u); }
DAKVM_INLINE Ext near_one(const Log10Table& t, Ext u) {
  const Ext w = u * t.k;
  return w + polynomial(t, w) * w;
}

template <class Table>
using TableStages = frame::Pipeline<&TableElement<Table>::split, &TableElement<Table>::rebuild>;

// Every element that is not a positive finite number, and the raising of subnormal ones;
// `compute(x, raised)` is the logarithm of the positive normal double x 2^-raised.
template <class T, class Table, class Compute>
DAKVM_INLINE Status settle_special(const Table& t, const T* src, T* dst, Compute&& compute) {
  const auto bits = Bits<T>::read(src);
  if (!bits.is_finite() && !(bits.is_infinity() && bits.is_negative())) {
    const Ext x = *src;
    *dst = narrow<T>(x * x);
    return Status::ok;
  }
  if (bits.is_zero()) {
    *dst = narrow<T>(-load(&t.one) / load(&t.zero));
    return Status::singularity;
  }
  if (bits.is_negative()) {
    *dst = narrow<T>(load(&t.zero) / load(&t.zero));
    return Status::domain;
  }
  // A subnormal double is loaded once: that takes hundreds of cycles.
  double x;
  int32_t raised = 0;
  if (is_below_normal_doubles(bits)) {
    x = round_to_double(Ext{*src} * t.raise);
    raised = 60;
  } else {
    x = round_to_double(*src);
  }
  *dst = narrow<T>(compute(x, raised));
  return Status::ok;
}

template <class Table>
struct SeriesKernel {
  using Element = SeriesElement<Table>;
  using Stages = SeriesStages<Table>;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<double> x) {
    return x.is_positive_normal();
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const double* src, double* dst) {
    return settle_special(t, src, dst, [&](const double& x, int32_t raised) {
      Element element;
      element.decompose(t, &x, raised);
      return Stages::run(element, t);
    });
  }
};

template <class T, class Table>
struct TableKernel {
  using Element = TableElement<Table>;
  using Stages = TableStages<Table>;

  // The interval near one, one step of the lead word wider below: in any precision of the unit, the
  // difference x - 1 of other numbers lies beyond the bound.
  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<T> x) {
    constexpr uint32_t one = Bits<T>::bias << Bits<T>::fraction_bits;
    constexpr uint32_t first = one - (Table::near_one_512ths << (Bits<T>::fraction_bits - 8)) - 1;
    constexpr uint32_t last = one + (Table::near_one_512ths << (Bits<T>::fraction_bits - 9));
    return x.is_positive_normal() && x.lead() - first > last - first;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* src, T* dst) {
    return settle_special(t, src, dst, [&](const double& x, int32_t raised) {
      const Ext u = Ext{x} - t.one;
      const Ext rounded = round_to_double(u);
      if (rounded <= t.near_one && -rounded <= t.near_one) return near_one(t, u);
      Element element;
      element.decompose(t, &x, raised);
      return Stages::run(element, t);
    });
  }
};

}  // namespace dakvm::log
