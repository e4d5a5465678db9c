// The square root of z, or of z in two parts, from a table of short reciprocal roots. A piece of
// an element: the kernels that need a root run these stages between their own.
//
// Method     z = v 2^(2k), v in [1, 4). With T the table's 1/sqrt(v) at the nearest of 256 points
//            in each binade, and e = v T^2 - 1,
//                sqrt(v) = v T (1 + e)^(-1/2) = v T + v T g,  |e| <= 2^-8.59
//            where g = e (G0 + ... + G6 e^6) is the binomial series without its 1.
// Exactness  T has 11 fractional bits. v = vh + vl with 31 and 22 bits, so vh T^2 - 1, vl T^2 and
//            the root's head vh T are exact and fit a double.
// Error      series 2^-71, registers 2^-71: the tail is that good, relative to the root.
// Special    z = 0 gives 2^-511.5, which is nothing beside any other term.
// Source     Rows and series: tools/gentables/table_root.cpp.
#pragma once

#include "x87/bits.hpp"
#include "x87/double_double.hpp"

namespace dakvm::inverse {
using namespace x87;

// A table has
//   double root_seed[513];                  // for v = 1 + i/256, then from 256 on for 2 + i/128
//   double root_splitter, root_shifter;     // 2^22 + 1, 2^44 + 1: its unit is 1/256
//   double one, g0, g1, g2, g3, g4, g5, g6;
struct TableRoot {
  double mantissa, v;      // in [1, 2) and [1, 4)
  double scale, unscaled;  // 2^k and 2^-2k
  uint32_t base;           // first row of the binade
  double indexed;          // its low word holds the row
  Split cut;
  double a, b;   // e = a + b
  double inner;  // G2 + ... + G6 e^4: its part of the root is 2^-27, its rounding does not count

  // A stage ends behind each of these.
  // `sign`, a bit 31, becomes that of the root.
  DAKVM_INLINE void decompose(const double& z, uint32_t sign = 0) {
    const auto bits = Bits<double>::read(&z);
    const uint32_t e = bits.exponent() - Bits<double>::bias;
    const uint32_t p = e & 1;
    const auto k = static_cast<uint32_t>(static_cast<int32_t>(e - p) >> 1);
    base = 256 * p;
    put_mantissa(mantissa, bits, 0);
    put_mantissa(v, bits, p);
    put_words(scale, sign | (1023 + k) << 20, 0);
    put_power_of_two(unscaled, 1023 - 2 * k);
  }
  template <class Table>
  DAKVM_INLINE void locate(const Table& t) {
    indexed = narrow<double>(Ext{mantissa} + t.root_shifter);
    cut.multiply(v, t.root_splitter);
  }
  DAKVM_INLINE void split() { cut.subtract(v); }
  // The part of v behind its head. A second part of z is added to it, times 2^-2k (`unscaled`).
  DAKVM_INLINE Ext low() const { return v - cut.high(); }
  template <class Table>
  DAKVM_INLINE void start_series(const Table& t, Ext low) {
    const Ext T = seed(t);
    const Ext square = T * T;
    const Ext head = cut.high() * square - t.one;
    const Ext rest = square * low;
    const Ext e = head + rest;
    a = narrow<double>(head);
    b = narrow<double>(rest);
    inner = narrow<double>((((t.g6 * e + t.g5) * e + t.g4) * e + t.g3) * e + t.g2);
  }

  // The root is head + tail, with a head of 43 bits: from `split` on, and from `start_series` on.
  template <class Table>
  DAKVM_INLINE Ext head(const Table& t) const {
    return cut.high() * seed(t) * scale;
  }
  template <class Table>
  DAKVM_INLINE Ext tail(const Table& t, Ext low) const {
    const Ext T = seed(t);
    const Ext e = Ext{a} + b;
    const Ext g = e * (t.g0 + e * (t.g1 + e * inner));
    return (T * g * (cut.high() + low) + low * T) * scale;
  }

 private:
  template <class Table>
  DAKVM_INLINE Ext seed(const Table& t) const {
    return t.root_seed[base + (low_word(indexed) & 0x1ff)];
  }
};

}  // namespace dakvm::inverse
