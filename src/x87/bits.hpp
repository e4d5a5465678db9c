// The words of a double or float, read from and written to memory by integer instructions. A number
// copied this way keeps its bits; one copied through a register loses the signalling of a NaN.
#pragma once

#include <cstdint>

#include "x87/x87.hpp"

namespace dakvm::x87 {

template <class T>
struct Bits;

template <>
struct Bits<double> {
  uint32_t low, high;

  static constexpr uint32_t bias = 1023;
  static constexpr int fraction_bits = 20;  // those in the high word

  DAKVM_INLINE static Bits read(const double* number) {
    // Word by word: g++ keeps a whole copied record in memory.
    const auto* bytes = reinterpret_cast<const char*>(number);
    Bits bits;
    __builtin_memcpy(&bits.low, bytes, sizeof bits.low);
    __builtin_memcpy(&bits.high, bytes + sizeof bits.low, sizeof bits.high);
    return bits;
  }

  DAKVM_INLINE uint32_t magnitude() const { return high & 0x7fffffff; }
  DAKVM_INLINE uint32_t exponent() const { return magnitude() >> fraction_bits; }
  DAKVM_INLINE bool is_negative() const { return high >> 31 != 0; }
  DAKVM_INLINE bool is_zero() const { return (magnitude() | low) == 0; }
  DAKVM_INLINE bool is_finite() const { return magnitude() < 0x7ff00000; }
  DAKVM_INLINE bool is_infinity() const { return magnitude() == 0x7ff00000 && low == 0; }
  DAKVM_INLINE bool is_nan() const { return !is_finite() && !is_infinity(); }

  // The first word that holds sign and exponent.
  DAKVM_INLINE uint32_t lead() const { return high; }
};

template <>
struct Bits<float> {
  uint32_t word;

  static constexpr uint32_t bias = 127;
  static constexpr int fraction_bits = 23;

  DAKVM_INLINE static Bits read(const float* number) {
    Bits bits;
    __builtin_memcpy(&bits, number, sizeof bits);
    return bits;
  }

  DAKVM_INLINE uint32_t magnitude() const { return word & 0x7fffffff; }
  DAKVM_INLINE uint32_t exponent() const { return magnitude() >> fraction_bits; }
  DAKVM_INLINE bool is_negative() const { return word >> 31 != 0; }
  DAKVM_INLINE bool is_zero() const { return magnitude() == 0; }
  DAKVM_INLINE bool is_finite() const { return magnitude() < 0x7f800000; }
  DAKVM_INLINE bool is_infinity() const { return magnitude() == 0x7f800000; }
  DAKVM_INLINE bool is_nan() const { return magnitude() > 0x7f800000; }

  DAKVM_INLINE uint32_t lead() const { return word; }
};

// The low word of a stored sum with a shifter: an integer in two's complement.
DAKVM_INLINE uint32_t low_word(const double& stored) { return Bits<double>::read(&stored).low; }

// Writes a number word by word. A double that is written in two halves and loaded at once waits for
// both stores to leave the processor: load it a stage later.
DAKVM_INLINE void put_words(double& number, uint32_t high, uint32_t low) {
  const Bits<double> bits{low, high};
  __builtin_memcpy(&number, &bits, sizeof number);
}

DAKVM_INLINE void put_word(float& number, uint32_t word) {
  __builtin_memcpy(&number, &word, sizeof number);
}

// 2^(biased - 1023), for biased in [1, 2046]; of larger numbers the low 11 bits count.
DAKVM_INLINE void put_power_of_two(double& number, uint32_t biased) {
  put_words(number, (biased & 0x7ff) << 20, 0);
}

// A number returned in the register where its type is returned, without the load that would raise
// invalid for a signalling NaN: on i386 that register is st(0), filled from an 80-bit image.
#ifdef __i386__
namespace detail {
struct [[gnu::packed]] Image {
  uint64_t significand;
  uint16_t sign_exponent;
};

template <class T>
DAKVM_INLINE T load_image(bool negative, uint32_t exponent, uint32_t bias, uint32_t top,
                          uint64_t significand) {
  // Subnormal numbers are normalised: an 80-bit image with a clear leading bit and a nonzero
  // exponent field would not be a number.
  uint32_t wide = 0;
  if (exponent == top) {
    wide = 0x7fff;
    significand |= uint64_t{1} << 63;
  } else if (exponent != 0) {
    wide = exponent - bias + 0x3fff;
    significand |= uint64_t{1} << 63;
  } else if (significand != 0) {
    wide = 1 - bias + 0x3fff;
    for (; significand >> 63 == 0; significand <<= 1) --wide;
  }
  const Image image{significand, static_cast<uint16_t>(wide | (negative ? 0x8000u : 0u))};
  T number;
  asm("fldt %1" : "=t"(number) : "m"(image));
  return number;
}
}  // namespace detail

DAKVM_INLINE double as_returned(Bits<double> bits) {
  const uint64_t fraction = (uint64_t{bits.high & 0xfffff} << 32 | bits.low) << 11;
  return detail::load_image<double>(bits.is_negative(), bits.exponent(), 1023, 0x7ff, fraction);
}

DAKVM_INLINE float as_returned(Bits<float> bits) {
  const uint64_t fraction = uint64_t{bits.word & 0x7fffff} << 40;
  return detail::load_image<float>(bits.is_negative(), bits.exponent(), 127, 0xff, fraction);
}
#else
DAKVM_INLINE double as_returned(Bits<double> bits) {
  double number;
  put_words(number, bits.high, bits.low);
  return number;
}
DAKVM_INLINE float as_returned(Bits<float> bits) {
  float number;
  put_word(number, bits.word);
  return number;
}
#endif

}  // namespace dakvm::x87
