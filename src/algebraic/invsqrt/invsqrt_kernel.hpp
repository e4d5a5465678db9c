// 1/sqrt(x) for one element; every grade and both types share this file.
//
// Method     x = v 2^(2E), v in [1, 4). With T the table's 1/sqrt(v) at the nearest of 32 points a
//            binade and e = 1 - v T^2,
//                1/sqrt(v) = T (1 - e)^(-1/2) = T + T e/2 + T e^2 P(e),  |e| <= 2^-5.98
//            where T e/2 is added in two pieces, the first of them exact.
// Exactness  T has 13 bits. v = vh + vl with 27 bits each, so a = 1 - vh T^2 and b = T^2 vl are
//            exact, both fit a double, and so does the first piece s = ah T/2 of 27 + 13 bits.
//            Splitting with 2^27 rounds once: c is exact, and so is c - (c - v) after the inner
//            difference is stored.
// Error      polynomial 2^-60.8 at worst, registers 2^-63; then the rounding of 64 bits before the
//            store: below 0.502 ulp in double precision. Largest seen 0.50135 ulp, at
//            0x1.039cab041e198p+0.
// Special    NaN, infinities, zeros, negative and subnormal numbers: apply.
// Source     Table and polynomial: tools/gentables/invsqrt.cpp.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::invsqrt {
using namespace x87;

struct Table {
  double seed[65];  // for v = 1 + k/32, then from 32 on for v = 2 + k/16
  double shifter;   // 2^47 + 1: its unit is 1/32
  double splitter;  // 2^27
  double raise;     // 2^60, which makes a subnormal number normal
  double zero, one, half;
  double p0, p1, p2, p3, p4, p5, p6;  // (1 - e)^(-1/2) = 1 + e/2 + p0 e^2 + ... + p6 e^8
};
static_assert(sizeof(Table) == 78 * sizeof(double));

// One positive normal number of type T on its way.
template <class T>
struct Element {
  T m, v;             // in [1, 2) and [1, 4)
  double root_scale;  // 2^-E
  uint32_t base;      // first row of the binade
  double indexed;     // its low word holds the row
  double c_less_v, a_scaled_less_a;
  double seed, a, b, ah, s, y;

  DAKVM_INLINE void start(const Table& t, const T* x) { decompose(t, x, 0); }

  // x was multiplied by 2^(2 raised).
  DAKVM_INLINE void decompose(const Table&, const T* x, uint32_t raised) {
    const auto bits = Bits<T>::read(x);
    const uint32_t e = bits.exponent() - Bits<T>::bias;
    const uint32_t p = e & 1;
    base = 32 * p;
    put_mantissa(m, bits, 0);
    put_mantissa(v, bits, p);
    put_power_of_two(root_scale,
                     1023 + raised - static_cast<uint32_t>(static_cast<int32_t>(e - p) >> 1));
  }

  DAKVM_INLINE void locate(const Table& t) {
    indexed = narrow<double>(t.shifter + Ext{m});
    c_less_v = narrow<double>(t.splitter * Ext{v} - v);
  }

  DAKVM_INLINE void form_residual(const Table& t) {
    seed = t.seed[base + (low_word(indexed) & 0x3f)];
    const Ext vh = t.splitter * Ext{v} - c_less_v;
    const Ext vl = v - vh;
    const Ext square = Ext{seed} * seed;
    const Ext a_exact = t.one - vh * square;
    a = narrow<double>(a_exact);
    b = narrow<double>(square * vl);
    a_scaled_less_a = narrow<double>(t.splitter * a_exact - a_exact);
  }

  DAKVM_INLINE void take_first_order(const Table& t) {
    const Ext head = t.splitter * Ext{a} - a_scaled_less_a;
    const Ext first = head * (t.half * Ext{seed});
    ah = narrow<double>(head);
    s = narrow<double>(first);
    y = narrow<double>(seed + first);
  }

  DAKVM_INLINE Ext correct(const Table& t) const {
    const Ext err = s + (Ext{seed} - y);
    const Ext e = Ext{a} - b;
    const Ext P = (((((t.p6 * e + t.p5) * e + t.p4) * e + t.p3) * e + t.p2) * e + t.p1) * e + t.p0;
    const Ext higher = e * e * P - (b - (Ext{a} - ah)) * t.half;
    return (y + (higher * seed + err)) * root_scale;
  }
};

template <class T>
using StagesOf = frame::Pipeline<&Element<T>::locate, &Element<T>::form_residual,
                                 &Element<T>::take_first_order, &Element<T>::correct>;

template <class T>
struct Kernel {
  using Element = invsqrt::Element<T>;
  using Stages = StagesOf<T>;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<T> x) { return x.is_positive_normal(); }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    const Ext x = load(src);
    if (bits.is_nan() || (bits.is_infinity() && bits.is_negative())) {
      *dst = narrow<T>(x / x);
      return bits.is_nan() ? Status::ok : Status::domain;
    }
    if (bits.is_infinity()) {
      *dst = narrow<T>(t.zero / x);
      return Status::ok;
    }
    if (bits.is_zero()) {
      *dst = narrow<T>(t.one / x);
      return Status::singularity;
    }
    if (bits.is_negative()) {
      *dst = narrow<T>(load(&t.zero) / load(&t.zero));
      return Status::domain;
    }
    // Subnormal: raised to a normal double, also from a float.
    const double raised = round_to_double(x * t.raise);
    invsqrt::Element<double> element;
    element.decompose(t, &raised, 30);
    *dst = narrow<T>(StagesOf<double>::run(element, t));
    return Status::ok;
  }
};

}  // namespace dakvm::invsqrt
