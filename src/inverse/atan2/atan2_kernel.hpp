// The angle of the point (b, a) for one element; every grade and both types share this file.
//
// Method     A = |a| 2^-k in [1, 2), B = |b| 2^-k, q = A/B. With the breakpoint c of q (arc.hpp),
//            the reduced argument is formed without the quotient,
//                t = N/D,  N = A - c B,  D = B + c A
//            and V = hi + lo + t + t s P(s) is the angle in the first quadrant; s is t^2, below
//            q = 1/8, where t is the quotient, the square of the rounded q. The result is
//            V - O, times `side`: O is 0 and side 1 for b > 0, O is pi and side -1 for b < 0; then
//            the sign of a.
//            t = t1 + t2: t1 is the quotient in 24 bits, t2 what the residual N - t1 D adds.
// Exactness  c B and c A have 56 bits, N cancels into 56. D1 has 24 bits, so t1 D1 is exact; D2,
//            the rest of D, is known to 2^-88 of D. W is the rounded sum of O, hi and t1; what it
//            lost is computed to 2^-115.
// Error      t is off by 2^-84 of itself. Below q = 1/8 the rounding of q in s decides, up to 0.507
//            ulp of a double just below 1/8; elsewhere one rounding of 64 bits before the store.
// Special    NaN, infinities, zeros, subnormal numbers, exponents that differ by 54 or more: apply.
// Source     Table: tools/gentables/atan.cpp.
#pragma once

#include "inverse/atan/arc.hpp"

namespace dakvm::atan2 {
using namespace x87;
using atan::Row;

// A half of the plane: where its angles begin, and which way they grow.
struct Half {
  double offset_hi, offset_lo, side;
};

struct Angle {
  double hi, lo;
};

struct Table {
  atan::Arc arc;
  Half half[2];  // b > 0, b < 0
  double one, minus_one, zero;
  Angle quarter_pi, half_pi, three_quarters_pi, pi;
  double raise;  // 2^200, which makes subnormal numbers normal
};

// One pair of normal numbers on its way; its quotient is a normal number.
template <class T>
struct Element {
  double A, B, c, q, sign;
  const Row* row;
  const Half* half;
  float D1;
  uint32_t reduced;
  double squared[2][2];  // the polynomial's argument in two parts: q, and from 1/8 on t
  double W;
  T magnitude;

  template <class Source>
  DAKVM_INLINE void start_at(const Table& t, Bits<Source> a, Bits<Source> b) {
    put_mantissa(A, a, 0);
    put_mantissa(B, b, b.exponent() - a.exponent());
    put_words(sign, 0x3ff00000 | (a.lead() & 0x80000000), 0);
    half = &t.half[b.lead() >> 31];
  }
  DAKVM_INLINE void start(const Table& t, const T* a, const T* b) {
    start_at(t, Bits<T>::read(a), Bits<T>::read(b));
  }

  DAKVM_INLINE void locate(const Table&) { q = narrow<double>(Ext{A} / B); }
  DAKVM_INLINE void choose(const Table& t) {
    const uint32_t high = Bits<double>::read(&q).high;
    row = choose_breakpoint(t.arc, high, c);
    reduced = high >= atan::first_breakpoint;
    squared[0][0] = narrow<double>(q);
    put_words(squared[0][1], 0, 0);
  }
  DAKVM_INLINE void divide(const Table&) {
    const Ext D = B + Ext{c} * A;
    D1 = narrow<float>(D);
    squared[1][0] = round_to_float((A - Ext{c} * B) / D);
  }
  DAKVM_INLINE void divide_residual(const Table&) {
    const Ext t1 = squared[1][0];
    const Ext D2 = (Ext{c} * A - D1) + B;
    const Ext residual = ((A - Ext{c} * B) - t1 * D1) - t1 * D2;
    squared[1][1] = narrow<double>(residual / (D1 + D2));
    W = narrow<double>((t1 + row->hi) - half->offset_hi);
  }
  DAKVM_INLINE void add_rest(const Table& t) {
    settle(&t);
    const auto& [t1, t2] = squared[1];
    const auto& [high, low] = squared[reduced];
    const Ext root = Ext{high} + low;
    const Ext s = root * root;
    const Ext higher = s * polynomial(t.arc, s) * (Ext{t1} + t2);
    const Ext W_rest = (row->hi - (Ext{W} + half->offset_hi)) + t1;
    const Ext rest = (((W_rest + t2) + higher) + row->lo) - half->offset_lo;
    magnitude = narrow<T>((W + rest) * half->side);
  }
  DAKVM_INLINE Ext attach_sign(const Table&) const { return Ext{magnitude} * sign; }
};

template <class T>
using StagesOf =
    frame::Pipeline<&Element<T>::locate, &Element<T>::choose, &Element<T>::divide,
                    &Element<T>::divide_residual, &Element<T>::add_rest, &Element<T>::attach_sign>;

template <class T>
struct Kernel {
  using Element = atan2::Element<T>;
  using Stages = StagesOf<T>;

  // Exponents of finite normal numbers, and less than 54 apart.
  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<T> a, Bits<T> b) {
    constexpr uint32_t top = 2 * Bits<T>::bias;
    return a.exponent() - 1 < top && b.exponent() - 1 < top &&
           a.exponent() - b.exponent() + 53 < 107;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* a, const T* b, T* dst) {
    const auto first = Bits<T>::read(a), second = Bits<T>::read(b);
    settle(a);
    settle(b);
    if (first.is_nan() || second.is_nan()) {
      *dst = narrow<T>(load(a) + load(b));
      return Status::ok;
    }
    const double wide_a = round_to_double(*a), wide_b = round_to_double(*b);
    const Ext angle = magnitude_of(t, wide_a, wide_b);
    *dst = narrow<T>(rounded_to<T>(angle) * Ext{first.is_negative() ? t.minus_one : t.one});
    return Status::ok;
  }

 private:
  static Ext sum(const Angle& angle) { return Ext{opaque(angle.hi)} + angle.lo; }

  static Ext magnitude_of(const Table& t, const double& a, const double& b) {
    const auto first = Bits<double>::read(&a), second = Bits<double>::read(&b);
    const bool left = second.is_negative();
    if (second.is_infinity() && first.is_infinity())
      return sum(left ? t.three_quarters_pi : t.quarter_pi);
    if (second.is_infinity() || first.is_zero()) return left ? sum(t.pi) : Ext{t.zero};
    if (first.is_infinity() || second.is_zero()) return sum(t.half_pi);

    const auto apart = static_cast<int32_t>(first.exponent() - second.exponent());
    const Ext ordinate = __builtin_fabsl(a);
    if (apart >= 74) return sum(t.half_pi);
    if (apart >= 54) return (Ext{t.half_pi.lo} - b / ordinate) + t.half_pi.hi;
    if (apart <= -54) return left ? sum(t.pi) : small_quotient(t, ordinate / __builtin_fabsl(b));
    return general(t, a, b);
  }

  // A quotient so small is its own arc tangent, and raises what a rounded result raises.
  static Ext small_quotient(const Table& t, Ext quotient) {
    const double q = round_to_double(quotient);
    if (Bits<double>::read(&q).exponent() == 0) return q + Ext{round_to_double(Ext{q} * q)};
    return Ext{round_to_double(Ext{q} + t.one)} * q;
  }

  // Numbers of which one is subnormal, and so both small.
  static Ext general(const Table& t, const double& a, const double& b) {
    const double raised_a = round_to_double(Ext{a} * t.raise);
    const double raised_b = round_to_double(Ext{b} * t.raise);
    Element element;
    element.start_at(t, Bits<double>::read(&raised_a), Bits<double>::read(&raised_b));
    Stages::run(element, t);
    return element.magnitude;
  }
};

}  // namespace dakvm::atan2
