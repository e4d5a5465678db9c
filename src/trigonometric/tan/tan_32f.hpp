// tan(x) for one element, single precision.
//
// Method     N = nearest(2 x/pi), r = x - N pi/2, |r| <= pi/4; tan(r) = P/Q with P = r + p3 r^3,
//            Q = 1 + q2 r^2 + q4 r^4; tan(x) = P/Q for even N, -Q/P for odd N.
// Exactness  The head of pi/2 has 33 bits and |N| < 2^17: N head and its sum with x are exact, r is
//            off by 2^-69.
// Error      P/Q has 25 bits near pi/4 and 33 near 0; with the store 0.936 ulp.
// Special    Above 128000, infinities and NaN: the scalar kernel. Zeros as well: P would lose the
//            sign.
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

struct Kernel32 {
  DAKVM_INLINE static Status apply(const Table32& t, const float* src, float* dst) {
    constexpr uint32_t bound = 0x47fa0000;  // 128000
    if (Bits<float>::read(src).magnitude() - 1 > bound - 1) [[unlikely]]
      return scalar::_dTan(src, dst);
    const Ext x = *src;
    const trig::Shifted N(x * t.inv_half_pi + t.shifter);
    const Ext n = N.less(t.shifter);
    const Ext r = x + n * t.minus_half_pi + n * t.minus_half_pi_lo;
    const Ext z = r * r;
    const Ext P = r + r * z * t.p3;
    const Ext Q = z * (t.q4 * z + t.q2) + t.one;
    const bool odd = N.low_bits() % 2 != 0;
    *dst = narrow<float>((odd ? -Q : P) / (odd ? P : Q));
    return Status::ok;
  }
};

}  // namespace dakvm::tan
