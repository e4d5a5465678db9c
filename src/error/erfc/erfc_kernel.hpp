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
// Exactness  Values are split into a head of 26 bits and the rest; products of two heads are exact.
//            So is c_k - sum + product in a register, in this order: t times the rest is no more
//            than twice as large as c_k. step_hi has 36 bits and N 17, so N step_hi is exact, and
//            with it -h^2 - N step_hi, h the head of y.
// Error      Fits 2^-69.7 or less, in row 5 2^-64.3; tails 2^-80, q in a register 2^-71.5; the
//            rounding of 64 bits before the store, for subnormal results too. Largest seen
//            0.5005 ulp.
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

// In single precision only: the neighbours of 1 and 2, which round to them and raise inexact, as
// 1 + x and 2 - least do for both types.
template <class T>
struct Neighbours {};
template <>
struct Neighbours<float> {
  double of_one, of_two;
};

template <class T>
struct Table {
  Row rows[20];
  double exponential[5];              // e^r - 1 = r + r^2 (1/2 + ...)
  double pow2[64][2];                 // 2^(j/64), the high part of 26 bits
  double step_hi, step_lo, inv_step;  // ln2/64 in two parts, 64/ln2
  double lower;                       // 2^-200
  double shifter, splitter;           // 1.5 * 2^52, 2^27 + 1
  double zero;
  double least;  // its square underflows
  [[no_unique_address]] Neighbours<T> neighbours = {};
  double one, minus_one, two;
  double underflow, few_bits, subnormal, two_from;  // bounds on x, which belong to what they bound
};
static_assert(sizeof(Table<double>) == 628 * sizeof(double));
static_assert(sizeof(Table<float>) == 630 * sizeof(double));

constexpr int first_scaled = 6;  // from this row on e is e^(-y^2)

template <class T>
struct Element {
  using Table = erfc::Table<T>;

  Ext P;
  double y;
  double base;           // 0, or 2 for negative x
  double power;          // (1 + y)^4
  double exponent_root;  // y, or 0 where e is 1
  double t, t_head, t_tail;
  double sum, rest;                                         // the partial sum
  double N;                                                 // shifted
  double scale;                                             // 2^M, negative for negative x
  double growth, growth_tail;                               // 1 + q
  double e, e_tail;                                         // e 2^-M
  Split t_parts, root_parts, parts, growth_parts, e_parts;  // parts: of P or the partial sum
  const Row* row;
  uint32_t negative, step;

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
  DAKVM_INLINE void reduce(const Table& table) {
    const uint32_t n = Bits<double>::read(&power).exponent() - Bits<double>::bias;
    row = &table.rows[n];
    const uint32_t mask = n < first_scaled ? 0 : 0xffffffff;
    const auto bits = Bits<double>::read(&y);
    put_words(exponent_root, bits.high & mask, bits.low & mask);
    const Ext reduced = round_to_double(row->a * Ext{y} + row->b);
    t = narrow<double>(reduced);
    t_parts.multiply(reduced, table.splitter);
  }
  DAKVM_INLINE void split(const Table& table) {
    t_parts.subtract(t);
    root_parts.multiply(exponent_root, table.splitter);
  }
  DAKVM_INLINE void take_heads(const Table&) {
    const Ext head = t_parts.high();
    t_head = narrow<double>(head);
    t_tail = narrow<double>((t - head) + (row->a * Ext{y} + (row->b - Ext{t})));
    root_parts.subtract(exponent_root);
  }
  DAKVM_INLINE void sum_polynomial(const Table& table) {
    settle(&table);
    const auto& d = row->d;
    const Ext u = t;
    Ext p = d[9];
    for (int k = 8; k >= 0; --k) p = p * u + d[k];
    P = p;
    parts.multiply(p, table.splitter);
  }
  DAKVM_INLINE void split_polynomial(const Table& t) {
    parts.subtract(P);
    const Ext h = root_parts.high();
    N = narrow<double>(t.shifter - h * h * t.inv_step);
  }
  DAKVM_INLINE void add_c5(const Table& t) {
    const Ext h = parts.high();
    add_term(t, row->c[5], h, P - h);
  }
  DAKVM_INLINE void split_sum(const Table&) { parts.subtract(sum); }
  template <int k>
  DAKVM_INLINE void add(const Table& t) {
    const Ext h = parts.high();
    add_term(t, row->c[k], h, (sum - h) + rest);
  }

  DAKVM_INLINE void take_step(const Table& t) {
    split_sum(t);
    step = low_word(N) % 64;
    put_scale(0);
  }
  DAKVM_INLINE void sum_exponential(const Table& t) {
    const Ext root = exponent_root, h = root_parts.high(), l = root - h, n = Ext{N} - t.shifter;
    const Ext z_tail = h * l + l * l + l * h;
    const Ext r = ((-(h * h) - n * t.step_hi) - n * t.step_lo) - z_tail;
    const auto& c = t.exponential;
    const Ext q = r + r * r * (c[0] + r * (c[1] + r * (c[2] + r * (c[3] + r * c[4]))));
    const Ext rounded = round_to_double(t.one + q);
    growth = narrow<double>(rounded);
    growth_tail = narrow<double>(q - (rounded - t.one));
    growth_parts.multiply(rounded, t.splitter);
  }
  DAKVM_INLINE void split_growth(const Table& t) {
    split_sum(t);
    growth_parts.subtract(growth);
  }
  DAKVM_INLINE void take_power(const Table& t) {
    const Ext h = growth_parts.high(), l = (growth - h) + growth_tail;
    const auto& [hi, lo] = t.pow2[step];
    const Ext product = hi * h, product_tail = hi * l + lo * h + lo * l;
    const Ext rounded = round_to_double(product + product_tail);
    e = narrow<double>(rounded);
    e_tail = narrow<double>((product - rounded) + product_tail);
    e_parts.multiply(rounded, t.splitter);
  }
  DAKVM_INLINE void split_factors(const Table& t) {
    split_sum(t);
    e_parts.subtract(e);
  }
  DAKVM_INLINE Ext rebuild(const Table&) const {
    const auto [a, b] = product();
    const double lead = round_to_double(base + a);
    return lead + (((base - Ext{lead}) + a) + b);
  }
  Ext rebuild_subnormal(const Table& t, bool few_bits) {
    put_scale(200);
    settle(this);
    const auto [a, b] = product();
    const Ext raised = a + b;
    if (few_bits) {
      const Ext result = raised * t.lower;
      return result + result * result;  // inexact, whatever the sum was
    }
    // The head stays exact when it is scaled down, so that only the rest is rounded.
    const Ext head = head_of(raised, t.splitter);
    return round_to_double(head * t.lower) + Ext{round_to_double((raised - head) * t.lower)};
  }

 private:
  // 2^(M + raised) with the sign.
  DAKVM_INLINE void put_scale(uint32_t raised) {
    const uint32_t M = static_cast<uint32_t>(static_cast<int32_t>(low_word(N)) >> 6);
    put_words(scale, negative | (M + raised + Bits<double>::bias) << 20, 0);
  }

  // The partial sum becomes c + t (h + l).
  DAKVM_INLINE void add_term(const Table& t, const double (&c)[2], Ext h, Ext l) {
    const Ext th = t_head, tl = t_tail;
    const Ext product = th * h;
    const Ext next = round_to_double(c[0] + product);
    rest = narrow<double>(((c[0] - next) + product) + (th * l + tl * h + tl * l) + c[1]);
    sum = narrow<double>(next);
    parts.multiply(next, t.splitter);
  }

  struct Parts {
    Ext lead, tail;
  };
  // R e, the lead exact.
  DAKVM_INLINE Parts product() const {
    const Ext Rh = parts.high(), Rl = (sum - Rh) + rest;
    const Ext eh = e_parts.high(), el = (e - eh) + e_tail;
    return {Rh * eh * scale, (Rh * el + Rl * eh + Rl * el) * scale};
  }
};

template <class T>
struct Kernel {
  using Table = erfc::Table<T>;
  using Element = erfc::Element<T>;
  using Stages =
      frame::Pipeline<&Element::raise, &Element::reduce, &Element::split, &Element::take_heads,
                      &Element::sum_polynomial, &Element::split_polynomial, &Element::add_c5,
                      &Element::take_step, &Element::template add<4>, &Element::sum_exponential,
                      &Element::split_growth, &Element::template add<3>, &Element::split_sum,
                      &Element::template add<2>, &Element::split_sum, &Element::template add<1>,
                      &Element::take_power, &Element::split_sum, &Element::template add<0>,
                      &Element::split_factors, &Element::rebuild>;

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
      *dst = narrow<T>(load(&t.least) * load(&t.least));
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
