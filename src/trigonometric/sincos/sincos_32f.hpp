// sin(x) and cos(x) for one element, single precision; Sin, Cos and SinCos share this file.
//
// Method     Sine     N = nearest(x/pi), r = x - N pi, |r| <= pi/2; sin(x) = (-1)^N sin(r).
//            Cosine   N = nearest((x + pi/2)/pi), r = x - (N - 1/2) pi; cos(x) = (-1)^N sin(r).
//            Both     N = nearest(2 x/pi), r = x - N pi/2, |r| <= pi/4; sin(r) and cos(r) change
//                     places for odd N.
//            sin(r) is an odd polynomial of degree 9 (both: 7), cos(r) an even one of degree 8.
// Exactness  The head of pi has 33 bits and |N| < 2^20: N head and its sum with x are exact, r is
//            off by 2^-66.
// Error      The polynomials, which have 26 bits (sine and cosine), 25 and 28 (both), and the
// store:
//            0.801 ulp, both 0.563 ulp.
// Special    Above 10^6 (cosine 5 10^5), infinities and NaN: the scalar kernels. For SinCos zeros
// as
//            well: its polynomial would lose the sign.
// Source     J. F. Hart et al., Computer Approximations (1968), for polynomials of this kind.
//            Tables: tools/gentables/trig_32f.cpp.
#pragma once

#include "trigonometric/argument_32f.hpp"

namespace dakvm::sincos {
using namespace x87;

struct SinTable32 {
  double shifter, inv_pi;        // 1.5 * 2^23
  double minus_pi, minus_pi_lo;  // their sum is -pi
  double c1, c3, c5, c7, c9;     // sin(r) = c1 r + c3 r^3 + ... + c9 r^9
};

struct CosTable32 {
  double shifter, inv_pi, minus_pi, minus_pi_lo, c1, c3, c5, c7, c9;  // as above
  double half_pi, half;
};

struct SinCosTable32 {
  double shifter, inv_half_pi;             // 1.5 * 2^23, 2/pi
  double minus_half_pi, minus_half_pi_lo;  // their sum is -pi/2
  double s3, s5, s7;                       // sin(r) = r + s3 r^3 + ... + s7 r^7
  double k4, k6, k8;                       // cos(r) = 1 - r^2/2 + k4 r^4 + ... + k8 r^8
  double one, half;
};

// (-1)^N sin(x - m pi)
template <class Table>
DAKVM_INLINE void store_sine(const Table& t, Ext x, Ext m, uint32_t N, float* result) {
  const Ext r = (m * t.minus_pi + x) + m * t.minus_pi_lo;
  const Ext z = r * r;
  *result = narrow<float>(r * (t.c1 + z * (t.c3 + z * (t.c5 + z * (t.c7 + z * t.c9)))));
  trig::flip_sign(*result, N);
}

struct SinKernel32 {
  DAKVM_INLINE static Status apply(const SinTable32& t, const float* src, float* dst) {
    constexpr uint32_t bound = 0x49742400;  // 10^6
    if (Bits<float>::read(src).magnitude() > bound) [[unlikely]]
      return scalar::_dSin(src, dst);
    const Ext x = *src;
    const trig::Shifted N(x * t.inv_pi + t.shifter);
    store_sine(t, x, N.less(t.shifter), N.low_bits(), dst);
    return Status::ok;
  }
};

struct CosKernel32 {
  DAKVM_INLINE static Status apply(const CosTable32& t, const float* src, float* dst) {
    constexpr uint32_t bound = 0x48f42400;  // 5 10^5
    if (Bits<float>::read(src).magnitude() > bound) [[unlikely]]
      return scalar::_dCos(src, dst);
    const Ext x = *src;
    const trig::Shifted N((t.half_pi + x) * t.inv_pi + t.shifter);
    store_sine(t, x, N.less(t.shifter) - t.half, N.low_bits(), dst);
    return Status::ok;
  }
};

struct SinCosKernel32 {
  DAKVM_INLINE static Status apply(const SinCosTable32& t, const float* src, float* sine,
                                   float* cosine) {
    constexpr uint32_t bound = 0x49742400;  // 10^6
    if (Bits<float>::read(src).magnitude() - 1 > bound - 1) [[unlikely]]
      return scalar::_dSinCos(src, sine, cosine);
    const Ext x = *src;
    const trig::Shifted N(x * t.inv_half_pi + t.shifter);
    const Ext n = N.less(t.shifter);
    const Ext r = (n * t.minus_half_pi + x) + n * t.minus_half_pi_lo;
    const Ext z = r * r;
    float of_r[2];  // sine, cosine
    of_r[0] = narrow<float>(r + r * z * ((t.s7 * z + t.s5) * z + t.s3));
    of_r[1] = narrow<float>(t.one - (t.half * z - z * z * (z * (t.k8 * z + t.k6) + t.k4)));
    settle(of_r);
    const uint32_t quadrant = N.low_bits(), odd = quadrant % 2;
    put_word(*sine, Bits<float>::read(of_r + odd).word ^ quadrant >> 1 << 31);
    put_word(*cosine, Bits<float>::read(of_r + 1 - odd).word ^ (quadrant + 1) >> 1 << 31);
    return Status::ok;
  }
};

}  // namespace dakvm::sincos
