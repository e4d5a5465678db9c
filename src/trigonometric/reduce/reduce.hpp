// Reduction of large arguments by pi/2, as the trigonometric kernels call it.
#pragma once

#include "dakvmpx.h"
#include "x87/bits.hpp"

namespace dakvm::reduce {

// x is finite and |x| >= pi/4.
DAKVM_INLINE int32_t by_half_pi(x87::Bits<double> x, ReducedArg& reduced) {
  return gaxreduce_pio2d(x.low, x.high, &reduced);
}

}  // namespace dakvm::reduce
