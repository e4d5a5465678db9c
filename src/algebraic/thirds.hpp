// The exponent of a number in thirds: x = +-m 2^(3q + r), m in [1, 2), r one of 0, 1, 2.
#pragma once

#include "x87/bits.hpp"

namespace dakvm::algebraic {
using namespace x87;

struct Thirds {
  uint32_t r;
  uint32_t q;  // plus 341
};

template <class T>
DAKVM_INLINE Thirds thirds_of(Bits<T> x) {
  static_assert(Bits<double>::bias == 3 * 341);
  const uint32_t biased = x.exponent() + (Bits<double>::bias - Bits<T>::bias);
  return {biased % 3, biased / 3};
}

// Neither zero nor subnormal, infinite or a NaN.
template <class T>
DAKVM_INLINE bool is_normal(Bits<T> x) {
  constexpr uint32_t binade = 1u << Bits<T>::fraction_bits;
  return x.magnitude() - binade < (2 * Bits<T>::bias) * binade;
}

}  // namespace dakvm::algebraic
