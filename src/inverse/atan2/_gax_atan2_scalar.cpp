// gaxdatan2_scalar and gaxsatan2_scalar: the angle of a single point (b, a), ordinate first.
//
// Method     With A = |a|, B = |b| and the nearest of the breakpoints c = 0, 1/2, 1, 3/2, infinity,
//                atan(A/B) = atan(c) + atan(t),  t = (A - c B)/(B + c A),  |t| <= 0.308
//            (t = -B/A for the last), atan(t) = t - t s P(s), s = t^2. The coefficients of P are
//            the sums of aT, which serves up to 7/16 with an error of 2^-57.7, and aT_correction.
//            For b < 0 the angle is pi less that.
// Exactness  The unit's exponents hold the quotient of any two doubles.
// Error      t and the sum of the results' parts, rounded to 64 bits each: 0.5005 ulp in double
//            precision.
// Special    NaN. Points at infinity and the origin are exchanged for points in their direction.
// Source     tools/gentables/atan.cpp.
#include "dakvmpx.h"
#include "x87/bits.hpp"
#include "x87/x87.hpp"

using namespace dakvm::x87;

namespace {

#include "inverse/atan2/atan2_scalar.inc"

// The angle of (b, a) for a, b >= 0, or that of (-b, a).
Ext angle(Ext a, Ext b, bool left) {
  constexpr double breakpoints[] = {0, 0.5, 1, 1.5};
  const int k = (a > 0.25L * b) + (a > 0.75L * b) + (a > 1.25L * b) + (a > 3.25L * b);
  const Ext t = k == 4 ? -b / a : (a - breakpoints[k] * b) / (b + breakpoints[k] * a);
  const Ext s = t * t;
  Ext P = aT[10] + Ext{aT_correction[10]};
  for (int i = 9; i >= 0; --i) P = (P * s + aT_correction[i]) + aT[i];
  const Ext rest = (atanlo[k] - t * s * P) + t;
  const int half = left ? 0 : 1;
  const Ext sign = m_or_p[half];
  return (pi_or_zero[half] + sign * atanhi[k]) + (pi_or_zeroLo[half] + sign * rest);
}

template <class T>
double atan2_of(T a, T b) {
  const auto first = Bits<T>::read(&a), second = Bits<T>::read(&b);
  if (first.is_nan() || second.is_nan()) return rounded_to<T>(load(&a) + load(&b));
  Ext ordinate = __builtin_fabsl(a), abscissa = __builtin_fabsl(b);
  if (!first.is_finite() || !second.is_finite()) {
    ordinate = first.is_finite() ? 0 : 1;
    abscissa = second.is_finite() ? 0 : 1;
  } else if (first.is_zero()) {
    abscissa = 1;
  }
  Ext result = angle(ordinate, abscissa, second.is_negative());
  // A subnormal quotient may lie just between two numbers; its arc tangent is below it.
  constexpr Ext least_normal = sizeof(T) == sizeof(double) ? 0x1p-1022L : 0x1p-126L;
  if (result < least_normal) result *= 0x1.fffffffffffffffep-1L;
  const T magnitude = rounded_to<T>(result);
  return first.is_negative() ? -magnitude : magnitude;
}

}  // namespace

DAKVM_EXPORT double gaxdatan2_scalar(double a, double b) { return atan2_of(a, b); }

DAKVM_EXPORT double gaxsatan2_scalar(float a, float b) { return atan2_of(a, b); }
