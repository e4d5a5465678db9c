// sin(x) and cos(x) for one element, double precision; Sin, Cos and SinCos share this file.
//
// Method     From 2^17 on x is reduced by pi/2 first: x = q pi/2 + y, y = hi + lo; else q = 0,
//            y = x. With N = nearest(y 32/pi), y = N pi/32 + rh + rlow, |rh| <= 0.0491, and the row
//            j = 16 q + N (cosine j + 16) modulo 64,
//                sin(j pi/32 + r) = S cos(r) + C sin(r),  S + Sl and C = c + Cd from the table,
//            with Taylor polynomials for sin(rh) - rh and cos(rh) - 1. c is a power of two: c rh is
//            exact, and the two leading sums A = S + c rh, B = A + Cd rh keep their errors.
// Exactness  |N| < 2^21, P1 and P2 have 31 and 32 bits: N P1, N P2 and a = y - N P1 are exact.
// Error      The rounding of two terms Ps and Pc, below 0.0012, to double; Cd, Sl and the
//            registers. Pc is at most 2^-9.7, so that it adds 0.001 ulp where the result is near 1
//            and more where a row's result lies below its S. Largest seen 0.5285 ulp (sine), and
//            0.6011 ulp next to one multiple of pi/2 (cosine).
// Special    NaN, infinities, |x| < 2^-252: apply.
// Source     P. T. P. Tang, in Proc. 10th IEEE Symp. Computer Arithmetic (1991) 232-236, for
//            table-driven reduction. Tables: tools/gentables/sincos.cpp.
#pragma once

#include <utility>

#include "trigonometric/argument_64f.hpp"

namespace dakvm::sincos {
using namespace x87;

// At the angle j pi/32: cosine c + Cd, c the power of two nearest to it; sine S + Sl.
struct Row {
  double Cd, S, Sl, c;

  DAKVM_INLINE Ext C() const { return Ext{Cd} + c; }
};

struct SinTable {
  Row rows[64];
  double inv_step, shifter;    // 32/pi, 1.5 * 2^52
  double step1, step2, step3;  // P1, P2, P3: their sum is pi/32
  double s1, s2, s3, s4;       // sin(r) = r + s1 r^3 + ... + s4 r^9
  double c1, c2, c3, c4;       // cos(r) = 1 + c1 r^2 + ... + c4 r^8
  double scale, unscale;       // 2^55, 2^-55
  double one, zero, infinity;
};
static_assert(sizeof(SinTable) == 274 * sizeof(double));

struct CosTable {
  Row rows[64];
  double inv_step, shifter, step1, step2, step3;  // as above
  double s1, s2, s3, s4, c1, c2, c3, c4;
  double one, zero, infinity;
};
static_assert(sizeof(CosTable) == 272 * sizeof(double));

constexpr uint32_t wide = 0x41000000;  // 2^17

// Rows from the angle of the sine to that of the cosine.
constexpr uint32_t quarter_turn = 16;

// sin(r) - r and cos(r) - 1
template <class Table>
DAKVM_INLINE Ext sine_rest(const Table& t, Ext r, Ext z) {
  return (((t.s4 * z + t.s3) * z + t.s2) * z + t.s1) * z * r;
}
template <class Table>
DAKVM_INLINE Ext cosine_rest(const Table& t, Ext z) {
  return z * (((t.c4 * z + t.c3) * z + t.c2) * z + t.c1);
}

// One row's share of the polynomials.
struct Terms {
  double Ps, Pc;

  DAKVM_INLINE void set(const Row& row, Ext sine_rest, Ext cosine_rest) {
    Ps = narrow<double>(sine_rest * row.C());
    Pc = narrow<double>(cosine_rest * row.S);
  }
};

template <class Table>
struct Reduction {
  trig::Argument y;
  double shifted;  // its low word is N
  double n, a, m;  // N, y - N P1, N P2: doubles all of them

  DAKVM_INLINE void start(const Table&, const double* x) { y.take(x); }
  DAKVM_INLINE void round_to_integer(const Table& t) {
    shifted = narrow<double>(t.inv_step * Ext{y.hi} + t.shifter);
  }
  DAKVM_INLINE void subtract(const Table& t) {
    const Ext N = Ext{shifted} - t.shifter;
    n = narrow<double>(N);
    a = narrow<double>(y.hi - N * t.step1);
    m = narrow<double>(N * t.step2);
  }

  DAKVM_INLINE const Row& row(const Table& t, uint32_t turn) const {
    return t.rows[(16 * y.q + low_word(shifted) + turn) % 64];
  }
  DAKVM_INLINE Ext rh() const { return Ext{a} - m; }
  DAKVM_INLINE Ext rlow(const Table& t, Ext r) const {
    return ((a - r) - m) - n * Ext{t.step3} + y.lo;
  }
};

// S cos(r + rlow) + C sin(r + rlow). Each sum's error is computed at once, so that no value is
// spilled.
DAKVM_INLINE Ext sum(const Row& at, Ext r, Ext rlow, const Terms& terms) {
  const Ext first = at.c * r;
  const Ext A = at.S + first;
  const Ext lost_in_A = computed(first + (at.S - A));
  const Ext second = at.Cd * r;
  const Ext B = A + second;
  const Ext lost_in_B = computed(second + (A - B));
  const Ext D = rlow * (at.C() - r * at.S) + at.Sl;
  return B + (lost_in_B + (lost_in_A + (D + (Ext{terms.Ps} + terms.Pc))));
}

// Sine, or cosine with turn = quarter_turn.
template <class Table, uint32_t turn>
struct OneResult : Reduction<Table> {
  Terms terms;

  DAKVM_INLINE void evaluate(const Table& t) {
    settle(&t);
    const Ext r = this->rh(), z = r * r;
    terms.set(this->row(t, turn), sine_rest(t, r, z), cosine_rest(t, z));
  }
  DAKVM_INLINE Ext combine(const Table& t) const {
    settle(&t);
    const Ext r = this->rh();
    return sum(this->row(t, turn), r, this->rlow(t, r), terms);
  }

  using Stages = frame::Pipeline<&trig::reduce_wide<OneResult, wide>, &OneResult::round_to_integer,
                                 &OneResult::subtract, &OneResult::evaluate, &OneResult::combine>;
};

struct TwoResults : Reduction<SinTable> {
  Terms of_sine, of_cosine;
  double sine, cosine;

  DAKVM_INLINE void evaluate(const SinTable& t) {
    settle(&t);
    const Ext r = rh(), z = r * r;
    const Ext sine_part = sine_rest(t, r, z), cosine_part = cosine_rest(t, z);
    of_sine.set(row(t, 0), sine_part, cosine_part);
    of_cosine.set(row(t, quarter_turn), sine_part, cosine_part);
  }
  DAKVM_INLINE void combine(const SinTable& t) {
    settle(&t);
    const Ext r = rh(), low = rlow(t, r);
    sine = narrow<double>(sum(row(t, 0), r, low, of_sine));
    settle(&t);
    cosine = narrow<double>(sum(row(t, quarter_turn), r, low, of_cosine));
  }
  DAKVM_INLINE std::pair<Ext, Ext> results(const SinTable&) const { return {sine, cosine}; }

  using Stages = frame::Pipeline<&trig::reduce_wide<TwoResults, wide>,
                                 &TwoResults::round_to_integer, &TwoResults::subtract,
                                 &TwoResults::evaluate, &TwoResults::combine, &TwoResults::results>;
};

template <class Table, class ElementOf>
struct Chain {
  using Element = ElementOf;
  using Stages = typename Element::Stages;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<double> x) {
    return trig::is_ordinary(x);
  }
};

struct SinKernel : Chain<SinTable, OneResult<SinTable, 0>> {
  [[gnu::cold, gnu::noinline]] static Status apply(const SinTable& t, const double* src,
                                                   double* dst) {
    return trig::settle_special_odd(t, src, dst);
  }
};

struct CosKernel : Chain<CosTable, OneResult<CosTable, quarter_turn>> {
  [[gnu::cold, gnu::noinline]] static Status apply(const CosTable& t, const double* src,
                                                   double* dst) {
    return trig::settle_special(
        t, src, [&](auto, Ext x) { *dst = narrow<double>(t.one - __builtin_fabsl(x)); }, dst);
  }
};

struct SinCosKernel : Chain<SinTable, TwoResults> {
  [[gnu::cold, gnu::noinline]] static Status apply(const SinTable& t, const double* src,
                                                   double* sine, double* cosine) {
    const auto store_tiny = [&](auto bits, Ext x) {
      *sine = narrow<double>(trig::tiny_odd(t, bits, x));
      *cosine = narrow<double>(t.one - __builtin_fabsl(x));
    };
    return trig::settle_special(t, src, store_tiny, sine, cosine);
  }
};

}  // namespace dakvm::sincos
