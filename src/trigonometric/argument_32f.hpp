// What sine, cosine and tangent of floats share: the multiple of pi or pi/2 next to an argument.
#pragma once

#include "frame/frame.hpp"
#include "trigonometric/scalar/scalar.hpp"

namespace dakvm::trig {
using namespace x87;

// An argument with the nearest integer N to a multiple of it; N stands in the low bits of N plus
// 1.5 * 2^23.
struct Shifted {
  float x, sum;

  DAKVM_INLINE void take(const float* src, Ext multiple, double shifter) {
    x = narrow<float>(*src);
    sum = narrow<float>(multiple + shifter);
  }
  DAKVM_INLINE uint32_t N() const { return Bits<float>::read(&sum).word; }
  DAKVM_INLINE Ext n(double shifter) const { return Ext{sum} - shifter; }
};

}  // namespace dakvm::trig
