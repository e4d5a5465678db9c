// tanh(x) for one element; every grade and both types share this file.
//
// Method     a = |x|. From 0.125 up to the bound of saturation, 29 rows, each a quarter of a
// binade:
//            row i maps its interval to u = scale a + offset in [-1/2, 1/2], where
//                tanh(a) = v + (p + q u) u + u^3 P(u)
//            with P of degree 11, interpolated at Chebyshev nodes; v, p and q have two parts. The
//            coefficient C = p + q u and u itself are split, so that the leading product is exact.
//            Below 0.125: tanh(a) = a - a^3/3 + a^5 (t5 + ... + t13 a^8), with a^3 split.
// Exactness  In rows 0 to 27 u is a multiple of 2^-50, exact in a double; its head has 26 bits, as
//            the head of q has. The head of C, cut by a difference of 64 bits, has 37: q_hi u_hi
//            and C_hi u_hi are exact, and the sums they enter are compensated. A cube's head has 37
//            bits as well, the head of 1/3 has 25.
// Error      polynomials 2^-63, small terms 2^-64, then the rounding to 64 bits before the store.
//            Largest seen 0.5007 ulp. Below 0.125 single precision drops the tail of 1/3: up to
//            0.0013 ulp.
// Special    NaN, infinities, saturation, all numbers below 0.125: apply.
// Source     T. J. Dekker, Numer. Math. 18 (1971) 224-242. Table: tools/gentables/tanh.cpp.
#pragma once

#include "frame/frame.hpp"
#include "x87/double_double.hpp"

namespace dakvm::tanh {
using namespace x87;

struct Row {
  double scale, offset;
  double v_hi, v_lo;
  double p_hi, p_lo;
  double q_hi, q_lo;
  double c[12];  // P, from the constant up
};

struct Table {
  Row rows[29];
  double third_hi, third_lo;  // -1/3
  double t5, t7, t9, t11, t13;
  double least;     // 2^-1022 (1 + 2^-52)
  double splitter;  // 2^27 + 1
  double zero;
  double sign[2];
  double first, saturation;  // bounds of the rows
};
static_assert(sizeof(Table) == 594 * sizeof(double));

// One number of a row on its way.
struct Element {
  const Row* row;
  float sign;
  double u, u_hi;
  double C, C_product, C_hi;
  double tails;
  Split split;

  template <class T>
  DAKVM_INLINE void start(const Table& t, const T* src) {
    const auto bits = Bits<T>::read(src);
    constexpr uint32_t eighth = (Bits<T>::bias - 3) << Bits<T>::fraction_bits;
    row = &t.rows[(bits.magnitude() - eighth) >> (Bits<T>::fraction_bits - 2)];
    put_word(sign, 0x3f800000 | (bits.lead() & 0x80000000));
    const Ext wide = __builtin_fabsl(*src) * row->scale + row->offset;
    u = narrow<double>(wide);
    split.multiply(wide, t.splitter);
  }
  DAKVM_INLINE void split_argument(const Table&) { split.subtract(u); }
  DAKVM_INLINE void form_coefficient(const Table& t) {
    const Ext head = split.high();
    const Ext sum = row->p_hi + row->q_hi * head;
    u_hi = narrow<double>(head);
    C = narrow<double>(sum);
    C_product = narrow<double>(t.splitter * sum);
  }
  DAKVM_INLINE void sum_tails(const Table&) {
    const Ext head = C_product - (Ext{C_product} - C);
    const Ext u_lo = Ext{u} - u_hi;
    const Ext C_lo = (row->q_hi * Ext{u_hi} + (Ext{row->p_hi} - C)) + (C - head);
    const Ext product = head * u_hi;
    const Ext sum = row->v_hi + product;
    const Ext sum_lo = product + (row->v_hi - sum);
    C_hi = narrow<double>(head);
    tails = narrow<double>((C_lo + (row->q_hi * u_lo + row->q_lo * Ext{u}) + row->p_lo) * u +
                           head * u_lo + (sum_lo + row->v_lo));
  }
  DAKVM_INLINE Ext rebuild(const Table&) const {
    const double* c = row->c;
    Ext P = c[11] * Ext{u} + c[10];
    for (int k = 9; k >= 0; --k) P = P * u + c[k];
    const Ext higher = Ext{u} * u * u * P;
    return (row->v_hi + Ext{C_hi} * u_hi + (higher + tails)) * sign;
  }
};
using TanhStages = frame::Pipeline<&Element::split_argument, &Element::form_coefficient,
                                   &Element::sum_tails, &Element::rebuild>;

template <class T>
struct Kernel {
  using Element = tanh::Element;
  using Stages = TanhStages;

  // The lead words from 0.125 up to that of the saturation bound, which is left to apply.
  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<T> x) {
    constexpr uint32_t first = (Bits<T>::bias - 3) << Bits<T>::fraction_bits;
    constexpr uint32_t end = sizeof(T) == sizeof(double) ? 0x40330fc1 : 0x41987e0c;
    return x.magnitude() - first < end - first;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    const Ext x = load(src);
    const Ext sign = t.sign[bits.is_negative()];
    *dst = narrow<T>(bits.is_nan()        ? x + x
                     : bits.is_infinity() ? sign
                                          : finite(t, bits, src, x, sign));
    return Status::ok;
  }

 private:
  static Ext finite(const Table& t, Bits<T> bits, const T* src, Ext x, Ext sign) {
    const Ext a = __builtin_fabsl(x);
    if (is_below_normal_doubles(bits)) return round_to_double(x * opaque(t.least)) + x;
    if (bits.exponent() <= Bits<T>::bias - 54)
      return (Ext{opaque(t.sign[0])} + opaque(t.least)) * x;
    if (a < t.first) return near_zero(t, a) * sign;
    if (a >= t.saturation) return (Ext{opaque(t.sign[0])} + opaque(t.least)) * sign;
    Element element;
    element.start(t, src);
    return Stages::run(element, t);
  }

  // Single precision takes the head of 1/3 for the whole.
  static Ext near_zero(const Table& t, Ext a) {
    const Ext square = a * a;
    const Ext c = square * a;
    const Ext scaled = round_to_double(t.splitter * c);
    const Ext c_hi = scaled - (scaled - c);
    const Ext c_lo = c - c_hi;
    const Ext q =
        square * (t.t5 + square * (t.t7 + square * (t.t9 + square * (t.t11 + square * t.t13)))) * c;
    const Ext cubic = t.third_hi * c_hi;
    const Ext h = round_to_double(a + cubic);
    const Ext l = round_to_double(
        sizeof(T) == sizeof(float) ? t.third_hi * c_lo
                                   : t.third_lo * c_hi + (t.third_hi * c_lo + t.third_lo * c_lo));
    const Ext tail = round_to_double(q + l);
    const Ext sum = round_to_double(h + tail);
    const Ext h_lo = round_to_double(cubic + round_to_double(a - h));
    const Ext sum_lo = round_to_double(tail + round_to_double(h - sum));
    return sum + round_to_double(h_lo + sum_lo);
  }
};

}  // namespace dakvm::tanh
