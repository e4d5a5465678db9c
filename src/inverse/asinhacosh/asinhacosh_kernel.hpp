// arsinh(x) and arcosh(x) for one element; every grade and both types share this file.
//
// Method     With y = |x| for arsinh and x for arcosh,
//                arsinh(y) = ln(y + sqrt(y^2 + 1)),  arcosh(y) = ln(y + sqrt(y^2 - 1))
//            where y^2 +- 1, its root and the sum V are kept in two parts. From 2^28 on, ln(2y).
//            Small arguments: arsinh(y) = y + y s H(s), s = y^2, below 1/8, and
//                arcosh(1 + w) = r + r w K(w),  r = sqrt(2 w),  below 1 + 1/16
//            with H of degree 5 and K of degree 7.
// Exactness  y = yh + rest with 26 bits in yh: yh^2 is exact, and so is what the head of yh^2 +- 1
//            leaves over. The root's head has 43 bits: what the head of V leaves over is exact too.
// Error      root 2^-66.2; logarithm 2^-66, where the root's tail takes u beyond a row's interval;
//            relative to a result of 1/8 2^-63; then the rounding of 64 bits before the store.
//            arsinh's polynomial 2^-60.7, arcosh's 2^-63.2.
// Special    |x| < 1/8, x < 1 + 1/16, numbers from 2^28 on, infinities, NaN: apply.
// Source     inverse/table_root.hpp, inverse/table_log.hpp; T. J. Dekker, Numer. Math. 18 (1971)
//            224-242, for the parts. Tables: tools/gentables/asinhacosh.cpp.
#pragma once

#include "inverse/table_log.hpp"
#include "inverse/table_root.hpp"

namespace dakvm::asinhacosh {
using namespace x87;

struct AsinhTable {
  double root_seed[513];
  log::Row rows[65];
  double g0, g1, g2, g3, g4, g5, g6;
  double b2, b3, b4, b5, b6, b7, b8;  // ln(1 + u) = u + b2 u^2 + ... + b8 u^8
  double h1, h2, h3, h4, h5, h6;      // y + y^3 (h1 + h2 y^2 + ... + h6 y^10)
  double tiny, small, large;          // lower bounds on y of polynomial, root and ln(2y)
  double one, two;
  double root_splitter, root_shifter;
  double log_2_hi, log_2_lo, shifter, splitter;
  double halver;  // 2^27 + 1 splits a double in the middle

  DAKVM_INLINE Ext add_unit(Ext square) const { return square + one; }
};
static_assert(sizeof(AsinhTable) == 740 * sizeof(double));

struct AcoshTable {
  double root_seed[513];
  log::Row rows[65];
  double g0, g1, g2, g3, g4, g5, g6;
  double b2, b3, b4, b5, b6, b7, b8;
  double k1, k2, k3, k4, k5, k6, k7, k8;  // r (1 + w (k1 + k2 w + ... + k8 w^7))
  double near_one, large;                 // lower bounds on x of root and ln(2x)
  double one, two, zero;
  double root_splitter, root_shifter;
  double log_2_hi, log_2_lo, shifter, splitter;
  double halver;

  DAKVM_INLINE Ext add_unit(Ext square) const { return square - one; }
};
static_assert(sizeof(AcoshTable) == 742 * sizeof(double));

// One number on its way to V, and to ln(V).
template <class T, class Table>
struct Element : table_log::Logarithm<Table, Ext> {
  T y;
  Split cut;
  double radicand;
  double radicand_tail;  // below 2^-26 of the head: its own rounding does not count
  inverse::TableRoot root;

  DAKVM_INLINE void multiply(const Table& t) { cut.multiply(y, t.halver); }
  DAKVM_INLINE void subtract(const Table&) { cut.subtract(y); }
  DAKVM_INLINE void form_radicand(const Table& t) {
    const Ext yh = cut.high();
    const Ext square = yh * yh;
    radicand = round_to_double(t.add_unit(square));
    radicand_tail = narrow<double>(t.add_unit(square - radicand) + (y - yh) * (y + yh));
  }
  DAKVM_INLINE void decompose_radicand(const Table&) { root.decompose(radicand); }
  DAKVM_INLINE void locate_root(const Table& t) { root.locate(t); }
  DAKVM_INLINE void split_root(const Table&) { root.split(); }
  DAKVM_INLINE void start_root(const Table& t) {
    settle(&t);
    root.start_series(t, root_low());
  }
  DAKVM_INLINE void add_root(const Table& t) {
    settle(&t);
    const Ext root_head = root.head(t);
    this->head = round_to_double(y + root_head);
    this->tail = (y - (this->head - root_head)) + root.tail(t, root_low());
  }

 private:
  DAKVM_INLINE Ext root_low() const { return root.low() + Ext{radicand_tail} * root.unscaled; }
};

template <class Element, auto... last>
using StagesOf = frame::Pipeline<&Element::multiply, &Element::subtract, &Element::form_radicand,
                                 &Element::decompose_radicand, &Element::locate_root,
                                 &Element::split_root, &Element::start_root, &Element::add_root,
                                 &Element::locate, &Element::split, last...>;

template <class T>
struct AsinhElement : Element<T, AsinhTable> {
  T sign, magnitude;

  DAKVM_INLINE void start(const AsinhTable&, const T* x) {
    const auto bits = Bits<T>::read(x);
    put_magnitude(this->y, bits);
    put_signed_power(sign, bits, 0);
  }
  DAKVM_INLINE void take_logarithm(const AsinhTable& t) {
    settle(&t);
    magnitude = narrow<T>(this->ln(t));
  }
  DAKVM_INLINE Ext restore_sign(const AsinhTable&) const { return Ext{magnitude} * sign; }
};

template <class T>
struct AcoshElement : Element<T, AcoshTable> {
  DAKVM_INLINE void start(const AcoshTable&, const T* x) {
    put_magnitude(this->y, Bits<T>::read(x));
  }
  DAKVM_INLINE Ext take_logarithm(const AcoshTable& t) const {
    settle(&t);
    return this->ln(t);
  }
};

// The lead word of 2^28.
template <class T>
constexpr uint32_t large_lead = (Bits<T>::bias + 28) << Bits<T>::fraction_bits;

template <class T>
struct AsinhKernel {
  using Element = AsinhElement<T>;
  using Stages = StagesOf<Element, &Element::take_logarithm, &Element::restore_sign>;

  DAKVM_INLINE static bool is_ordinary(const AsinhTable&, Bits<T> x) {
    constexpr uint32_t first = (Bits<T>::bias - 3) << Bits<T>::fraction_bits;
    return x.magnitude() - first < large_lead<T> - first;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const AsinhTable& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    const Ext x = load(src);
    if (!bits.is_finite()) {
      *dst = narrow<T>(x + x);
      return Status::ok;
    }
    const Ext y = __builtin_fabsl(x);
    const Ext magnitude = y < t.small ? small_arsinh(t, bits, y) : Element::ln_of_twice(t, y);
    put_signed(*dst, rounded_to<T>(magnitude), bits);
    return Status::ok;
  }

 private:
  DAKVM_INLINE static Ext small_arsinh(const AsinhTable& t, Bits<T> x, Ext y) {
    if (y < t.tiny) {
      if (is_below_normal_doubles(x)) return y + round_to_double(y * y);
      return y * (t.one + y);
    }
    const Ext s = y * y;
    return y + s * (t.h1 + s * (t.h2 + s * (t.h3 + s * (t.h4 + s * (t.h5 + s * t.h6))))) * y;
  }
};

// One number of (1, 1 + 1/16) on its way; w and 2 w are exact.
struct NearOne {
  double w, twice_w;
  inverse::TableRoot root;

  template <class T>
  DAKVM_INLINE void start(const AcoshTable& t, const T* x) {
    const Ext exact = *x - Ext{t.one};
    w = narrow<double>(exact);
    twice_w = narrow<double>(t.two * exact);
  }
  DAKVM_INLINE void decompose(const AcoshTable&) { root.decompose(twice_w); }
  DAKVM_INLINE void locate_root(const AcoshTable& t) { root.locate(t); }
  DAKVM_INLINE void split_root(const AcoshTable&) { root.split(); }
  DAKVM_INLINE void start_root(const AcoshTable& t) { root.start_series(t, root.low()); }
  DAKVM_INLINE Ext rebuild(const AcoshTable& t) const {
    settle(&t);
    const Ext head = root.head(t), tail = root.tail(t, root.low());
    const Ext K =
        t.k1 +
        w * (t.k2 + w * (t.k3 + w * (t.k4 + w * (t.k5 + w * (t.k6 + w * (t.k7 + Ext{w} * t.k8))))));
    return head + (tail + (head + tail) * w * K);
  }
};
using NearOneStages =
    frame::Pipeline<&NearOne::decompose, &NearOne::locate_root, &NearOne::split_root,
                    &NearOne::start_root, &NearOne::rebuild>;

template <class T>
struct AcoshKernel {
  using Element = AcoshElement<T>;
  using Chains = frame::Chains<frame::Chain<Element, StagesOf<Element, &Element::take_logarithm>>,
                               frame::Chain<NearOne, NearOneStages>>;

  // Near one from the lead word behind that of 1 on.
  DAKVM_INLINE static int32_t chain_of(const AcoshTable&, Bits<T> x) {
    constexpr uint32_t one = Bits<T>::bias << Bits<T>::fraction_bits;
    constexpr uint32_t middle = one + (1u << (Bits<T>::fraction_bits - 4));
    const int32_t chain = x.lead() < middle;
    return x.lead() - (one + 1) < large_lead<T> - (one + 1) ? chain : 2;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const AcoshTable& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    const Ext x = load(src);
    if (bits.is_nan() || (bits.is_infinity() && !bits.is_negative())) {
      *dst = narrow<T>(x + x);
      return Status::ok;
    }
    if (x < t.one) {
      *dst = narrow<T>(load(&t.zero) / load(&t.zero));
      return Status::domain;
    }
    *dst = narrow<T>(x == t.one       ? Ext{t.zero}
                     : x < t.near_one ? near_one(t, src)
                                      : Element::ln_of_twice(t, x));
    return Status::ok;
  }

 private:
  DAKVM_INLINE static Ext near_one(const AcoshTable& t, const T* x) {
    NearOne element;
    element.start(t, x);
    return NearOneStages::run(element, t);
  }
};

}  // namespace dakvm::asinhacosh
