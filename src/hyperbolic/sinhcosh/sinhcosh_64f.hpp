// sinh(x) and cosh(x) in double precision; both functions and both accuracies.
//
// Method     a = |x| = N ln2/64 + r with N = nearest(a 64/ln2) = 64 m + j, 0 <= j < 64, |r| <=
//            0.005418. With up = 2^(m-1) 2^(j/64) and down = 2^(-m-2) 2^((64-j)/64), read from one
//            table of 65 rows, S = up + down and D = up - down,
//                cosh(a) = S cosh(r) + D sinh(r),  sinh(a) = D cosh(r) + S sinh(r)
//            where cosh(r) - 1 and sinh(r) - r are the even and the odd part of the polynomial for
//            e^r - 1 - r.
// Exactness  step_hi has 36 significant bits and N < 2^17, so N step_hi is exact; so is
//            a - N step_hi, which fits a double. up and down are table rows times a power of two.
//            In sinh A53 r = r1 + r2 with r1 a multiple of 2^-18 of 11 bits: S r1 has 64 bits, and
//            both sums that make the leading part are compensated.
// Error      sinh A53: the terms behind the leading part stay below 2^-13 of it, rounded once, and
//            the sum is rounded to 64 bits before the store.
//            cosh A53: the bracket, up to 2^-7.5 of S, is rounded to double.
//            A50: polynomial 2^-53; cosh, and both from 31 ln2 on, take the table's rounding.
//            Largest seen, up to 31 ln2 and beyond: sinh A53 0.5003, 0.5028 ulp; A50 0.534, 1.008;
//            cosh A53 0.5039, 0.5027; A50 1.049, 1.008.
// Special    NaN, infinities, tiny arguments, overflow; sinh near zero, where D cancels, and both
//            where e^-a is negligible: apply.
// Source     P. T. P. Tang, ACM TOMS 15 (1989) 144-157, for the exponential; T. J. Dekker, Numer.
//            Math. 18 (1971) 224-242, for the sums. Tables: tools/gentables/sinhcosh.cpp.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::sinhcosh {
using namespace x87;

// 2^(j/64) in two parts.
struct Row {
  double hi, lo;
};

struct Reduction {
  double inv_step, shifter;  // 64/ln2, 1.5 * 2^52
  double step_hi, step_lo;   // their sum is ln2/64, to 2^-99
  double overflow;           // from this |x| on results are infinite
  double single;             // 31 ln2: from this |x| on e^-|x| is negligible
};

// e^r - 1 = r + c2 r^2 + ... + c5 r^5
struct LowSeries {
  double c2, c3, c4, c5;

  DAKVM_INLINE Ext even(Ext z) const { return z * (c4 * z + c2); }
  DAKVM_INLINE Ext odd(Ext z, Ext r) const { return (c5 * z + c3) * z * r; }  // without r itself
  DAKVM_INLINE Ext whole(Ext r) const { return r + r * r * (c2 + r * (c3 + r * (c4 + r * c5))); }
};

// e^r - 1 = r + c2 r^2 + ... + c6 r^6
struct HighSeries {
  double c2, c3, c4, c5, c6;

  DAKVM_INLINE Ext even(Ext z) const { return z * ((c6 * z + c4) * z + c2); }
  DAKVM_INLINE Ext odd(Ext z, Ext r) const { return (c5 * z + c3) * z * r; }
  DAKVM_INLINE Ext whole(Ext r) const {
    return r + r * r * (c2 + r * (c3 + r * (c4 + r * (c5 + r * c6))));
  }
};

// sinh(a) = a + s3 a^3 + ... + s9 a^9 below `bound`
struct NearZero {
  double bound;
  double s3, s5, s7, s9;

  Ext sinh(Ext a) const {
    const Ext square = a * a;
    return a + a * square * (((square * s9 + s7) * square + s5) * square + s3);
  }
};

struct SinhLowTable {
  Row pow2[65];
  Reduction reduction;
  LowSeries series;
  NearZero near_zero;
  double least, largest, one, two;  // least is 2^-1022 (1 + 2^-52)

  // The high words in between are those of the main path.
  static constexpr uint32_t first = 0x3faeb852, end = 0x40357cd0;

  Ext exponential(uint32_t row, Ext p) const { return p * pow2[row].hi + pow2[row].hi; }
};
static_assert(sizeof(SinhLowTable) == 149 * sizeof(double));

struct SinhHighTable {
  Row pow2[65];
  Reduction reduction;
  HighSeries series;
  NearZero near_zero;
  double cut;  // 1.5 * 2^34: a sum with it keeps multiples of 2^-18
  double least, largest, one, two;

  static constexpr uint32_t first = 0x3f9bdb8d, end = 0x40357cd0;

  Ext exponential(uint32_t row, Ext p) const {
    return pow2[row].hi + (p * pow2[row].hi + pow2[row].lo);
  }
};
static_assert(sizeof(SinhHighTable) == 151 * sizeof(double));

struct CoshLowTable {
  double pow2[65];
  Reduction reduction;
  LowSeries series;
  double largest, one, two;

  static constexpr uint32_t first = 0x3ca00000, end = 0x40357cd0;

  Ext exponential(uint32_t row, Ext p) const { return p * pow2[row] + pow2[row]; }
};
static_assert(sizeof(CoshLowTable) == 78 * sizeof(double));

struct CoshHighTable {
  Row pow2[65];
  Reduction reduction;
  HighSeries series;
  double largest, one, two;

  static constexpr uint32_t first = 0x3ca00000, end = 0x40357cd0;

  Ext exponential(uint32_t row, Ext p) const {
    return pow2[row].hi + (p * pow2[row].hi + pow2[row].lo);
  }
};
static_assert(sizeof(CoshHighTable) == 144 * sizeof(double));

// |x| on its way to N, r and the two powers of two.
template <class TableOf>
struct Argument {
  using Table = TableOf;

  double a, indexed;  // the low word of the sum is N
  double up_scale, down_scale;
  uint32_t row;

  DAKVM_INLINE void start(const Table& t, const double* src) {
    const Ext magnitude = __builtin_fabsl(*src);
    a = narrow<double>(magnitude);
    indexed = narrow<double>(magnitude * t.reduction.inv_step + t.reduction.shifter);
  }
  DAKVM_INLINE void split_index(const Table&) {
    row = low_word(indexed) % 64;
    put_power_of_two(up_scale, m() + 1022);
    put_power_of_two(down_scale, 1021 - m());
  }

  DAKVM_INLINE uint32_t m() const { return low_word(indexed) / 64; }
  DAKVM_INLINE Ext N(const Table& t) const { return Ext{indexed} - t.reduction.shifter; }
  DAKVM_INLINE Ext remainder(const Table& t) const {
    const Ext n = N(t);
    return a - n * t.reduction.step_hi - n * t.reduction.step_lo;
  }
};

// The same with the sign of x, which goes on when the result is rounded.
template <class Table>
struct SignedArgument : Argument<Table> {
  float sign;
  double result;

  DAKVM_INLINE void start(const Table& t, const double* src) {
    Argument<Table>::start(t, src);
    put_word(sign, 0x3f800000 | (Bits<double>::read(src).high & 0x80000000));
  }
  DAKVM_INLINE Ext with_sign(const Table&) const { return Ext{result} * sign; }
};

struct SinhLowElement : SignedArgument<SinhLowTable> {
  DAKVM_INLINE void rebuild(const SinhLowTable& t) {
    settle(&t);
    const Ext r = remainder(t);
    const auto& up = t.pow2[row];
    const auto& down = t.pow2[64 - row];
    const Ext up_hi = Ext{up.hi} * up_scale, down_hi = Ext{down.hi} * down_scale;
    const Ext D = Ext{up.lo} * up_scale + (up_hi - down_hi) - Ext{down.lo} * down_scale;
    const Ext S = up_hi + down_hi;
    const Ext z = r * r;
    result = narrow<double>(D + (t.series.even(z) * D + t.series.odd(z, r) * S + r * S));
  }
};
using SinhLowStages = frame::Pipeline<&SinhLowElement::split_index, &SinhLowElement::rebuild,
                                      &SinhLowElement::with_sign>;

struct SinhHighElement : SignedArgument<SinhHighTable> {
  double near, far;  // r is their difference
  double indexed_r;  // sum of r with `cut`
  double up, down, S;
  double rest;  // all terms but D and S r1

  DAKVM_INLINE void reduce(const SinhHighTable& t) {
    const Ext n = N(t);
    const Ext exact = a - n * t.reduction.step_hi;
    const Ext correction = n * t.reduction.step_lo;
    near = narrow<double>(exact);
    far = narrow<double>(correction);
    indexed_r = narrow<double>((exact - correction) + t.cut);
    const Ext up_hi = Ext{t.pow2[row].hi} * up_scale;
    const Ext down_hi = Ext{t.pow2[64 - row].hi} * down_scale;
    up = narrow<double>(up_hi);
    down = narrow<double>(down_hi);
    S = narrow<double>(up_hi + down_hi);
  }
  DAKVM_INLINE void sum_rest(const SinhHighTable& t) {
    settle(&t);
    const Ext r1 = Ext{indexed_r} - t.cut;
    const Ext r2 = (near - r1) - far;
    const Ext r = r1 + r2;
    const Ext z = r * r;
    const Ext leading = (t.series.odd(z, r) + r2) * S + t.series.even(z) * (Ext{up} - down);
    const Ext up_lo = Ext{t.pow2[row].lo} * up_scale;
    const Ext down_lo = Ext{t.pow2[64 - row].lo} * down_scale;
    const Ext S_lo = ((Ext{up} - S) + down) + (up_lo + down_lo);
    rest = narrow<double>(leading + ((up_lo - down_lo) + r * S_lo));
  }
  DAKVM_INLINE void rebuild(const SinhHighTable& t) {
    const Ext D = Ext{up} - down;
    const Ext D_lo = (up - D) - down;
    const Ext product = (Ext{indexed_r} - t.cut) * S;
    const Ext sum = D + product;
    const Ext sum_lo = product + (D - sum);
    result = narrow<double>(sum + (sum_lo + (D_lo + rest)));
  }
};
using SinhHighStages = frame::Pipeline<&SinhHighElement::split_index, &SinhHighElement::reduce,
                                       &SinhHighElement::sum_rest, &SinhHighElement::rebuild,
                                       &SinhHighElement::with_sign>;

struct CoshLowElement : Argument<CoshLowTable> {
  DAKVM_INLINE Ext rebuild(const CoshLowTable& t) const {
    settle(&t);
    const Ext r = remainder(t);
    const Ext up = Ext{t.pow2[row]} * up_scale, down = Ext{t.pow2[64 - row]} * down_scale;
    const Ext S = up + down, D = up - down;
    const Ext z = r * r;
    return S + (r * D + t.series.even(z) * S + t.series.odd(z, r) * D);
  }
};
using CoshLowStages = frame::Pipeline<&CoshLowElement::split_index, &CoshLowElement::rebuild>;

struct CoshHighElement : Argument<CoshHighTable> {
  double up, down, S, bracket;

  DAKVM_INLINE void sum(const CoshHighTable& t) {
    const Ext up_hi = Ext{t.pow2[row].hi} * up_scale;
    const Ext down_hi = Ext{t.pow2[64 - row].hi} * down_scale;
    up = narrow<double>(up_hi);
    down = narrow<double>(down_hi);
    S = narrow<double>(up_hi + down_hi);
  }
  DAKVM_INLINE void sum_rest(const CoshHighTable& t) {
    settle(&t);
    const Ext r = remainder(t);
    const Ext D = Ext{up} - down;
    const Ext z = r * r;
    const Ext leading = r * D + t.series.even(z) * S;
    const Ext up_lo = Ext{t.pow2[row].lo} * up_scale;
    const Ext down_lo = Ext{t.pow2[64 - row].lo} * down_scale;
    const Ext S_lo = (Ext{up} - S) + down;
    bracket = narrow<double>(
        leading + (t.series.odd(z, r) * D + ((up_lo + down_lo) + r * (up_lo - down_lo) + S_lo)));
  }
  DAKVM_INLINE Ext rebuild(const CoshHighTable&) const { return Ext{S} + bracket; }
};
using CoshHighStages = frame::Pipeline<&CoshHighElement::split_index, &CoshHighElement::sum,
                                       &CoshHighElement::sum_rest, &CoshHighElement::rebuild>;

template <class Table>
DAKVM_INLINE bool on_main_path(Bits<double> x) {
  return x.magnitude() - Table::first < Table::end - Table::first;
}

// e^|x|/2 alone. The last factor of a large result is 2: it alone may overflow.
template <class Table>
Ext half_exponential(const Table& t, const double* src) {
  Argument<Table> argument;
  argument.start(t, src);
  settle(&argument);
  const uint32_t exponent = argument.m() + 1022;
  const bool top = exponent == 2047;
  put_power_of_two(argument.up_scale, top ? exponent - 1 : exponent);
  settle(&argument);
  const Ext p = t.series.whole(argument.remainder(t));
  const Ext half = t.exponential(low_word(argument.indexed) % 64, p) * argument.up_scale;
  return top ? half * t.two : half;
}

template <class ElementOf, class StagesOf>
struct SinhKernel {
  using Element = ElementOf;
  using Stages = StagesOf;
  using Table = typename Element::Table;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<double> x) {
    return on_main_path<Table>(x);
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const double* src, double* dst) {
    const auto bits = Bits<double>::read(src);
    const Ext x = load(src);
    if (!bits.is_finite()) {
      *dst = narrow<double>(x + x);
      return Status::ok;
    }
    if (bits.exponent() == 0) {
      *dst = narrow<double>(round_to_double(x * opaque(t.least)) + x);
      return Status::ok;
    }
    if (bits.exponent() <= 969) {
      *dst = narrow<double>((Ext{opaque(t.one)} + opaque(t.least)) * x);
      return Status::ok;
    }
    const Ext a = __builtin_fabsl(x);
    if (a >= t.reduction.overflow) {
      if constexpr (std::is_same_v<Table, SinhHighTable>)
        *dst = narrow<double>(opaque(t.largest) * x);
      else
        store(bits, load(&t.largest) * load(&t.largest), dst);
      return Status::overflow;
    }
    if (a >= t.reduction.single) {
      store(bits, half_exponential(t, src), dst);
    } else if (a < t.near_zero.bound) {
      store(bits, t.near_zero.sinh(a), dst);
    } else {
      Element element;
      element.start(t, src);
      *dst = narrow<double>(Stages::run(element, t));
    }
    return Status::ok;
  }

 private:
  static void store(Bits<double> x, Ext magnitude, double* dst) {
    const double rounded = round_to_double(magnitude);
    *dst = narrow<double>(x.is_negative() ? -Ext{rounded} : Ext{rounded});
  }
};

template <class ElementOf, class StagesOf>
struct CoshKernel {
  using Element = ElementOf;
  using Stages = StagesOf;
  using Table = typename Element::Table;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<double> x) {
    return on_main_path<Table>(x);
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const double* src, double* dst) {
    const auto bits = Bits<double>::read(src);
    const Ext x = load(src);
    if (!bits.is_finite()) {
      *dst = narrow<double>(x * x);
      return Status::ok;
    }
    const Ext a = __builtin_fabsl(x);
    if (bits.exponent() <= 969) {
      *dst = narrow<double>(t.one + a);
      return Status::ok;
    }
    if (a >= t.reduction.overflow) {
      *dst = narrow<double>(load(&t.largest) * load(&t.largest));
      return Status::overflow;
    }
    if (a >= t.reduction.single) {
      *dst = narrow<double>(half_exponential(t, src));
    } else {
      Element element;
      element.start(t, src);
      *dst = narrow<double>(Stages::run(element, t));
    }
    return Status::ok;
  }
};

using SinhLowKernel = SinhKernel<SinhLowElement, SinhLowStages>;
using SinhHighKernel = SinhKernel<SinhHighElement, SinhHighStages>;
using CoshLowKernel = CoshKernel<CoshLowElement, CoshLowStages>;
using CoshHighKernel = CoshKernel<CoshHighElement, CoshHighStages>;

}  // namespace dakvm::sinhcosh
