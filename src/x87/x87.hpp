// The x87 register as a C++ type, and the few things about it that C++ cannot say.
//
// Ext is a register: 64 significant bits (or what the caller's control word selects), 15 exponent
// bits. A double or float is memory: storing an Ext there is a rounding, and there is no other.
// Arithmetic is written on Ext alone; double arithmetic is never left to the compiler, because it
// rounds or does not round as it pleases.
#pragma once

#include <cstdint>

#define DAKVM_EXPORT extern "C" [[gnu::visibility("default")]]
#define DAKVM_INLINE [[gnu::always_inline]] inline

namespace dakvm::x87 {

using Ext = long double;

// The value, out of the compiler's sight: an operation on it takes place when the program runs, and
// raises its flags.
template <class T>
DAKVM_INLINE T opaque(T value) {
  asm volatile("" : "+m"(value));
  return value;
}

// One store and one load. The assembly keeps compilers from widening the unstored value again.
DAKVM_INLINE double round_to_double(Ext value) {
  auto rounded = static_cast<double>(value);
  asm("" : "+m"(rounded));
  return rounded;
}

DAKVM_INLINE float round_to_float(Ext value) {
  auto rounded = static_cast<float>(value);
  asm("" : "+m"(rounded));
  return rounded;
}

// Everything that `object` holds is in memory here and is read from memory afterwards.
template <class T>
DAKVM_INLINE void settle(T* object) {
  asm volatile("" : : "r"(object) : "memory");
}

}  // namespace dakvm::x87
