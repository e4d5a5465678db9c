// sin(x) and cos(x) for one element, single precision; Sin, Cos and SinCos share this file.
//
// Method     Sine     N = nearest(x/pi), r = x - N pi, |r| <= pi/2; sin(x) = (-1)^N sin(r).
//            Cosine   N = nearest((x + pi/2)/pi), r = x - (N - 1/2) pi; cos(x) = (-1)^N sin(r).
//            Both     N = nearest(2 x/pi), r = x - N pi/2, |r| <= pi/4; sin(r) and cos(r) change
//                     places for odd N.
//            sin(r) is an odd polynomial of degree 9 (both: 7), cos(r) an even one of degree 8.
// Exactness  The head of pi has 35 bits and |N| < 2^20: N head and its sum with x are exact, r is
//            off by 2^-66.
// Error      The polynomials, which have 26 bits (sine and cosine), 25 and 28 (both), and the
//            store: 0.801 ulp, both 0.563 ulp.
// Special    Above 10^6 (cosine 5 10^5), infinities and NaN: the scalar kernels. For SinCos zeros
//            as well: its polynomial would lose the sign.
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

// Rounded first, then the sign flipped for odd N: in directed rounding another result.
struct Signed {
  Ext value;
  uint32_t N;

  DAKVM_INLINE void store_to(float* dst) const {
    *dst = narrow<float>(value);
    put_word(*dst, Bits<float>::read(dst).word ^ N << 31);
  }
};

// sin(x - m pi), with the sign of N.
template <class Table>
DAKVM_INLINE Signed sine_from(const Table& t, Ext x, Ext m, uint32_t N) {
  const Ext r = (m * t.minus_pi + x) + m * t.minus_pi_lo;
  const Ext z = r * r;
  return {r * (t.c1 + z * (t.c3 + z * (t.c5 + z * (t.c7 + z * t.c9)))), N};
}

struct SinElement32 : trig::Shifted {
  DAKVM_INLINE void start(const SinTable32& t, const float* src) {
    take(src, *src * Ext{t.inv_pi}, t.shifter);
  }
  DAKVM_INLINE Signed finish(const SinTable32& t) const {
    return sine_from(t, x, n(t.shifter), N());
  }
};

struct CosElement32 : trig::Shifted {
  DAKVM_INLINE void start(const CosTable32& t, const float* src) {
    take(src, (t.half_pi + Ext{*src}) * t.inv_pi, t.shifter);
  }
  DAKVM_INLINE Signed finish(const CosTable32& t) const {
    return sine_from(t, x, n(t.shifter) - t.half, N());
  }
};

// Sine and cosine of r; N says which is which, and their signs.
struct Quadrant {
  float of_r[2];
  uint32_t N;

  DAKVM_INLINE void store_to(float* sine, float* cosine) const {
    const uint32_t odd = N % 2;
    put_word(*sine, Bits<float>::read(of_r + odd).word ^ N >> 1 << 31);
    put_word(*cosine, Bits<float>::read(of_r + 1 - odd).word ^ (N + 1) >> 1 << 31);
  }
};

struct SinCosElement32 : trig::Shifted {
  DAKVM_INLINE void start(const SinCosTable32& t, const float* src) {
    take(src, *src * Ext{t.inv_half_pi}, t.shifter);
  }
  DAKVM_INLINE Quadrant finish(const SinCosTable32& t) const {
    const Ext m = n(t.shifter);
    const Ext r = (m * t.minus_half_pi + x) + m * t.minus_half_pi_lo;
    const Ext z = r * r;
    return {{narrow<float>(r + r * z * ((t.s7 * z + t.s5) * z + t.s3)),
             narrow<float>(t.one - (t.half * z - z * z * (z * (t.k8 * z + t.k6) + t.k4)))},
            N()};
  }
};

struct SinKernel32 {
  using Element = SinElement32;
  using Stages = frame::Pipeline<&Element::finish>;

  DAKVM_INLINE static bool is_ordinary(const SinTable32&, Bits<float> x) {
    return x.magnitude() <= 0x49742400;  // 10^6
  }
  DAKVM_INLINE static Status apply(const SinTable32&, const float* src, float* dst) {
    return scalar::_dSin(src, dst);
  }
};

struct CosKernel32 {
  using Element = CosElement32;
  using Stages = frame::Pipeline<&Element::finish>;

  DAKVM_INLINE static bool is_ordinary(const CosTable32&, Bits<float> x) {
    return x.magnitude() <= 0x48f42400;  // 5 10^5
  }
  DAKVM_INLINE static Status apply(const CosTable32&, const float* src, float* dst) {
    return scalar::_dCos(src, dst);
  }
};

struct SinCosKernel32 {
  using Element = SinCosElement32;
  using Stages = frame::Pipeline<&Element::finish>;

  DAKVM_INLINE static bool is_ordinary(const SinCosTable32&, Bits<float> x) {
    constexpr uint32_t bound = 0x49742400;  // 10^6
    return x.magnitude() - 1 < bound;
  }
  DAKVM_INLINE static Status apply(const SinCosTable32&, const float* src, float* sine,
                                   float* cosine) {
    return scalar::_dSinCos(src, sine, cosine);
  }
};

}  // namespace dakvm::sincos
