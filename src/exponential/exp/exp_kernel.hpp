// e^x for one element; the two tables, and with them two accuracies, share this file.
//
// Method     x = N ln2/64 + r with N = nearest(x 64/ln2) = 64 M + j, 0 <= j < 64, so that
//                e^x = 2^M * 2^(j/64) * e^r,  |r| <= 0.005418
//            High accuracy: 2^(j/64) is value(1 + tail), e^r - 1 a polynomial q of degree 6;
//                e^x = (value + (q + tail) value) 2^M.
//            Low accuracy: 2^(j/64) is value alone, q of degree 5; e^x = (q + 1) value 2^M.
// Exactness  step_hi has 36 significant bits and |N| < 2^17, so N step_hi and x - N step_hi are
//            exact; r as a whole is off by less than 2^-71.
// Error      High: dropped product tail (e^r - 1) 2^-60.5, registers 2^-63.5, polynomial 2^-70
//            (relative), then one rounding at the store: below 0.507 ulp in double precision.
//            Largest seen 0.5027 ulp. Low: the table's rounding adds half an ulp.
// Special    NaN, infinities, tiny arguments, overflow, underflow, subnormal results and those of
//            the last binade: apply.
// Source     P. T. P. Tang, ACM TOMS 15 (1989) 144-157. Tables: tools/gentables/exp.cpp.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::exp {
using namespace x87;

struct LowTable {
  double pow2[64];
  double inv_step, shifter;               // 64/ln2, 1.5 * 2^52
  double c2, c3, c4, c5;                  // e^r - 1 = r + c2 r^2 + ... + c5 r^5
  double overflow, subnormal, underflow;  // bounds on x; x equal to a bound is ordinary
  double step_hi, step_lo;                // their sum is ln2/64, to 2^-99
  double least, largest;                  // their squares leave the range of double
  double zero, one, two, unscale;         // unscale is 2^-60
};
static_assert(sizeof(LowTable) == 81 * sizeof(double));

struct HighTable {
  double pow2[64][2];         // value, tail
  double inv_step, shifter;   // as above
  double c2, c3, c4, c5, c6;  // e^r - 1 = r + c2 r^2 + ... + c6 r^6
  double overflow, subnormal, underflow;
  double step_hi, step_lo;
  double least, largest;
  double zero, one, two, unscale;
  double cut;  // 1.5 * 2^32: keeps the leading 21 bits of a sum
};
static_assert(sizeof(HighTable) == 147 * sizeof(double));

// One ordinary element on its way to N, r and 2^M.
template <class Table>
struct Reduction {
  double x, u, s, scale;
  uint32_t row;

  template <class T>
  DAKVM_INLINE void start(const Table& t, const T* src) {
    const Ext wide = *src;
    x = narrow<double>(wide);
    u = narrow<double>(wide * t.inv_step);
  }
  DAKVM_INLINE void round_to_integer(const Table& t) { s = narrow<double>(Ext{u} + t.shifter); }
  DAKVM_INLINE void split_index(const Table&) {
    row = low_word(s) % 64;
    put_power_of_two(scale, M() + 1023);
  }

  DAKVM_INLINE uint32_t M() const { return low_word(s) / 64; }  // modulo 2^26
  DAKVM_INLINE Ext remainder(const Table& t) const {
    const Ext n = Ext{s} - t.shifter;
    return (x - n * t.step_hi) - n * t.step_lo;
  }
};

struct LowElement : Reduction<LowTable> {
  DAKVM_INLINE Ext mantissa(const LowTable& t) const {
    const Ext r = remainder(t);
    const Ext q = r + (((t.c5 * r + t.c4) * r + t.c3) * r + t.c2) * r * r;
    return (q + t.one) * t.pow2[row];
  }
  DAKVM_INLINE Ext rebuild(const LowTable& t) const { return mantissa(t) * scale; }

  // The result is subnormal and `scale` 2^60 too large.
  Ext rebuild_subnormal(const LowTable& t) const { return mantissa(t) * scale * t.unscale; }
};

struct HighElement : Reduction<HighTable> {
  // e^x 2^-M in two parts.
  struct Parts {
    double value;
    Ext rest;
  };
  DAKVM_INLINE Parts parts(const HighTable& t) const {
    const Ext r = remainder(t);
    const Ext q = r + ((((t.c6 * r + t.c5) * r + t.c4) * r + t.c3) * r + t.c2) * r * r;
    const auto& [value, tail] = t.pow2[row];
    return {value, (q + tail) * value};
  }
  DAKVM_INLINE Ext mantissa(const HighTable& t) const {
    const auto [value, rest] = parts(t);
    return value + rest;
  }
  DAKVM_INLINE Ext rebuild(const HighTable& t) const { return mantissa(t) * scale; }

  // The result is subnormal and `scale` 2^60 too large. A single rounding at the subnormal's last
  // place: the sum a + b is cut into H, which stays exact when it is scaled down, and the rest L.
  // Below 2^-1032 a sum in the register has bits enough to spare.
  Ext rebuild_subnormal(const HighTable& t) const {
    const auto [value, rest] = parts(t);
    const Ext a = rest * scale;
    const Ext b = Ext{value} * scale;
    if (Bits<double>::read(&scale).exponent() <= 50) return (a + b) * t.unscale;
    const double S = round_to_double(a + b);
    const double lo = round_to_double(a + round_to_double(b - S));
    const double C = round_to_double(Ext{S} * t.cut);
    const double D = round_to_double(Ext{S} + C);
    const double H = round_to_double(Ext{D} - C);
    const double L = round_to_double(Ext{lo} + round_to_double(Ext{S} - H));
    return Ext{round_to_double(Ext{H} * t.unscale)} + round_to_double(Ext{L} * t.unscale);
  }
};

template <class T, class Table, class ElementOf>
struct Kernel {
  using Element = ElementOf;
  using Stages =
      frame::Pipeline<&Element::round_to_integer, &Element::split_index, &Element::rebuild>;

  // 2^-52 <= |x| < 708 (32f 87): whole numbers below every bound of the table.
  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<T> x) {
    constexpr uint32_t least = (Bits<T>::bias - 52) << Bits<T>::fraction_bits;
    constexpr uint32_t bound = sizeof(T) == sizeof(double) ? 0x40862000 : 0x42ae0000;
    return x.magnitude() - least < bound - least;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    if (bits.is_infinity() && bits.is_negative()) {
      *dst = narrow<T>(t.zero);
      return Status::ok;
    }
    const Ext x = *src;
    if (!bits.is_finite()) {
      *dst = narrow<T>(x * x);
      return Status::ok;
    }
    if (bits.exponent() < Bits<T>::bias - 52) {
      *dst = narrow<T>(t.one + x);
      return Status::ok;
    }
    if (x > t.overflow) {
      *dst = narrow<T>(load(&t.largest) * load(&t.largest));
      return Status::overflow;
    }
    if (x < t.underflow) {
      *dst = narrow<T>(load(&t.least) * load(&t.least));
      return Status::underflow;
    }
    *dst = narrow<T>(near_the_bounds(t, src, x < t.subnormal));
    return Status::ok;
  }

 private:
  static Ext near_the_bounds(const Table& t, const T* src, bool subnormal) {
    Element element;
    element.start(t, src);
    settle(&element);
    element.round_to_integer(t);
    settle(&element);
    element.split_index(t);
    const uint32_t M = element.M();
    if (subnormal) {
      put_power_of_two(element.scale, M + 1083);
      return element.rebuild_subnormal(t);
    }
    if (((M + 1023) & 0x7ff) == 2047) {  // 2^M itself would be infinite
      put_power_of_two(element.scale, M + 1022);
      return element.rebuild(t) * t.two;
    }
    return element.rebuild(t);
  }
};

template <class T>
using LowKernel = Kernel<T, LowTable, LowElement>;
template <class T>
using HighKernel = Kernel<T, HighTable, HighElement>;

}  // namespace dakvm::exp
