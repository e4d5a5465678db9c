// 1/cbrt(x) for one element; every grade and both types share this file.
//
// Method     |x| = v 2^(3q), v in [1, 8). With T the table's v^(-1/3) at the nearest of 32 points a
//            binade and e = 1 - v T^3,
//                v^(-1/3) = T (1 - e)^(-1/3) = T + T e/3 + T e^2 (d2 + ... + d8 e^6),
//                |e| <= 2^-5.4
//            where T e/3 is added in two pieces, the first of them exact.
// Exactness  T has 8 bits. v = vh + vl with 16 and 37 bits, so a = 1 - vh T^3 and b = T^3 vl are
//            exact; so is the first piece s = ah T third of 16 + 8 + 15 bits. Splitting with 2^37
//            rounds once.
// Error      polynomial 2^-59.1 at worst, registers 2^-63; then the rounding of 64 bits before the
//            store: below 0.51 ulp in double precision.
// Special    Zeros, subnormal numbers, infinities, NaN: apply.
// Source     Table and polynomial: tools/gentables/invcbrt.cpp.
#pragma once

#include "algebraic/thirds.hpp"
#include "frame/frame.hpp"
#include "x87/double_double.hpp"

namespace dakvm::invcbrt {
using namespace algebraic;

struct Table {
  double seed[97];  // for v = 2^r (1 + k/32) at 32 r + k
  double shifter;   // 2^47 + 1: its unit is 1/32
  double splitter;  // 2^37
  double raise;     // 2^90, which makes a subnormal number normal
  double zero, one;
  double third_hi, third_lo;
  double d2, d3, d4, d5, d6, d7, d8;  // (1 - e)^(-1/3) = 1 + e/3 + d2 e^2 + ... + d8 e^8
};
static_assert(sizeof(Table) == 111 * sizeof(double));

// One normal number on its way.
struct Element {
  double m, v, scale;  // in [1, 2) and [1, 8); +-2^-q
  uint32_t base;       // first row of the binade
  double indexed;      // its low word holds the row
  Split v_cut, a_cut;
  double cube, vl, a, ah, s, y;
  Ext inner;  // d3 + ... + d8 e^5

  template <class T>
  DAKVM_INLINE void start(const Table& t, const T* x) {
    const auto bits = Bits<T>::read(x);
    decompose(t, bits, bits.is_negative(), 0);
  }

  // The number was multiplied by 2^(3 raised).
  template <class T>
  DAKVM_INLINE void decompose(const Table&, Bits<T> bits, bool is_negative, uint32_t raised) {
    const auto thirds = thirds_of(bits);
    base = 32 * thirds.r;
    put_mantissa(m, bits, 0);
    put_mantissa(v, bits, thirds.r);
    put_words(scale, uint32_t{is_negative} << 31 | (1023 + 341 + raised - thirds.q) << 20, 0);
  }

  DAKVM_INLINE void locate(const Table& t) {
    indexed = narrow<double>(t.shifter + Ext{m});
    v_cut.cut(v, t.splitter);
  }
  DAKVM_INLINE void form_residual(const Table& t) {
    const Ext T = seed(t);
    const Ext vh = v_cut.high();
    const Ext T3 = T * T * T;
    const Ext a_exact = t.one - vh * T3;
    cube = narrow<double>(T3);
    vl = narrow<double>(v - vh);
    a = narrow<double>(a_exact);
    a_cut.cut(a_exact, t.splitter);
  }
  DAKVM_INLINE void take_first_order(const Table& t) {
    const Ext T = seed(t);
    const Ext head = a_cut.high();
    const Ext first = head * T * t.third_hi;
    ah = narrow<double>(head);
    s = narrow<double>(first);
    y = narrow<double>(T + first);
  }
  DAKVM_INLINE void start_polynomial(const Table& t) {
    const Ext e = a - Ext{cube} * vl;
    inner = ((((t.d8 * e + t.d7) * e + t.d6) * e + t.d5) * e + t.d4) * e + t.d3;
  }
  DAKVM_INLINE Ext rebuild(const Table& t) const {
    const Ext T = seed(t);
    const Ext err = s + (T - y);
    const Ext b = Ext{cube} * vl;
    const Ext e = a - b;
    const Ext rest = (Ext{a} - ah) * t.third_hi;
    const Ext corr = (e * t.third_lo - t.third_hi * b + e * e * (t.d2 + e * inner) + rest) * T;
    return (y + (corr + err)) * scale;
  }

 private:
  DAKVM_INLINE Ext seed(const Table& t) const { return t.seed[base + (low_word(indexed) & 0x3f)]; }
};

using Stages =
    frame::Pipeline<&Element::locate, &Element::form_residual, &Element::take_first_order,
                    &Element::start_polynomial, &Element::rebuild>;

template <class T>
struct Kernel {
  using Element = invcbrt::Element;
  using Stages = invcbrt::Stages;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<T> x) { return is_normal(x); }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    const Ext x = load(src);
    if (bits.is_infinity()) {
      *dst = narrow<T>(t.zero / x);
    } else if (bits.is_nan()) {
      *dst = narrow<T>(x / x);
    } else if (bits.is_zero()) {
      *dst = narrow<T>(opaque(t.one) / x);
      return Status::singularity;
    } else {
      const double raised = round_to_double(x * t.raise);
      Element element;
      element.decompose(t, Bits<double>::read(&raised), bits.is_negative(), 30);
      *dst = narrow<T>(Stages::run(element, t));
    }
    return Status::ok;
  }
};

}  // namespace dakvm::invcbrt
