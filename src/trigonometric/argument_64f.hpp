// What sine, cosine and tangent of doubles share: the way into their chains, and who stays outside.
#pragma once

#include "frame/frame.hpp"
#include "trigonometric/reduce/reduce.hpp"

namespace dakvm::trig {
using namespace x87;

using reduce::Argument;

// The first stage of a chain whose elements begin with an Argument y, which is x itself: numbers
// from `wide` (a high word) on are reduced by pi/2.
template <class Element, uint32_t wide>
DAKVM_INLINE void reduce_wide(Element* elements, int32_t count) {
  Argument* found[frame::longest_block];
  int32_t length = 0;
  for (int32_t k = 0; k < count; ++k) {
    found[length] = &elements[k].y;
    length += Bits<double>::read(&elements[k].y.hi).magnitude() >= wide;
  }
  if (length != 0) [[unlikely]]
    reduce::by_half_pi(found, length);
}

// Finite, and not below 2^-252.
DAKVM_INLINE bool is_ordinary(Bits<double> x) {
  constexpr uint32_t least = 0x30300000;
  return x.magnitude() - least < 0x7ff00000 - least;
}

// Below 2^-252 sine and tangent are x, and inexact, of subnormal numbers an underflow.
template <class Table>
DAKVM_INLINE Ext tiny_odd(const Table& t, Bits<double> bits, Ext x) {
  return bits.is_zero() ? x : (t.scale * x - x) * t.unscale;
}

// NaN and infinities; the results of the others are what `store_tiny` stores.
template <class Table, class StoreTiny, class... Destinations>
DAKVM_INLINE Status settle_special(const Table& t, const double* src, StoreTiny&& store_tiny,
                                   Destinations*... dst) {
  const auto bits = Bits<double>::read(src);
  const Ext x = load(src);
  if (bits.is_finite()) {
    store_tiny(bits, x);
    return Status::ok;
  }
  const Ext nan = bits.is_nan() ? x * x : x * t.zero;
  ((*dst = narrow<double>(nan)), ...);
  return bits.is_nan() ? Status::ok : Status::domain;
}

// apply of an odd function.
template <class Table>
DAKVM_INLINE Status settle_special_odd(const Table& t, const double* src, double* dst) {
  return settle_special(
      t, src, [&](auto bits, Ext x) { *dst = narrow<double>(tiny_odd(t, bits, x)); }, dst);
}

}  // namespace dakvm::trig
