// artanh(x) for one element in double precision.
//
// Method     With y = |x|, from 1/16 on,
//                artanh(y) = ln((1 + y)/(1 - y))/2
//            where the quotient is a product of parts, N 1/D = (N_hi + N_lo) (r_hi + r_lo), and
//            r_hi + r_lo is 1/D_hi and one step of Newton's iteration. Below,
//                artanh(y) = y + y s P(s),  s = y^2
//            with P of degree 4.
// Exactness  1 + y and 1 - y have at most 58 bits. N_hi, D_hi, r_hi have 26, so N_hi r_hi and
//            D_hi r_hi are exact, and so is the head of the quotient less N_hi r_hi.
// Error      quotient 2^-78, logarithm 2^-68, relative to a result of 1/16 2^-64, then the rounding
//            of 64 bits before the store; the small arguments' polynomial 2^-61.5.
// Special    |x| < 1/16, |x| >= 1, NaN: apply.
// Source     T. J. Dekker, Numer. Math. 18 (1971) 224-242, for the parts; the logarithm:
//            inverse/table_log.hpp. Table: tools/gentables/atanh.cpp.
#pragma once

#include "inverse/table_log.hpp"
#include "x87/double_double.hpp"

namespace dakvm::atanh {
using namespace x87;

struct Table {
  log::Row rows[65];
  double p1, p2, p3, p4, p5;          // y + y^3 (p1 + p2 y^2 + ... + p5 y^8)
  double b2, b3, b4, b5, b6, b7, b8;  // ln(1 + u) = u + b2 u^2 + ... + b8 u^8
  double tiny, small;                 // lower bounds on y of the polynomial and the logarithm
  double one, zero, half;
  double log_2_hi, log_2_lo;
  double shifter, splitter;  // 2^46 + 1, 2^21
  double halver;             // 2^27 + 1 splits a double in the middle
};
static_assert(sizeof(Table) == 217 * sizeof(double));

// One number with 1/16 <= |x| < 1 on its way.
struct Element : table_log::Logarithm<Table, double> {
  double y, signed_half;
  Split N_parts, D_parts, r_parts;
  double quotient_ln;

  DAKVM_INLINE void start(const Table&, const double* x) {
    const auto bits = Bits<double>::read(x);
    put_magnitude(y, bits);
    put_signed_power(signed_half, bits, -1);
  }

  DAKVM_INLINE void form_quotient(const Table& t) {
    N_parts.multiply(t.one + Ext{y}, t.halver);
    D_parts.multiply(t.one - Ext{y}, t.halver);
  }
  DAKVM_INLINE void cut_quotient(const Table& t) {
    N_parts.subtract(t.one + Ext{y});
    D_parts.subtract(t.one - Ext{y});
  }
  // Divided twice: division runs beside the other operations, an 80-bit field would not.
  DAKVM_INLINE void divide(const Table& t) { r_parts.multiply(t.one / D_parts.high(), t.halver); }
  DAKVM_INLINE void cut_reciprocal(const Table& t) { r_parts.subtract(t.one / D_parts.high()); }

  DAKVM_INLINE void multiply(const Table& t) {
    settle(&t);
    const Ext D_hi = D_parts.high();
    const Ext D_lo = (t.one - D_hi) - y;
    const Ext r_hi = r_parts.high();
    const Ext e = t.one - D_hi * r_hi - D_lo * r_hi;
    const Ext r_lo = e * (t.one + e) * r_hi;
    const Ext N_hi = N_parts.high();
    const Ext N_lo = (t.one - N_hi) + y;
    const Ext rest = N_lo * r_lo + N_hi * r_lo + N_lo * r_hi;
    const Ext product = N_hi * r_hi;
    head = round_to_double(rest + product);
    tail = narrow<double>(rest - round_to_double(head - product));
  }

  DAKVM_INLINE void take_logarithm(const Table& t) {
    settle(&t);
    quotient_ln = narrow<double>(ln(t));
  }
  DAKVM_INLINE Ext halve(const Table&) const { return Ext{quotient_ln} * signed_half; }
};

struct Kernel {
  using Element = atanh::Element;
  using Stages = frame::Pipeline<&Element::form_quotient, &Element::cut_quotient, &Element::divide,
                                 &Element::cut_reciprocal, &Element::multiply, &Element::locate,
                                 &Element::split, &Element::take_logarithm, &Element::halve>;

  DAKVM_INLINE static bool is_ordinary(const Table&, Bits<double> x) {
    return x.magnitude() - 0x3fb00000 < 0x3ff00000 - 0x3fb00000;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const Table& t, const double* src, double* dst) {
    const auto bits = Bits<double>::read(src);
    const Ext x = load(src);
    if (bits.is_nan()) {
      *dst = narrow<double>(x + x);
      return Status::ok;
    }
    const Ext y = __builtin_fabsl(x);
    if (y < t.small) {
      put_signed(*dst, round_to_double(small_artanh(t, bits, y)), bits);
      return Status::ok;
    }
    if (y == t.one) {
      *dst = narrow<double>(x / load(&t.zero));
      return Status::singularity;
    }
    *dst = narrow<double>(load(&t.zero) / load(&t.zero));
    return Status::domain;
  }

 private:
  DAKVM_INLINE static Ext small_artanh(const Table& t, Bits<double> bits, Ext y) {
    if (y < t.tiny) {
      if (bits.exponent() == 0) return y + round_to_double(y * y);
      return (t.one + y) * y;
    }
    const Ext s = y * y;
    return y + s * ((((t.p5 * s + t.p4) * s + t.p3) * s + t.p2) * s + t.p1) * y;
  }
};

}  // namespace dakvm::atanh
