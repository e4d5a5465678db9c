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
// A function that stays whole: not inlined, and not copied for constant arguments.
#ifdef __clang__
#define DAKVM_WHOLE [[gnu::noinline]]
#else
#define DAKVM_WHOLE [[gnu::noinline, gnu::noclone]]
#endif

namespace dakvm::x87 {

using Ext = long double;

// The value, out of the compiler's sight: an operation on it takes place when the program runs, and
// raises its flags.
template <class T>
DAKVM_INLINE T opaque(T value) {
  asm volatile("" : "+m"(value));
  return value;
}

// The number in a register. Of two NaN operands the unit returns the one with the larger
// significand, but prefers a quiet one; a load makes NaN quiet, a memory operand stays as it is.
// Loading both is what gives every compiler the same result.
template <class T>
DAKVM_INLINE Ext load(const T* number) {
  Ext value = *number;
  asm("" : "+t"(value));
  return value;
}

// The value, computed here, and what it was computed from is read anew if it is needed again.
// Compilers otherwise put off a computation to the only use of its result and keep its operands;
// one more than the registers hold is spilled, at the cost of five operations.
DAKVM_INLINE Ext computed(Ext value) {
  asm("" : "+t"(value) : : "memory");
  return value;
}

// The value as a store rounds it: for results, and for fields that a later stage loads. The value
// passes through st(0): where the operands come from single precision, compilers would otherwise
// carry out the whole operation in the result's type, on a unit with other flags and modes.
template <class T>
DAKVM_INLINE T narrow(Ext value) {
  asm("" : "+t"(value));
  return static_cast<T>(value);
}

// One store and one load, for a value that is used at once. The assembly keeps compilers from
// widening the unstored value again.
template <class T>
DAKVM_INLINE T rounded_to(Ext value) {
  T rounded = narrow<T>(value);
  asm("" : "+m"(rounded));
  return rounded;
}
DAKVM_INLINE double round_to_double(Ext value) { return rounded_to<double>(value); }
DAKVM_INLINE float round_to_float(Ext value) { return rounded_to<float>(value); }

// Everything that `object` holds is in memory here and is read from memory afterwards.
template <class T>
DAKVM_INLINE void settle(T* object) {
  asm volatile("" : : "r"(object) : "memory");
}

}  // namespace dakvm::x87
