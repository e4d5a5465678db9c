// cbrt(x) for one element; every grade and both types share this file.
//
// Method     |x| = m 2^(3q + r), m in [1, 2). With T the table's m^(-1/3) at the first number of the
//            32nd of the binade that m is in, and e = 1 - m T^3,
//                cbrt(m) = m T^2 (1 - e)^(-2/3) = m T^2 (1 + G),  -2^-5 < e < 2^-6.18
//            where G = e (c1 + c2 e + ... + c12 e^11) is the binomial series without its 1. The
//            result is cbrt(m) 2^(r/3) 2^q, where 2^(r/3) has two parts.
// Exactness  T has 8 bits. m = mh + ml with 10 and 43 bits, so a = mh T^2 has 26 bits and
//            b = ml T^2 59; 1 - a T is exact as well. 2^(r/3) has 26 bits in its first part, so the
//            result is an exact product a 2^(r/3) and a rest that is 25 times smaller.
// Error      rest 2^-67, series 2^-64.6 at worst; then one rounding of 64 bits before the store:
//            below 0.5007 ulp in double precision.
// Special    Zeros, subnormal numbers, infinities, NaN: apply.
// Source     Table: tools/gentables/cbrt.cpp.
#pragma once

#include "algebraic/thirds.hpp"
#include "frame/frame.hpp"
#include "x87/double_double.hpp"

namespace dakvm::cbrt {
using namespace algebraic;

struct Table {
  double seed[32];
  double c1_hi, c1_lo;
  double c2, c3, c4, c5, c6, c7, c8, c9, c10, c11, c12;
  double raise;       // 2^300, which makes a subnormal number normal
  double splitter;    // 2^43 + 1
  double step[3][2];  // 2^(r/3) in two parts
  double one;
};
static_assert(sizeof(Table) == 54 * sizeof(double));

// One normal number on its way.
struct Element {
  double m, scale;  // in [1, 2); +-2^q
  uint32_t row, r;
  Split cut;
  double a, ml, head;  // head of e: 1 - a T
  Ext inner;           // of the series from c8, later from c4 on

  template <class T>
  DAKVM_INLINE void start(const Table& t, const T* x) {
    const auto bits = Bits<T>::read(x);
    decompose(t, bits, bits.is_negative(), 0);
  }

  // The number was multiplied by 2^(3 raised).
  template <class T>
  DAKVM_INLINE void decompose(const Table&, Bits<T> bits, bool is_negative, uint32_t raised) {
    const auto thirds = thirds_of(bits);
    r = thirds.r;
    row = bits.lead() >> (Bits<T>::fraction_bits - 5) & 31;
    put_mantissa(m, bits, 0);
    put_words(scale, uint32_t{is_negative} << 31 | (thirds.q + 682 - raised) << 20, 0);
  }

  DAKVM_INLINE void multiply(const Table& t) { cut.multiply(m, t.splitter); }
  DAKVM_INLINE void subtract(const Table&) { cut.subtract(m); }

  DAKVM_INLINE void form_residual(const Table& t) {
    const Ext seed = t.seed[row];
    const Ext mh = cut.high();
    const Ext square = seed * seed;
    const Ext a_exact = mh * square;
    a = narrow<double>(a_exact);
    ml = narrow<double>(m - mh);
    head = narrow<double>(t.one - a_exact * seed);
  }
  DAKVM_INLINE void start_series(const Table& t) {
    const Ext e = residual(t).e;
    inner = (((t.c12 * e + t.c11) * e + t.c10) * e + t.c9) * e + t.c8;
  }
  DAKVM_INLINE void continue_series(const Table& t) {
    const Ext e = residual(t).e;
    inner = (((inner * e + t.c7) * e + t.c6) * e + t.c5) * e + t.c4;
  }
  DAKVM_INLINE Ext rebuild(const Table& t) const {
    const auto [e, b] = residual(t);
    const Ext G = e * (t.c1_hi + (t.c1_lo + e * ((inner * e + t.c3) * e + t.c2)));
    const Ext rest = a * G + (b + b * G);
    const auto& [step_hi, step_lo] = t.step[r];
    return (Ext{a} * step_hi + (rest * step_hi + (a + rest) * step_lo)) * scale;
  }

 private:
  struct Residual {
    Ext e, b;
  };
  DAKVM_INLINE Residual residual(const Table& t) const {
    const Ext seed = t.seed[row];
    const Ext b = ml * (seed * seed);
    return {head - seed * b, b};
  }
};

using Stages =
    frame::Pipeline<&Element::multiply, &Element::subtract, &Element::form_residual,
                    &Element::start_series, &Element::continue_series, &Element::rebuild>;

template <class T>
struct Kernel {
  using Element = cbrt::Element;
  using Stages = cbrt::Stages;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<T> x) { return is_normal(x); }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    if (!bits.is_finite()) {
      const Ext x = load(src);
      *dst = narrow<T>(x + x);
    } else if (bits.is_zero()) {
      *dst = *src;
    } else {
      const double raised = round_to_double(*src * Ext{t.raise});
      Element element;
      element.decompose(t, Bits<double>::read(&raised), bits.is_negative(), 100);
      *dst = narrow<T>(Stages::run(element, t));
    }
    return Status::ok;
  }
};

}  // namespace dakvm::cbrt
