// Reduction of large arguments by pi/2, as the trigonometric kernels call it.
#pragma once

#include "dakvmpx.h"
#include "x87/bits.hpp"

namespace dakvm::reduce {

// x = q pi/2 + hi + lo, up to multiples of 2 pi.
struct Argument : ReducedArg {
  uint32_t q;

  DAKVM_INLINE void take(const double* x) {
    hi = x87::narrow<double>(*x);
    lo = 0;
    q = 0;
  }
};

// Reduces up to a block of numbers, each in its place: x finite, |x| >= pi/4.
void by_half_pi(Argument* const* arguments, int32_t count);

}  // namespace dakvm::reduce
