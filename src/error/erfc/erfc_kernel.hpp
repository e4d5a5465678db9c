// erfc(x) for one element; every grade and both types share this file.
//
// Method     y = |x|. Row n serves (1 + y)^4 in [2^n, 2^(n + 1)), with t = a y + b in
//            [-9/16, 9/16]:
//                erfc(y) = R e,  R = c0 + t (c1 + t (... (c5 + t P(t)))),
//            P of degree 9, c0 to c5 in two parts. e is 1 in rows 0 to 5 (y < 1.83), e^(-y^2) in
//            rows 6 to 19:
//                -y^2 = N ln2/64 + r with N = nearest(-64 y^2/ln2) = 64 M + j, 0 <= j < 64,
//                e = 2^M 2^(j/64) (1 + q),  q = e^r - 1 of degree 6,  |r| <= 0.00542.
//            Rows 0 to 5 take the same way with N = r = 0. A negative x gives 2 - erfc(y).
// Exactness  A float's 24 bits are the head of a value, its difference from the value the tail.
//            Products of two heads, and of a head with the 26 bits of 2^(j/64), are exact. So is
//            c_k - head + product: the partial sums are no more than twice as large as c_k. step_hi
//            has 36 bits and N 17, so N step_hi is exact, and the square of the head of y too.
// Error      Fits 2^-69.7 or less, in row 5 2^-64.3; the terms of c4 and c5 in one register 2^-69,
//            tails 2^-77, q in a register 2^-71.5; the rounding of 64 bits before the store.
//            Subnormal results are rounded once. Largest seen 0.5004 ulp.
// Special    NaN, infinities, |x| < 2^-70, results 2 (x <= -5.86...), subnormal results
//            (x >= 26.54...), underflow (x >= 27.22..., 32f 10.05...): apply.
// Source     P. T. P. Tang, ACM TOMS 15 (1989) 144-157, for the exponential. Rows:
//            tools/gentables/erfc.cpp.
#pragma once

#include "frame/frame.hpp"
#include "x87/double_double.hpp"

namespace dakvm::erfc {
using namespace x87;

struct Row {
  double a, b;
  double c[6][2];  // high and low part
  double d[10];
};

struct Table {
  Row rows[20];
  double exponential[5];              // e^r - 1 = r + r^2 (1/2 + ...)
  double pow2[64][2];                 // 2^(j/64), the high part of 26 bits
  double step_hi, step_lo, inv_step;  // ln2/64 in two parts, 64/ln2
  double lower;                       // 2^-200
  double shifter, splitter;           // 1.5 * 2^52, 2^27 + 1
  double zero;
  double least;  // its square underflows
  double one, minus_one, two;
  double underflow, few_bits, subnormal, two_from;  // bounds on x, which belong to what they bound
};
static_assert(sizeof(Table) == 628 * sizeof(double));

constexpr int first_scaled = 6;  // from this row on e is e^(-y^2)

struct Element {
  double y;
  double base;           // 0, or 2 for negative x
  double power;          // (1 + y)^4
  double exponent_root;  // y, or 0 where e is 1
  double t, t_tail;
  double rest;   // of the partial sum behind `head`
  double N;      // shifted
  double scale;  // 2^M, negative for negative x
  const Row* row;
  float t_head, root_head, head;
  uint32_t negative, step;

  template <class T>
  DAKVM_INLINE void start(const Table&, const T* src) {
    const auto x = Bits<T>::read(src);
    negative = x.lead() & 0x80000000;
    const auto magnitude = widened_magnitude(x);
    put_words(y, magnitude.high, magnitude.low);
    put_words(base, negative >> 1, 0);
  }

  DAKVM_INLINE void raise(const Table& t) {
    const Ext square = (t.one + y) * (t.one + y);
    power = narrow<double>(square * square);
  }
  DAKVM_INLINE void reduce(const Table& t) {
    const uint32_t n = Bits<double>::read(&power).exponent() - Bits<double>::bias;
    row = &t.rows[n];
    const uint32_t mask = n < first_scaled ? 0 : 0xffffffff;
    const auto bits = Bits<double>::read(&y);
    put_words(exponent_root, bits.high & mask, bits.low & mask);
    const Ext reduced = row->a * Ext{y} + row->b;
    t_head = narrow<float>(reduced);
    this->t = narrow<double>(reduced);
  }
  DAKVM_INLINE void sum_polynomial(const Table& t) {
    settle(&t);
    const auto& d = row->d;
    const Ext u = this->t;
    t_tail = narrow<double>(row->a * Ext{y} + (row->b - Ext{t_head}));
    const auto& c = row->c;
    Ext P = d[9];
    for (int k = 8; k >= 0; --k) P = P * u + d[k];
    const Ext S = c[4][0] + (c[4][1] + u * (c[5][0] + (c[5][1] + u * P)));
    head = round_to_float(S);
    rest = narrow<double>(S - head);
  }
  DAKVM_INLINE void add_c3(const Table& t) {
    add_term(row->c[3]);
    const Ext root = exponent_root;
    root_head = narrow<float>(root);
    N = narrow<double>(t.shifter - root * root * t.inv_step);
  }
  DAKVM_INLINE void add_c2(const Table&) {
    add_term(row->c[2]);
    step = low_word(N) % 64;
    put_scale(0);
  }
  DAKVM_INLINE void add_c1(const Table&) { add_term(row->c[1]); }
  DAKVM_INLINE void add_c0(const Table&) { add_term(row->c[0]); }

  DAKVM_INLINE Ext rebuild(const Table& t) const {
    settle(&t);
    const auto [lead, tail] = product(t);
    const Ext a = lead * scale, b = tail * scale;
    const double sum = round_to_double(base + a);
    return sum + (((base - Ext{sum}) + a) + b);
  }
  Ext rebuild_subnormal(const Table& t, bool few_bits) {
    put_scale(200);
    settle(this);
    const auto [lead, tail] = product(t);
    const Ext a = lead * scale, b = tail * scale;
    if (!few_bits) return scaled_to_subnormal(a, b, t.splitter, t.lower);
    const Ext result = (a + b) * t.lower;
    return result + result * result;  // inexact, whatever the sum was
  }

 private:
  // 2^(M + raised) with the sign.
  DAKVM_INLINE void put_scale(uint32_t raised) {
    const uint32_t M = static_cast<uint32_t>(static_cast<int32_t>(low_word(N)) >> 6);
    put_words(scale, negative | (M + raised + Bits<double>::bias) << 20, 0);
  }

  // The partial sum head + rest becomes c + t (head + rest).
  DAKVM_INLINE void add_term(const double (&c)[2]) {
    const Ext product = Ext{t_head} * head;
    const Ext next = round_to_float(c[0] + product);
    rest =
        narrow<double>(((c[0] - next) + product) + (Ext{t_tail} * head + (Ext{t} * rest + c[1])));
    head = narrow<float>(next);
  }

  struct Parts {
    Ext lead, tail;
  };
  // R e 2^-M; the lead is exact and has 50 bits.
  DAKVM_INLINE Parts product(const Table& t) const {
    const Ext root = exponent_root, h = root_head, n = Ext{N} - t.shifter;
    const Ext r = -((n * t.step_hi + h * h) + ((root - h) * (root + h) + n * t.step_lo));
    const auto& e = t.exponential;
    const Ext q = r + ((((e[4] * r + e[3]) * r + e[2]) * r + e[1]) * r + e[0]) * r * r;
    const auto& [hi, lo] = t.pow2[step];
    const Ext tail = lo + (Ext{hi} + lo) * q;
    return {Ext{head} * hi, rest * (hi + tail) + head * tail};
  }
};

template <class T>
struct Kernel {
  using Element = erfc::Element;
  using Stages =
      frame::Pipeline<&Element::raise, &Element::reduce, &Element::sum_polynomial, &Element::add_c3,
                      &Element::add_c2, &Element::add_c1, &Element::add_c0, &Element::rebuild>;

  // 2^-70 <= |x|, below the first bound of its side; of the bounds their high words.
  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<T> x) {
    constexpr uint32_t least = (Bits<double>::bias - 70) << Bits<double>::fraction_bits;
    constexpr uint32_t above = sizeof(T) == sizeof(double) ? 0x403a8b12 : 0x40241bbf;
    constexpr uint32_t below = 0x4017744f;
    const uint32_t sign = x.lead() >> 31;
    return widened_magnitude(x).high - least < above - least - sign * (above - below);
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const T* src, T* dst) {
    const auto bits = Bits<T>::read(src);
    if (bits.is_infinity()) {
      *dst = narrow<T>(bits.is_negative() ? t.two : t.zero);
      return Status::ok;
    }
    const Ext x = load(src);
    if (bits.is_nan()) {
      *dst = narrow<T>(x * x);
    } else if (bits.exponent() < Bits<T>::bias - 70) {
      *dst = narrow<T>(t.one + x);
    } else if (x <= t.two_from) {
      *dst = narrow<T>(t.two - Ext{opaque(t.least)});
    } else if (x >= t.underflow) {
      *dst = narrow<T>(Ext{opaque(t.least)} * opaque(t.least));
      return Status::underflow;
    } else {
      Element element;
      element.start(t, src);
      settle(&element);
      Stages::advance(&element, 1, t);
      *dst = narrow<T>(x >= t.subnormal ? element.rebuild_subnormal(t, x > t.few_bits)
                                        : element.rebuild(t));
    }
    return Status::ok;
  }
};

}  // namespace dakvm::erfc
