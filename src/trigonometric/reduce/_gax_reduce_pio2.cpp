// gaxreduce_pio2d: a large argument less the nearest multiple of pi/2, and its quadrant.
//
// Method     |x| = n pi/4 + ..., n rounded up to an even k, so that x = (k/2) pi/2 + r.
//            |x| < 2^30: n from |x| 4/pi; r = |x| - k pi/4 with pi/4 in pieces short enough that
//            their products with k are exact.
//            |x| >= 2^30: 4/pi is cut into chunks of 25 bits, |x| into heads of 26 and 27 bits, so
//            that all products are exact. Chunks whose products are multiples of 8 are left out;
//            of the nine that follow, n is the integer part of the sum, F what remains of it, and
//            r = F pi/4.
// Exactness  The products have at most 53 bits; every sum keeps what its rounding lost. The sum of
//            the leading products is taken modulo 8 before it is rounded.
// Error      pi/4 in step with F: 2^-78 relative; in 53-bit precision 2^-75. The chunks left out
//            below amount to 2^-145, r to at least 2^-61.
// Source     M. H. Payne, R. N. Hanek, ACM SIGNUM 18 (1983) 19-24; W. J. Cody, W. Waite, Software
//            Manual for the Elementary Functions (1980). Table: tools/gentables/reduce.cpp.
#include "trigonometric/reduce/reduce.hpp"
#include "x87/bits.hpp"
#include "x87/double_double.hpp"
#include "x87/x87.hpp"

using namespace dakvm::x87;

namespace {

#include "trigonometric/reduce/reduce.inc"

constexpr double _ones[2] = {1.0, -1.0};       // by the sign of x
constexpr double _zero_none[2] = {0.0, -1.0};  // by the parity of n
constexpr double _TWO_26H = 0x1.8p+26;

// n modulo 2^32, and r of |x| in two parts.
struct Octant {
  uint32_t n;
  Ext h, l;
};

DAKVM_INLINE uint64_t pattern(const double& number) {
  const auto bits = Bits<double>::read(&number);
  return uint64_t{bits.high} << 32 | bits.low;
}

// The number without the last `count` bits of its pattern, 0 <= count < 64.
DAKVM_INLINE Ext without_low_bits(const double& number, uint32_t count) {
  const uint64_t kept = pattern(number) >> count << count;
  double result;
  put_words(result, static_cast<uint32_t>(kept >> 32), static_cast<uint32_t>(kept));
  return result;
}

DAKVM_INLINE Octant reduce_medium(const double& x, uint32_t magnitude) {
  const double y = round_to_double(Ext{x} * _PI04_INV);
  const auto bits = Bits<double>::read(&y);
  const uint32_t significand = (bits.high | 0xfff00000) << 11 | bits.low >> 21;
  const uint32_t n = significand >> ((1054 - bits.exponent()) % 32);
  const auto even = static_cast<int32_t>(n + n % 2);
  const Ext k = even;
  if (magnitude < 0x41600000) {  // 2^23
    Accumulator r{x - k * _PI04_29x5[0], 0};
    r.add(-k * _PI04_29x5[1]);
    r.add(-k * _PI04_29x5[2]);
    r.add(-k * _PI04_29x5[3]);
    return {n, r.head, r.tail - k * _PI04_29x5[4]};
  }
  Accumulator r{x - k * _PI04_21x6[0], 0};
  r.add(-k * _PI04_21x6[1]);
  r.add(-k * _PI04_21x6[2]);
  r.fold_tail();
  r.add(-k * _PI04_21x6[3]);
  r.add(-k * _PI04_21x6[4]);
  return {n, r.head, r.tail - k * _PI04_21x6[5]};
}

DAKVM_INLINE Octant reduce_large(uint32_t low, uint32_t magnitude) {
  const uint32_t e = magnitude >> 20;
  double x, head;
  put_words(x, magnitude - (200 << 20), low);
  put_words(head, magnitude - (200 << 20), low & 0xf8000000);
  const Ext xh = head, xl = Ext{x} - head;
  const uint32_t j = (e - 1052) * 83886 >> 21;  // (e - 1053) / 25
  const double* const chunk = _DP + j;

  Accumulator sum{xl * chunk[0], 0};
  sum.add(xh * chunk[1]);
  const double S = round_to_double(sum.head + sum.tail);
  sum.head -= without_low_bits(S, 1090 + 25 * j - e);  // a multiple of 8
  sum.add(xl * chunk[1]);
  sum.add(xh * chunk[2]);
  sum.fold_tail();
  sum.add(xl * chunk[2]);
  sum.add(xh * chunk[3]);

  // U serves for the integer part alone: the sum itself has more bits.
  const double U = round_to_double(sum.head);
  const uint32_t exponent = Bits<double>::read(&U).exponent();
  uint32_t n = 0;
  if (exponent >= 1023) {
    const uint32_t fraction_bits = 1075 - exponent;
    const uint64_t significand = (pattern(U) & 0xfffffffffffff) | uint64_t{1} << 52;
    n = static_cast<uint32_t>(significand >> (fraction_bits % 64));
    sum.head -= without_low_bits(U, fraction_bits % 64);
  }
  sum.head += _zero_none[n % 2];
  sum.fold_tail();
#pragma GCC unroll 5
  for (int i = 3; i < 8; ++i) {
    sum.add(xl * chunk[i]);
    sum.add(xh * chunk[i + 1]);
  }

  const Ext F = sum.head, raised = F * _TWO_26H;
  const Ext fh = round_to_double(F + raised) - raised;
  const Ext fl = (F - fh) + sum.tail;
  const Ext p = fh * _PI04_25x2[0];
  const Ext t = fl * _PI04_25x2[0] + (fh + fl) * _PI04_25x2[1];
  const Ext h = t + p;
  return {n, h, (p - h) + t};
}

}  // namespace

DAKVM_EXPORT int32_t gaxreduce_pio2d(uint32_t low, uint32_t high, ReducedArg* reduced) {
  const uint32_t s = high >> 31, magnitude = high & 0x7fffffff;
  Octant octant;
  if (magnitude < 0x41d00000) {  // 2^30
    double x;
    put_words(x, magnitude, low);
    octant = reduce_medium(x, magnitude);
  } else {
    octant = reduce_large(low, magnitude);
  }
  const Ext h = octant.h * _ones[s], l = octant.l * _ones[s];
  const double hi = round_to_double(h + l);
  reduced->hi = hi;
  reduced->lo = narrow<double>((h - hi) + l);
  const uint32_t Q = (octant.n + 1) >> 1;
  return static_cast<int32_t>((s != 0 ? 0 - Q : Q) & 3);
}
