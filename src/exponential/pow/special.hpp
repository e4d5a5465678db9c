// What the power functions of both types share: integer exponents, and every case that needs no
// logarithm.
//
// Special    In this order: x = 1 and y = 0 give 1 even for NaN; NaN; infinities; zeros, of which a
//            negative power is outside the domain; x < 0 under a y that is no integer, outside the
//            domain too; x = -1. Overflow and underflow are not exceptional.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::pow {
using namespace x87;

enum class Integer { no, odd, even };

// Numbers of 2^53 (32f 2^24) and above are even; infinities and NaN are no integers.
DAKVM_INLINE Integer kind_of(Bits<double> y) {
  if (y.is_zero()) return Integer::even;
  const uint32_t e = y.exponent() - 1023;
  if (e >= 1024) return Integer::no;  // below 1, infinite or NaN
  if (e >= 53) return Integer::even;
  if (e <= 20) {
    const uint32_t fraction = (e < 20 ? y.high << (12 + e) : 0) | y.low;
    if (fraction != 0) return Integer::no;
    return y.high << (e + 11) >> 31 != 0 ? Integer::odd : Integer::even;
  }
  const uint32_t tail = y.low << (e - 21);
  if (tail << 1 != 0) return Integer::no;
  return tail != 0 ? Integer::odd : Integer::even;
}

DAKVM_INLINE Integer kind_of(Bits<float> y) {
  if (y.is_zero()) return Integer::even;
  const uint32_t e = y.exponent() - 127;
  if (e >= 128) return Integer::no;
  if (e >= 24) return Integer::even;
  // The bit of weight 1 comes to bit 31, the fraction below it.
  const uint32_t tail = (y.word | 0x800000) << (e + 8);
  if (tail << 1 != 0) return Integer::no;
  return tail != 0 ? Integer::odd : Integer::even;
}

// Pow: an exponent in each element.
template <class Table>
struct Varying {
  const Table& table;
};

// Powx: one exponent, kept by its words, because a load would make a signalling NaN quiet.
template <class T, class Table>
struct Fixed {
  const Table& table;
  T y;
  Integer kind;

  DAKVM_INLINE Fixed(const Table& t, const T* exponent) : table(t) {
    __builtin_memcpy(&y, exponent, sizeof y);
    kind = kind_of(Bits<T>::read(exponent));
  }
};

// |x| is a normal number other than 1.
DAKVM_INLINE bool is_general(Bits<double> x) {
  return x.magnitude() - 0x00100000 < 0x7ff00000 - 0x00100000 &&
         ((x.magnitude() ^ 0x3ff00000) | x.low) != 0;
}
DAKVM_INLINE bool is_general(Bits<float> x) {
  return x.magnitude() - 0x00800000 < 0x7f800000 - 0x00800000 && x.magnitude() != 0x3f800000;
}

DAKVM_INLINE bool is_unit(Bits<double> x) { return x.magnitude() == 0x3ff00000 && x.low == 0; }
DAKVM_INLINE bool is_unit(Bits<float> x) { return x.magnitude() == 0x3f800000; }

// Stores x^y for any two numbers; `general(negative)` is asked for the cases that need a logarithm,
// x subnormal included.
template <class T, class Table, class General>
DAKVM_INLINE Status pow_scalar(const Table& t, const T* x, const T* y, T* z, General general) {
  const auto xb = Bits<T>::read(x), yb = Bits<T>::read(y);
  const auto kind = kind_of(yb);
  const bool negative = xb.is_negative() && kind == Integer::odd;
  const Ext sgn = negative ? t.minus_one : t.one;
  const auto give = [&](Ext result, Status status = Status::ok) {
    *z = narrow<T>(result);
    return status;
  };
  const bool finite = xb.is_finite() && yb.is_finite();
  const bool unit = is_unit(xb);
  if (yb.is_zero() || (unit && (!xb.is_negative() || !finite))) return give(t.one);
  // Loads stay below: one of a signalling NaN raises invalid, and compilers take loads for
  // harmless.
  settle(x);
  settle(y);
  if (xb.is_nan() || yb.is_nan()) return give(load(x) + load(y));
  if (xb.is_zero()) {
    const Ext square = Ext{opaque(*x)} * opaque(*x);
    if (!yb.is_negative()) return give(square * sgn);
    return give(sgn / square, Status::domain);
  }
  if (!finite) {
    const bool grows = yb.is_negative() == (xb.exponent() < Bits<T>::bias);
    if (!grows) return give(t.zero * sgn);
    return give((__builtin_fabsl(*x) + __builtin_fabsl(*y)) * sgn);
  }
  if (xb.is_negative() && kind == Integer::no)
    return give(load(&t.zero) / load(&t.zero), Status::domain);
  if (unit) return give(sgn);
  return give(general(negative));
}

}  // namespace dakvm::pow
