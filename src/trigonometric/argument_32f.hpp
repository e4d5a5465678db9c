// What sine, cosine and tangent of floats share: the multiple of pi or pi/2 next to an argument.
#pragma once

#include "frame/frame.hpp"
#include "trigonometric/scalar/scalar.hpp"

namespace dakvm::trig {
using namespace x87;

// An integer N, as a float's sum with 1.5 * 2^23.
class Shifted {
 public:
  DAKVM_INLINE explicit Shifted(Ext sum) : sum_(narrow<float>(sum)) { settle(this); }

  DAKVM_INLINE uint32_t low_bits() const { return Bits<float>::read(&sum_).word; }
  DAKVM_INLINE Ext less(double shifter) const { return Ext{sum_} - shifter; }

 private:
  float sum_;
};

DAKVM_INLINE void flip_sign(float& number, uint32_t odd) {
  put_word(number, Bits<float>::read(&number).word ^ odd << 31);
}

}  // namespace dakvm::trig
