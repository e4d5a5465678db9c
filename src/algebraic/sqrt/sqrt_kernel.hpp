// sqrt(x) for one element; every grade and both types share this file.
//
// Method     x = v 2^(2E), v = 2^p m in [1, 4) with m the mantissa and p the parity of
//            the exponent.
//            With t the table's 1/sqrt(v), h = t/2 and y = t v, three coupled steps
//                r = 1/2 - y h,  y <- y + r y,  h <- h + r h
//            take y to sqrt(v) and h to 1/(2 sqrt(v)); the result is (y + h d) 2^E with the
//            residual d = v - y^2.
// Exactness  v is exact: the product with 2^p is formed in the exponent field. Veltkamp splitting
//            gives y = hi + lo with 26 bits in hi and at most 38 in lo, so hi - as c - (c - y),
//            where the second difference is rounded - and lo are exact as they stand in the
//            register, and so are hi hi and v - hi hi.
// Error      seed 2^-8.9, then 2^-17.2, 2^-33.8 and about 2^-63 (registers); the correction leaves
//            2^-64, one rounding of 64 bits before the store: 0.50024 ulp in double precision.
// Special    NaN, infinities, zeros, negative numbers, subnormal numbers: apply.
// Source     P. Markstein, IBM J. Res. Dev. 34 (1990) 111-119. Table: tools/gentables/sqrt.cpp.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::sqrt {
using namespace x87;

struct Table {
  double seed[2][256];  // 1/sqrt(2^p (1 + k/256)), in 11 bits
  double raise;         // 2^200, which makes a subnormal number normal
  double zero, half;
  double factor[2];  // 2^p, which takes m to v
  double splitter;   // 2^27 + 1
};
static_assert(sizeof(Table) == 518 * sizeof(double));

// One positive normal number of type T on its way.
template <class T>
struct Element {
  T v;           // in [1, 4)
  double scale;  // 2^E
  const double* seed;
  double c, c_less_y;
  Ext y, h;

  DAKVM_INLINE void start(const Table& t, const T* x) { decompose(t, x, 0); }

  // `raised` is the binary exponent of the root of what x was multiplied with.
  DAKVM_INLINE void decompose(const Table& t, const T* x, uint32_t raised) {
    const auto bits = Bits<T>::read(x);
    const uint32_t e = bits.exponent() - Bits<T>::bias;
    const uint32_t p = e & 1;
    const uint32_t k = bits.lead() >> (Bits<T>::fraction_bits - 8) & 0xff;
    put_mantissa(v, bits, p);  // m 2^p
    seed = &t.seed[p][k];
    put_power_of_two(scale,
                     static_cast<uint32_t>(static_cast<int32_t>(e - p) >> 1) + 1023 - raised);
  }

  DAKVM_INLINE void iterate(const Table& t) {
    Ext h0 = t.half * Ext{*seed};
    Ext y0 = *seed * Ext{v};
    for (int step = 0; step < 3; ++step) {
      const Ext r = t.half - y0 * h0;
      y0 = y0 + r * y0;
      h0 = h0 + r * h0;
    }
    c = narrow<double>(t.splitter * y0);
    y = y0;
    h = h0;
  }

  DAKVM_INLINE void split(const Table&) { c_less_y = narrow<double>(c - y); }

  DAKVM_INLINE Ext correct(const Table&) const {
    const Ext hi = Ext{c} - c_less_y;
    const Ext lo = y - hi;
    const Ext d = v - hi * hi - (hi + hi) * lo - lo * lo;
    return (y + h * d) * scale;
  }
};

template <class T>
using StagesOf = frame::Pipeline<&Element<T>::iterate, &Element<T>::split, &Element<T>::correct>;

template <class T>
struct Kernel {
  using Element = sqrt::Element<T>;
  using Stages = StagesOf<T>;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<T> x) { return x.is_positive_normal(); }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* src, T* dst) {
    const auto x = Bits<T>::read(src);
    if (x.is_nan() || (x.is_infinity() && !x.is_negative())) {
      *dst = narrow<T>(Ext{*src} + *src);
      return Status::ok;
    }
    if (x.is_zero()) {
      *dst = *src;
      return Status::ok;
    }
    if (x.is_negative()) {
      *dst = narrow<T>(load(&t.zero) / load(&t.zero));
      return Status::domain;
    }
    // Subnormal: raised to a normal double, also from a float.
    const double raised = round_to_double(Ext{*src} * t.raise);
    sqrt::Element<double> element;
    element.decompose(t, &raised, 100);
    *dst = narrow<T>(StagesOf<double>::run(element, t));
    return Status::ok;
  }
};

}  // namespace dakvm::sqrt
