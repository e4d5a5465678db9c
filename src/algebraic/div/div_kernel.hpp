// a / b for one element: one division, and a search for the zero divisor.
//
// Special    A zero divisor under a finite dividend is a singularity, 0/0 included.
//            In double precision the divisor is looked at again after the store. Where the
//            destination is the divisor's array, what it finds is the quotient: a quotient of 0
//            or NaN counts as a zero divisor then, and the infinity of 1/0 does not.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::div {
using namespace x87;

template <class T>
struct Table {
  T zero;  // what a divisor must not be
};

template <class T>
struct Kernel;

template <>
struct Kernel<double> {
  DAKVM_INLINE static Status apply(const Table<double>& t, const double* a, const double* b,
                                   double* r) {
    const auto dividend = Bits<double>::read(a), divisor = Bits<double>::read(b);
    *r = narrow<double>(load(a) / load(b));
    const auto again = Bits<double>::read(b);
    // One compare for the ordinary divisor: neither of the zeros' high word nor infinite nor NaN.
    if (2 * again.high - 1 < 2 * 0x7ff00000u - 1) [[likely]]
      return Status::ok;
    const bool zero_or_nan = again.is_nan() || load(b) == t.zero;
    return dividend.is_finite() && divisor.is_finite() && zero_or_nan ? Status::singularity
                                                                      : Status::ok;
  }
};

template <>
struct Kernel<float> {
  DAKVM_INLINE static Status apply(const Table<float>&, const float* a, const float* b, float* r) {
    const bool singular = Bits<float>::read(b).is_zero() && Bits<float>::read(a).is_finite();
    *r = narrow<float>(load(a) / load(b));
    return singular ? Status::singularity : Status::ok;
  }
};

}  // namespace dakvm::div
