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

  DAKVM_INLINE bool is_positive_normal() const { return high - 0x00100000 < 0x7fe00000; }

  // The word that holds sign and exponent.
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

  DAKVM_INLINE bool is_positive_normal() const { return word - 0x00800000 < 0x7f000000; }

  DAKVM_INLINE uint32_t lead() const { return word; }
};

// Zero or subnormal once it is a double; no float but zero is.
DAKVM_INLINE bool is_below_normal_doubles(Bits<double> x) { return x.exponent() == 0; }
DAKVM_INLINE bool is_below_normal_doubles(Bits<float> x) { return x.is_zero(); }

// |x| as a double, for normal x.
DAKVM_INLINE Bits<double> widened_magnitude(Bits<double> x) { return {x.low, x.magnitude()}; }
DAKVM_INLINE Bits<double> widened_magnitude(Bits<float> x) {
  return {x.word << 29, (x.magnitude() >> 3) + ((Bits<double>::bias - Bits<float>::bias) << 20)};
}

// The low word of a stored sum with a shifter: an integer in two's complement.
DAKVM_INLINE uint32_t low_word(const double& stored) { return Bits<double>::read(&stored).low; }

// Writes a number word by word. A double that is written in two halves and loaded at once waits for
// both stores to leave the processor: load it a stage later.
DAKVM_INLINE void put_words(double& number, uint32_t high, uint32_t low) {
  const Bits<double> bits{low, high};
  __builtin_memcpy(&number, &bits, sizeof number);
}

// Likewise: loaded a stage later.
DAKVM_INLINE void put_high_word(double& number, uint32_t high) {
  __builtin_memcpy(reinterpret_cast<char*>(&number) + sizeof high, &high, sizeof high);
}

DAKVM_INLINE void put_word(float& number, uint32_t word) {
  __builtin_memcpy(&number, &word, sizeof number);
}

// The mantissa of x, in [1, 2), times 2^exponent; an exponent below zero wraps.
DAKVM_INLINE void put_mantissa(double& number, Bits<double> x, uint32_t exponent) {
  put_words(number, (x.high & 0xfffff) | (0x3ff00000 + (exponent << 20)), x.low);
}

DAKVM_INLINE void put_mantissa(double& number, Bits<float> x, uint32_t exponent) {
  put_words(number, (x.word >> 3 & 0xfffff) | (0x3ff00000 + (exponent << 20)), x.word << 29);
}

DAKVM_INLINE void put_mantissa(float& number, Bits<float> x, uint32_t exponent) {
  put_word(number, (x.word & 0x7fffff) | (0x3f800000 + (exponent << 23)));
}

// |x|
DAKVM_INLINE void put_magnitude(double& number, Bits<double> x) {
  put_words(number, x.magnitude(), x.low);
}
DAKVM_INLINE void put_magnitude(float& number, Bits<float> x) { put_word(number, x.magnitude()); }

// A magnitude with the sign of x, for results that are rounded before they are signed. A subnormal
// one never passes through a register, which would take hundreds of cycles.
DAKVM_INLINE void put_signed(double& number, double magnitude, Bits<double> x) {
  const auto bits = Bits<double>::read(&magnitude);
  put_words(number, bits.high | (x.high & 0x80000000), bits.low);
}
DAKVM_INLINE void put_signed(float& number, float magnitude, Bits<float> x) {
  put_word(number, Bits<float>::read(&magnitude).word | (x.word & 0x80000000));
}

// 2^exponent with the sign of x: the factor that gives an odd function's result its sign.
DAKVM_INLINE void put_signed_power(double& number, Bits<double> x, int32_t exponent) {
  put_words(number, (x.high & 0x80000000) | static_cast<uint32_t>(1023 + exponent) << 20, 0);
}
DAKVM_INLINE void put_signed_power(float& number, Bits<float> x, int32_t exponent) {
  put_word(number, (x.word & 0x80000000) | static_cast<uint32_t>(127 + exponent) << 23);
}

// 2^(biased - 1023), for biased in [1, 2046]; of larger numbers the low 11 bits count.
DAKVM_INLINE void put_power_of_two(double& number, uint32_t biased) {
  put_words(number, (biased & 0x7ff) << 20, 0);
}

// What a function returns for a number with given bits, so that no flag is raised on the way. On
// i386 a double or float is returned in st(0), as a long double is; loading it there from its own
// format would raise invalid for a signalling NaN, loading its 80-bit image does not.
#ifdef __i386__
template <class T>
using Returned = Ext;

namespace detail {
// `fraction` has its first bit in bit 62; `top` is the exponent field of infinities and NaN.
inline Ext image_of(bool negative, uint32_t exponent, uint32_t top, uint64_t fraction) {
  constexpr uint64_t leading_bit = uint64_t{1} << 63;
  const uint32_t rebias = 0x3fff - top / 2;
  uint32_t wide = 0;
  uint64_t significand = fraction;
  if (exponent != 0) {
    wide = exponent == top ? 0x7fff : exponent + rebias;
    significand |= leading_bit;
  } else if (fraction != 0) {  // subnormal there, normal here
    for (wide = rebias + 1; (significand & leading_bit) == 0; significand <<= 1) --wide;
  }
  const auto sign_exponent = static_cast<uint16_t>(wide | (negative ? 0x8000u : 0u));
  Ext image;
  auto* bytes = reinterpret_cast<char*>(&image);
  __builtin_memcpy(bytes, &significand, 8);
  __builtin_memcpy(bytes + 8, &sign_exponent, 2);
  return image;
}
}  // namespace detail

inline Ext as_returned(Bits<double> bits) {
  const uint64_t fraction = (uint64_t{bits.high & 0xfffff} << 32 | bits.low) << 11;
  return detail::image_of(bits.is_negative(), bits.exponent(), 0x7ff, fraction);
}
inline Ext as_returned(Bits<float> bits) {
  return detail::image_of(bits.is_negative(), bits.exponent(), 0xff,
                          uint64_t{bits.word & 0x7fffff} << 40);
}
#else
template <class T>
using Returned = T;

inline double as_returned(Bits<double> bits) {
  double number;
  put_words(number, bits.high, bits.low);
  return number;
}
inline float as_returned(Bits<float> bits) {
  float number;
  put_word(number, bits.word);
  return number;
}
#endif

}  // namespace dakvm::x87
