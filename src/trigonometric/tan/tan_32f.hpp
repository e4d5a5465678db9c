// tan(x) for one element, single precision.
//
// Method     N = nearest(2 x/pi), r = x - N pi/2, |r| <= pi/4; tan(r) = P/Q with P = r + p3 r^3,
//            Q = 1 + q2 r^2 + q4 r^4; tan(x) = P/Q for even N, -Q/P for odd N.
// Exactness  The head of pi/2 has 35 bits and |N| < 2^17: N head and its sum with x are exact, r is
//            off by 2^-69.
// Error      P/Q has 25 bits near pi/4 and 33 near 0; with the store 0.936 ulp.
// Special    Above 128000, infinities, NaN: the scalar kernel; zeros as well, whose sign P would
//            lose, and subnormal numbers, where Q/P overflows.
// Source     J. F. Hart et al., Computer Approximations (1968), for quotients of this kind. Table:
//            tools/gentables/trig_32f.cpp.
#pragma once

#include "trigonometric/argument_32f.hpp"

namespace dakvm::tan {
using namespace x87;

struct Table32 {
  double shifter, inv_half_pi;             // 1.5 * 2^23, 2/pi
  double minus_half_pi, minus_half_pi_lo;  // their sum is -pi/2
  double p3, q2, q4;
  double one;
};

// P/Q and -Q/P; N says which of them is the tangent. Two divisions cost less than a branch that
// every other argument misleads.
struct Quotients {
  float of_r[2];
  uint32_t N;

  DAKVM_INLINE void store_to(float* dst) const {
    put_word(*dst, Bits<float>::read(of_r + N % 2).word);
  }
};

struct Element32 : trig::Shifted {
  DAKVM_INLINE void start(const Table32& t, const float* src) {
    take(src, *src * Ext{t.inv_half_pi}, t.shifter);
  }
  DAKVM_INLINE Quotients finish(const Table32& t) const {
    const Ext m = n(t.shifter);
    const Ext r = x + m * t.minus_half_pi + m * t.minus_half_pi_lo;
    const Ext z = r * r;
    const Ext P = r + r * z * t.p3;
    const Ext Q = z * (t.q4 * z + t.q2) + t.one;
    return {{narrow<float>(P / Q), narrow<float>(-Q / P)}, N()};
  }
};

struct Kernel32 {
  using Element = Element32;
  using Stages = frame::Pipeline<&Element::finish>;

  DAKVM_INLINE static bool is_ordinary(const Table32&, Bits<float> x) {
    constexpr uint32_t least = 0x00800000, bound = 0x47fa0000;  // 2^-126, 128000
    return x.magnitude() - least <= bound - least;
  }

  DAKVM_INLINE static Status apply(const Table32&, const float* src, float* dst) {
    return scalar::_dTan(src, dst);
  }
};

}  // namespace dakvm::tan
