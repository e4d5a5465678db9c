// gaxdsqrt_scalar and gaxssqrt_scalar: square roots of single numbers, left unrounded in st(0).
//
// Method     double: 1/sqrt(m) by a quadratic on one of 128 intervals of the mantissa m, scaled by
//            the exponent, and one Newton step: sqrt(x) = x y (3/2 - x y^2 / 2).
//            float: sqrt(m) by a quadratic on one of 64 intervals, scaled by the exponent.
// Error      after a store: double 0.700 ulp, float 0.586 ulp (subnormal numbers 1.009, since the
//            raised argument is rounded).
// Special    subnormal numbers are raised first; NaN, infinities, negative numbers: *_Spec.
// Source     tools/gentables/sqrt_scalar.cpp.
#include "dakvmpx.h"
#include "x87/bits.hpp"
#include "x87/x87.hpp"

using namespace dakvm::x87;

namespace {

#include "algebraic/sqrt/sqrt_scalar.inc"

constexpr double dsqrt_dbScaleUp = 0x1p+996;
constexpr double dsqrt_dbScaleDown = 0x1p-498;
constexpr double newton_slope = -0.5;
constexpr double newton_offset = 1.5;

// For an even biased exponent (an odd power of two), then for an odd one.
constexpr double dsqrt_dbSqrt[2] = {0x1.6a09e667f3bcdp+0, 1.0};
constexpr double dbSqrt[2] = {0x1.6a09e667f3bcdp+0, 2.0};
constexpr double dbScaleUp = 1e42;
constexpr double dbScaledSqrt[2] = {1.414213562373095e-21, 2e-21};

// About 1/sqrt(x), for a positive normal number.
DAKVM_INLINE Ext reciprocal_root(Bits<double> x) {
  double m, scale;
  put_mantissa(m, x, 0);
  put_words(scale, 0x5fe00000 - (x.high >> 1 & 0x7ff00000), 0);
  const uint32_t j = x.high >> 13 & 0x7f;
  const Ext y = (Ext{dsqrt_dwA2[j]} * m + dsqrt_dwA1[j]) * m + dsqrt_dwA0[j];
  return y * scale * dsqrt_dbSqrt[x.high >> 20 & 1];
}

Ext _gaxdSqrt_Deno(double x, Bits<double> bits) {
  if (bits.is_zero()) return 0.0L;
  const double z = round_to_double(Ext{x} * dsqrt_dbScaleUp);
  const Ext y = reciprocal_root(Bits<double>::read(&z));
  return z * y * (Ext{newton_slope} * z * y * y + newton_offset) * dsqrt_dbScaleDown;
}

Ext _gaxdSqrt_Finite(double x, Bits<double> bits) {
  const Ext y = reciprocal_root(bits);
  return y * (Ext{newton_slope} * x * y * y + newton_offset) * x;
}

Ext _gaxdSqrt_Spec(double x, Bits<double> bits) {
  if (bits.is_nan()) return Ext{x} + x;
  if (bits.is_zero() || !bits.is_negative()) return x;
  double nan;
  put_words(nan, 0x7ff8a5a5, 0x5a5a5a5a);
  return nan;
}

// About sqrt(x), for a positive normal number, times what the factors hold beside the root of two.
DAKVM_INLINE Ext scaled_root(Bits<float> x, const double (&factors)[2]) {
  float m, scale;
  put_mantissa(m, x, 0);
  put_word(scale, (x.word >> 1 & 0x7f800000) + 0x1f800000);
  const uint32_t j = x.word >> 17 & 0x3f;
  return ((Ext{dwA2[j]} * m + dwA1[j]) * m + dwA0[j]) * factors[x.word >> 23 & 1] * scale;
}

Ext _gaxsSqrt_Deno(float x, Bits<float> bits) {
  if (bits.is_zero()) return 0.0L;
  const float z = round_to_float(Ext{x} * dbScaleUp);
  return scaled_root(Bits<float>::read(&z), dbScaledSqrt);
}

Ext _gaxsSqrt_Spec(float x, Bits<float> bits) {
  if (bits.is_negative() && !bits.is_zero() && !bits.is_nan()) {
    float nan;
    put_word(nan, 0xffc00000);
    return nan;
  }
  return round_to_float(Ext{x} + x);
}

}  // namespace

DAKVM_EXPORT long double gaxdsqrt_scalar(double x) {
  const auto bits = Bits<double>::read(&x);
  if (bits.high < 0x00100000) return _gaxdSqrt_Deno(x, bits);
  if (bits.high < 0x7ff00000) return _gaxdSqrt_Finite(x, bits);
  return _gaxdSqrt_Spec(x, bits);
}

DAKVM_EXPORT long double gaxssqrt_scalar(float x) {
  const auto bits = Bits<float>::read(&x);
  if (bits.word < 0x00800000) return _gaxsSqrt_Deno(x, bits);
  if (bits.word < 0x7f800000) return scaled_root(bits, dbSqrt);
  return _gaxsSqrt_Spec(x, bits);
}
