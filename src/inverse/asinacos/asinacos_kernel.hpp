// asin(x) and acos(x) for one element; every grade and both types share this file.
//
// Method     Small, |x| < 1/2, with v = x^2:
//                asin(x) = x + x^3 (S1 + S2 v + v^2 (B0 + ... + B11 v^11))
//                acos(x) = pi/2 - asin(x)
//            Large, with y = |x|, w = 1 - y, z = w/2 and the root of z from a table:
//                P = 2 asin(sqrt(z)) = sqrt(z) (L0 + L1 w + L2 w^2 + w^3 (R0 + ... + R11 w^11))
//                asin(y) = pi/2 - P,  acos(y) = P,  acos(-y) = pi - P
//            S1, S2, L0, L1 and L2 are sums of two doubles.
//            Each difference is c - (hi + lo): V = c_hi - hi rounded to double, then
//                ((c_hi - V) - hi) + (c_lo - lo) + V,  only the last sum being rounded for good.
// Exactness  hi is a double, so (c_hi - V) - hi is exact. w is exact. Root and polynomial are cut
//            to 26 bits, so that hi of P is their exact product.
// Error      Small: sums of first order are at most 0.05 x and kept in 64 bits, 2^-67; polynomial
//            2^-63.6. Large: tails 2^-69, polynomial 2^-63.1 of P, which is 2^-62.1 of the
//            difference next to y = 1/2, 0.0009 ulp. Then one rounding of 64 bits before the store:
//            below 0.502 ulp in double precision. Largest seen 0.50117 ulp, asin at
//            -0x1.025096f19de03p-1.
// Special    NaN, infinities, |x| >= 1, |x| near or below 2^-53: apply.
// Source     Tables: tools/gentables/asinacos.cpp, tools/gentables/table_root.cpp.
#pragma once

#include "frame/frame.hpp"
#include "inverse/table_root.hpp"

namespace dakvm::inverse {

struct AsinTable {
  double root_seed[513];
  double splitter;  // 2^27
  double root_splitter, root_shifter;
  double least_normal;
  double tiny;  // 2^-53: the bound itself is tiny
  double half_pi_hi, half_pi_lo;
  double one, half;
  double s1_hi, s1_lo, s2_hi, s2_lo;
  double b0, b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, b11;
  double l0_hi, l0_lo, l1_hi, l1_lo, l2_hi, l2_lo;
  double r0, r1, r2, r3, r4, r5, r6, r7, r8, r9, r10, r11;
  double g0, g1, g2, g3, g4, g5, g6;
};
static_assert(sizeof(AsinTable) == 563 * sizeof(double));

struct AcosTable {
  double root_seed[513];
  double splitter, root_splitter, root_shifter, tiny;  // as above
  double half_pi_hi, half_pi_lo, pi_hi, pi_lo;
  double one, half, zero;
  double s1_hi, s1_lo, s2_hi, s2_lo;
  double b0, b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, b11;
  double l0_hi, l0_lo, l1_hi, l1_lo, l2_hi, l2_lo;
  double r0, r1, r2, r3, r4, r5, r6, r7, r8, r9, r10, r11;
  double g0, g1, g2, g3, g4, g5, g6;
};
static_assert(sizeof(AcosTable) == 565 * sizeof(double));

// c - (hi + lo), the parts of c being c_hi and c_lo.
struct Difference {
  double V;

  DAKVM_INLINE void start(Ext c_hi, Ext hi) { V = narrow<double>(c_hi - hi); }
  DAKVM_INLINE Ext finish(Ext c_hi, Ext c_lo, Ext hi, Ext lo) const {
    return ((c_hi - V) - hi) + (c_lo - lo) + V;
  }
};

// asin(y) = sum + correction for |y| < 1/2.
template <class Table>
struct Small {
  double y;
  double sum;
  Ext inner;  // B3 + ... + B11 v^8

  DAKVM_INLINE void add_leading(const Table& t) { sum = narrow<double>(y + leading(t)); }
  DAKVM_INLINE void start_polynomial(const Table& t) {
    const Ext v = Ext{y} * y;
    inner =
        (((((((t.b11 * v + t.b10) * v + t.b9) * v + t.b8) * v + t.b7) * v + t.b6) * v + t.b5) * v +
         t.b4) *
            v +
        t.b3;
  }
  DAKVM_INLINE Ext correction(const Table& t) const {
    const Ext v = Ext{y} * y;
    const Ext B = ((inner * v + t.b2) * v + t.b1) * v + t.b0;
    return (leading(t) - (Ext{sum} - y)) + v * y * (t.s1_lo + v * (t.s2_lo + v * B));
  }

 private:
  DAKVM_INLINE Ext leading(const Table& t) const {
    const Ext v = Ext{y} * y;
    return v * y * (t.s1_hi + v * t.s2_hi);
  }
};

// P = product + rest for w = 1 - |x|, |x| in [1/2, 1].
template <class Table>
struct Large {
  double w, z;
  TableRoot root;
  double Q;   // L0 + L1 w + ..., to a double
  Ext inner;  // R3 + ... + R11 w^8
  double root_head, root_high, Q_high;
  Split root_cut, Q_cut;
  double product;

  DAKVM_INLINE void start(const Table& t, Ext x) {
    const Ext exact = t.one - __builtin_fabsl(x);
    w = narrow<double>(exact);
    z = narrow<double>(exact * t.half);
  }
  DAKVM_INLINE void add_leading(const Table& t) { Q = narrow<double>(t.l0_hi + leading(t)); }
  DAKVM_INLINE void locate(const Table& t) {
    root.locate(t);
    Q_cut.cut(Q, t.splitter);
  }
  DAKVM_INLINE void split(const Table&) { root.split(); }
  DAKVM_INLINE void take_head(const Table& t) {
    const Ext head = root.head(t);
    root_head = narrow<double>(head);
    root_cut.cut(head, t.splitter);
  }
  DAKVM_INLINE void start_series(const Table& t) { root.start_series(t, root.low()); }
  DAKVM_INLINE void start_polynomial(const Table& t) {
    const Ext w = this->w;
    inner =
        (((((((t.r11 * w + t.r10) * w + t.r9) * w + t.r8) * w + t.r7) * w + t.r6) * w + t.r5) * w +
         t.r4) *
            w +
        t.r3;
  }
  DAKVM_INLINE Ext multiply() {
    const Ext s = root_cut.high(), q = Q_cut.high();
    root_high = narrow<double>(s);
    Q_high = narrow<double>(q);
    product = narrow<double>(s * q);
    return s * q;
  }
  DAKVM_INLINE Ext rest(const Table& t) const {
    const Ext w = this->w;
    const Ext R = ((inner * w + t.r2) * w + t.r1) * w + t.r0;
    const Ext Q_tail =
        (leading(t) - (Ext{Q} - t.l0_hi)) + (t.l0_lo + w * (t.l1_lo + w * (t.l2_lo + w * R)));
    const Ext Q_low = (Ext{Q} - Q_high) + Q_tail;
    const Ext root_low = (Ext{root_head} - root_high) + root.tail(t, root.low());
    return root_high * Q_low + root_low * (Q_high + Q_low);
  }

 private:
  DAKVM_INLINE Ext leading(const Table& t) const { return w * (t.l1_hi + Ext{w} * t.l2_hi); }
};

// Chain 0 is Small, from the lead word behind that of 2^-53 on; chain 1 is Large.
template <class T>
DAKVM_INLINE int32_t chain_of_magnitude(Bits<T> x) {
  constexpr uint32_t binade = 1u << Bits<T>::fraction_bits;
  constexpr uint32_t end = Bits<T>::bias * binade, middle = end - binade;
  constexpr uint32_t first = end - 53 * binade + 1;
  const uint32_t lead = x.lead() & 0x7fffffff;
  const int32_t chain = lead >= middle;
  return lead - first < end - first ? chain : 2;
}

// The sign of an argument, put on a result that has been rounded.
template <class T>
struct Signed {
  T magnitude;
  float sign;

  DAKVM_INLINE void keep_sign(const T* x) {
    put_word(sign, 0x3f800000 | (Bits<T>::read(x).lead() & 0x80000000));
  }
  DAKVM_INLINE Ext value() const { return Ext{magnitude} * sign; }
};

template <class T>
struct AsinSmall : Small<AsinTable> {
  Signed<T> result;

  DAKVM_INLINE void start(const AsinTable&, const T* x) {
    y = narrow<double>(__builtin_fabsl(Ext{*x}));
    result.keep_sign(x);
  }
  DAKVM_INLINE void finish(const AsinTable& t) {
    settle(&t);
    result.magnitude = narrow<T>(sum + correction(t));
  }
  DAKVM_INLINE Ext rebuild(const AsinTable&) const { return result.value(); }
};

template <class T>
using AsinSmallStages = frame::Pipeline<&AsinSmall<T>::add_leading, &AsinSmall<T>::start_polynomial,
                                        &AsinSmall<T>::finish, &AsinSmall<T>::rebuild>;

template <class T>
struct AsinLarge : Large<AsinTable> {
  Signed<T> result;
  Difference difference;

  DAKVM_INLINE void start(const AsinTable& t, const T* x) {
    Large::start(t, *x);
    result.keep_sign(x);
  }
  DAKVM_INLINE void decompose(const AsinTable& t) {
    root.decompose(z);
    add_leading(t);
  }
  DAKVM_INLINE void subtract(const AsinTable& t) { difference.start(t.half_pi_hi, multiply()); }
  DAKVM_INLINE void finish(const AsinTable& t) {
    settle(&t);
    result.magnitude = narrow<T>(difference.finish(t.half_pi_hi, t.half_pi_lo, product, rest(t)));
  }
  DAKVM_INLINE Ext rebuild(const AsinTable&) const { return result.value(); }
};

template <class Element>
using LargeStages =
    frame::Pipeline<&Element::decompose, &Element::locate, &Element::split, &Element::take_head,
                    &Element::start_series, &Element::start_polynomial, &Element::subtract,
                    &Element::finish, &Element::rebuild>;

template <class T>
struct AcosSmall : Small<AcosTable> {
  Difference difference;

  // asin is odd: the sign stays on y.
  DAKVM_INLINE void start(const AcosTable&, const T* x) { y = narrow<double>(*x); }
  DAKVM_INLINE void subtract(const AcosTable& t) { difference.start(t.half_pi_hi, sum); }
  DAKVM_INLINE Ext rebuild(const AcosTable& t) const {
    settle(&t);
    return difference.finish(t.half_pi_hi, t.half_pi_lo, sum, correction(t));
  }
};

template <class T>
using AcosSmallStages = frame::Pipeline<&AcosSmall<T>::add_leading, &AcosSmall<T>::start_polynomial,
                                        &AcosSmall<T>::subtract, &AcosSmall<T>::rebuild>;

// c - P, where c is pi for negative x; for positive x it is 0 and the root is taken negative.
template <class T>
struct AcosLarge : Large<AcosTable> {
  uint32_t root_sign;
  double c_hi, c_lo;
  Difference difference;

  DAKVM_INLINE void start(const AcosTable& t, const T* x) {
    Large::start(t, *x);
    const uint32_t sign = Bits<T>::read(x).lead() >> 31;
    root_sign = (sign ^ 1) << 31;
    const auto hi = Bits<double>::read(&t.pi_hi), lo = Bits<double>::read(&t.pi_lo);
    const uint32_t mask = 0 - sign;
    put_words(c_hi, hi.high & mask, hi.low & mask);
    put_words(c_lo, lo.high & mask, lo.low & mask);
  }
  DAKVM_INLINE void decompose(const AcosTable& t) {
    root.decompose(z, root_sign);
    add_leading(t);
  }
  DAKVM_INLINE void subtract(const AcosTable&) { difference.start(c_hi, multiply()); }
  DAKVM_INLINE Ext rebuild(const AcosTable& t) const {
    settle(&t);
    return difference.finish(c_hi, c_lo, product, rest(t));
  }
};

template <class T>
using AcosLargeStages =
    frame::Pipeline<&AcosLarge<T>::decompose, &AcosLarge<T>::locate, &AcosLarge<T>::split,
                    &AcosLarge<T>::take_head, &AcosLarge<T>::start_series,
                    &AcosLarge<T>::start_polynomial, &AcosLarge<T>::subtract,
                    &AcosLarge<T>::rebuild>;

// Not a number of [-1, 1]: a NaN, unless the argument is one, and then its own.
template <class T>
DAKVM_INLINE Status outside(Bits<T> bits, const double& one, const T* src, T* dst) {
  if (!bits.is_finite()) {
    const Ext x = load(src);
    *dst = narrow<T>(x / x);
    return bits.is_nan() ? Status::ok : Status::domain;
  }
  const Ext zero = opaque(one) - Ext{opaque(one)};
  *dst = narrow<T>(zero / zero);
  return Status::domain;
}

// One element through a chain.
template <class Chain, class Table, class T>
DAKVM_INLINE Ext run(const Table& t, const T* x) {
  typename Chain::Element element;
  element.start(t, x);
  return Chain::Stages::run(element, t);
}

template <class T>
struct AsinKernel {
  using SmallChain = frame::Chain<AsinSmall<T>, AsinSmallStages<T>>;
  using LargeChain = frame::Chain<AsinLarge<T>, LargeStages<AsinLarge<T>>>;
  using Chains = frame::Chains<SmallChain, LargeChain>;

  DAKVM_INLINE static int32_t chain_of(const AsinTable&, Bits<T> x) {
    return chain_of_magnitude(x);
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const AsinTable& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    if (!bits.is_finite()) return outside(bits, t.one, src, dst);
    const Ext x = *src;
    const Ext y = __builtin_fabsl(x);
    if (y > t.one) return outside(bits, t.one, src, dst);
    if (y >= t.half) {
      *dst = narrow<T>(run<LargeChain>(t, src));
    } else if (y > t.tiny) {
      *dst = narrow<T>(run<SmallChain>(t, src));
    } else {
      // The square raises underflow: opaque keeps it out of the other case.
      const Ext magnitude =
          y < t.least_normal ? y + round_to_double(y * opaque(y)) : round_to_double(t.one + y) * y;
      put_signed(*dst, rounded_to<T>(magnitude), bits);
    }
    return Status::ok;
  }
};

template <class T>
struct AcosKernel {
  using SmallChain = frame::Chain<AcosSmall<T>, AcosSmallStages<T>>;
  using LargeChain = frame::Chain<AcosLarge<T>, AcosLargeStages<T>>;
  using Chains = frame::Chains<SmallChain, LargeChain>;

  DAKVM_INLINE static int32_t chain_of(const AcosTable&, Bits<T> x) {
    return chain_of_magnitude(x);
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const AcosTable& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    if (!bits.is_finite()) return outside(bits, t.one, src, dst);
    const Ext x = *src;
    const Ext y = __builtin_fabsl(x);
    if (y > t.one) return outside(bits, t.one, src, dst);
    if (y == t.one) {
      *dst = narrow<T>(bits.is_negative() ? t.pi_hi + Ext{t.pi_lo} : Ext{t.zero});
    } else if (y > t.tiny) {
      *dst = narrow<T>(run<SmallChain>(t, src));
    } else {
      *dst = narrow<T>((t.half_pi_lo - round_to_double(t.one + y) * x) + t.half_pi_hi);
    }
    return Status::ok;
  }
};

}  // namespace dakvm::inverse
