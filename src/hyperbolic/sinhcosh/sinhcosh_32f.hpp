// sinh(x) and cosh(x) in single precision; every grade shares this file.
//
// Method     y = x log2(e) = k/64 + f with k = nearest(64 y), |f| <= 1/128. With the halves of two
//            powers, A = 2^(k/64)/2 and B = 2^(-k/64)/2,
//                sinh(x) = sinh(f ln2) (A + B) + cosh(f ln2) (A - B)
//                cosh(x) = cosh(f ln2) (A + B) + sinh(f ln2) (A - B)
//                cosh(f ln2) = d0 + d2 f^2,  sinh(f ln2) = f (d1 + d3 f^2)
//            Negative x takes the same steps with A and B exchanged.
// Exactness  A and B are table rows times a power of two; k/64 and y - k/64 are exact.
// Error      polynomials 2^-36, then one rounding at the store: largest of all 2^32 arguments
//            0.50010 ulp (sinh), 0.50007 ulp (cosh).
// Special    NaN, infinities, overflow, zeros of sinh: apply.
// Source     Table: tools/gentables/sinhcosh.cpp.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::sinhcosh {
using namespace x87;

struct SingleTable {
  double twoJ[64];  // 2^(j/64)
  double log2_e;
  double d0, d1, d2, d3;
  double shifter;  // 1.5 * 2^17: a float sum with it keeps multiples of 1/64
};
static_assert(sizeof(SingleTable) == 70 * sizeof(double));

struct SingleElement {
  float x, indexed;  // the low 17 bits of the sum are k
  double up_scale, down_scale;
  uint32_t k;

  DAKVM_INLINE void start(const SingleTable& t, const float* src) {
    const Ext wide = *src;
    x = narrow<float>(wide);
    indexed = narrow<float>(t.shifter + wide * t.log2_e);
  }
  DAKVM_INLINE void split_index(const SingleTable&) {
    k = Bits<float>::read(&indexed).word & 0x1ffff;
    put_power_of_two(up_scale, k / 64 + 1022);
    put_power_of_two(down_scale, (64 * 1022 - k) / 64);
  }

  DAKVM_INLINE Ext sinh(const SingleTable& t) const { return join<true>(t); }
  DAKVM_INLINE Ext cosh(const SingleTable& t) const { return join<false>(t); }

 private:
  template <bool is_sinh>
  DAKVM_INLINE Ext join(const SingleTable& t) const {
    settle(&t);
    const Ext f = Ext{x} * t.log2_e - (Ext{indexed} - t.shifter);
    const Ext z = f * f;
    const Ext odd = f * (t.d1 + t.d3 * z);
    const Ext even = t.d0 + t.d2 * z;
    const Ext A = Ext{t.twoJ[k % 64]} * up_scale, B = Ext{t.twoJ[(0 - k) % 64]} * down_scale;
    return is_sinh ? odd * (A + B) + even * (A - B) : even * (A + B) + odd * (A - B);
  }
};

template <bool is_sinh>
struct SingleKernel {
  using Element = SingleElement;
  using Stages = frame::Pipeline<&SingleElement::split_index,
                                 is_sinh ? &SingleElement::sinh : &SingleElement::cosh>;

  static constexpr uint32_t overflow = 0x42b2d4fd;  // from this |x| on results are infinite
  static constexpr uint32_t infinity = 0x7f800000;

  DAKVM_INLINE static bool is_ordinary(const SingleTable&, Bits<float> x) {
    constexpr uint32_t first = is_sinh ? 1 : 0;
    return x.magnitude() - first < overflow - first;
  }

  [[gnu::cold, gnu::noinline]] static Status apply(const SingleTable&, const float* src,
                                                   float* dst) {
    const auto bits = Bits<float>::read(src);
    if (bits.is_nan()) {
      const Ext x = load(src);
      *dst = narrow<float>(x + x);
      return Status::ok;
    }
    const uint32_t sign = is_sinh ? bits.word & 0x80000000 : 0;
    put_word(*dst, bits.is_zero() ? sign : sign | infinity);
    return bits.is_zero() || bits.is_infinity() ? Status::ok : Status::overflow;
  }
};

}  // namespace dakvm::sinhcosh
