// gaxreduce_pio2d: a large argument less the nearest multiple of pi/2, and its quadrant.
//
// Method     |x| = n pi/4 + ..., n rounded up to an even k, so that x = (k/2) pi/2 + r.
//            |x| < 2^30: n from |x| 4/pi; r = |x| - k pi/4 with pi/4 in pieces short enough that
//            their products with k are exact.
//            |x| >= 2^30: 4/pi is cut into chunks of 25 bits, |x| into heads of 26 and 27 bits, so
//            that all products are exact. Chunks whose products are multiples of 8 are left out;
//            of the nine that follow, n is the integer part of the sum, F what remains of it, and
//            r = F pi/4.
// Exactness  The products have at most 53 bits; every sum keeps what its rounding lost. Pieces and
//            chunks follow one another, so that a sum is a multiple of the last place of the
//            product it receives next. The sum of the leading products is taken modulo 8 before it
//            is rounded.
// Error      pi/4 in step with F: 2^-78 relative; in 53-bit precision 2^-75. The chunks left out
//            below amount to 2^-145, r to at least 2^-61.
// Source     M. H. Payne, R. N. Hanek, ACM SIGNUM 18 (1983) 19-24; W. J. Cody, W. Waite, Software
//            Manual for the Elementary Functions (1980). Table: tools/gentables/reduce.cpp.
#include "frame/frame.hpp"
#include "trigonometric/reduce/reduce.hpp"
#include "x87/bits.hpp"
#include "x87/double_double.hpp"
#include "x87/x87.hpp"

namespace dakvm::reduce {
namespace {
using namespace x87;

#include "trigonometric/reduce/reduce.inc"

constexpr double _ones[2] = {1.0, -1.0};       // by the sign of x
constexpr double _zero_none[2] = {0.0, -1.0};  // by the parity of n
constexpr double _TWO_26H = 0x1.8p+26;

struct None {};

// n modulo 2^32, and r of |x| in two parts.
struct Octant {
  uint32_t n;
  Ext h, l;

  DAKVM_INLINE void store_to(Argument& x) const {
    const uint32_t s = Bits<double>::read(&x.hi).is_negative();
    const Ext r = h * _ones[s], rest = l * _ones[s];
    const double hi = round_to_double(r + rest);
    x.hi = hi;
    x.lo = narrow<double>((r - hi) + rest);
    const uint32_t Q = (n + 1) >> 1;
    x.q = (s != 0 ? 0 - Q : Q) & 3;
  }
};

// |x| < 2^30
struct Medium {
  double x, scaled;  // |x|, |x| 4/pi
  uint32_t n;
  int32_t k;

  DAKVM_INLINE void start(const Argument& argument) {
    x = narrow<double>(__builtin_fabsl(argument.hi));
  }
  DAKVM_INLINE void scale(const None&) { scaled = narrow<double>(Ext{x} * _PI04_INV); }
  DAKVM_INLINE void count(const None&) {
    const auto bits = Bits<double>::read(&scaled);
    const uint32_t significand = (bits.high | 0xfff00000) << 11 | bits.low >> 21;
    n = significand >> ((1054 - bits.exponent()) % 32);
    k = static_cast<int32_t>(n + n % 2);
  }
};

// |x| < 2^23
struct Below23 : Medium {
  DAKVM_INLINE Octant subtract(const None&) const {
    const Ext multiple = k;
    Accumulator r{x - multiple * _PI04_29x5[0], 0};
    r.add(-multiple * _PI04_29x5[1]);
    r.add(-multiple * _PI04_29x5[2]);
    r.add(-multiple * _PI04_29x5[3]);
    return {n, r.head, r.tail - multiple * _PI04_29x5[4]};
  }
  using Stages = frame::Pipeline<&Below23::scale, &Below23::count, &Below23::subtract>;
};

struct Below30 : Medium {
  DAKVM_INLINE Octant subtract(const None&) const {
    const Ext multiple = k;
    Accumulator r{x - multiple * _PI04_21x6[0], 0};
    r.add(-multiple * _PI04_21x6[1]);
    r.add(-multiple * _PI04_21x6[2]);
    r.fold_tail();
    r.add(-multiple * _PI04_21x6[3]);
    r.add(-multiple * _PI04_21x6[4]);
    return {n, r.head, r.tail - multiple * _PI04_21x6[5]};
  }
  using Stages = frame::Pipeline<&Below30::scale, &Below30::count, &Below30::subtract>;
};

// The number without the last `count` bits of its pattern, 0 <= count < 64.
DAKVM_INLINE void put_without_low_bits(double& result, const double& number, uint32_t count) {
  const auto bits = Bits<double>::read(&number);
  const uint32_t kept = ~0u << count % 32;
  const bool low_is_kept = count < 32;
  put_words(result, bits.high & (low_is_kept ? ~0u : kept), low_is_kept ? bits.low & kept : 0);
}

// |x| >= 2^30
struct Large {
  double x, head, tail;  // |x| 2^-200, its first 26 bits, the others
  const double* chunk;
  uint32_t low_bits, n;
  Parts leading, total;
  double lost_in_leading, lost_in_total;
  double multiple_of_8, integer;

  DAKVM_INLINE void start(const Argument& argument) {
    const auto bits = Bits<double>::read(&argument.hi);
    const uint32_t e = bits.exponent(), scaled = bits.magnitude() - (200 << 20);
    put_words(x, scaled, bits.low);
    put_words(head, scaled, bits.low & 0xf8000000);
    const uint32_t j = (e - 1052) * 83886 >> 21;  // (e - 1053) / 25
    low_bits = 1090 + 25 * j - e;
    chunk = _DP + j;
  }
  // Their sum has 55 bits: what a register of 53 bits loses is a double.
  DAKVM_INLINE void add_leading(const None&) {
    const Ext low = Ext{x} - head;
    tail = narrow<double>(low);
    Accumulator sum{low * chunk[0], 0};
    add_high(sum, 1);
    const double S = round_to_double(sum.head + sum.tail);
    leading = {S, narrow<double>(sum.head - S)};
    lost_in_leading = narrow<double>(sum.tail);
  }
  DAKVM_INLINE void clear_fraction(const None&) {
    put_without_low_bits(multiple_of_8, leading.value, low_bits);
  }
  DAKVM_INLINE void add_next(const None&) {
    Accumulator sum{leading.whole() - multiple_of_8, lost_in_leading};
    add_low(sum, 1);
    add_high(sum, 2);
    sum.fold_tail();
    add_low(sum, 2);
    add_high(sum, 3);
    total.put(sum.head);
    lost_in_total = narrow<double>(sum.tail);
  }
  DAKVM_INLINE void take_octant(const None&) {
    const auto bits = Bits<double>::read(&total.value);
    const uint32_t fraction_bits = 1075 - bits.exponent();
    const uint64_t significand = (uint64_t{bits.high & 0xfffff} | 0x100000) << 32 | bits.low;
    const bool has_integer = bits.exponent() >= 1023;
    n = has_integer ? static_cast<uint32_t>(significand >> fraction_bits % 64) : 0;
    put_without_low_bits(integer, total.value, has_integer ? fraction_bits : 63);
  }
  DAKVM_INLINE Octant finish(const None&) const {
    Accumulator sum{total.whole() - integer + _zero_none[n % 2], lost_in_total};
    sum.fold_tail();
    add_low(sum, 3);
    add_high(sum, 4);
    add_low(sum, 4);
    add_high(sum, 5);
    add_low(sum, 5);
    add_high(sum, 6);
    add_low(sum, 6);
    add_high(sum, 7);
    add_low(sum, 7);
    add_high(sum, 8);
    const Ext F = sum.head, raised = F * _TWO_26H;
    const Ext fh = round_to_double(F + raised) - raised;
    const Ext fl = (F - fh) + sum.tail;
    const Ext p = fh * _PI04_25x2[0];
    const Ext t = fl * _PI04_25x2[0] + (fh + fl) * _PI04_25x2[1];
    const Ext h = t + p;
    return {n, h, (p - h) + t};
  }
  using Stages = frame::Pipeline<&Large::add_leading, &Large::clear_fraction, &Large::add_next,
                                 &Large::take_octant, &Large::finish>;

 private:
  DAKVM_INLINE void add_low(Accumulator& sum, int i) const { sum.add(Ext{tail} * chunk[i]); }
  DAKVM_INLINE void add_high(Accumulator& sum, int i) const { sum.add(Ext{head} * chunk[i]); }
};

template <class Element>
DAKVM_INLINE void run(Argument* const* arguments, int32_t count) {
  Element elements[frame::longest_block];
  for (int32_t k = 0; k < count; ++k) elements[k].start(*arguments[k]);
  settle(elements);
  Element::Stages::advance(elements, count, None{});
  for (int32_t k = 0; k < count; ++k)
    Element::Stages::finish(elements[k], None{}).store_to(*arguments[k]);
}

}  // namespace

void by_half_pi(Argument* const* arguments, int32_t count) {
  Argument *below23[frame::longest_block], *below30[frame::longest_block],
      *large[frame::longest_block];
  int32_t count23 = 0, count30 = 0, count_large = 0;
  for (int32_t k = 0; k < count; ++k) {
    const uint32_t magnitude = Bits<double>::read(&arguments[k]->hi).magnitude();
    const bool is_below23 = magnitude < 0x41600000, is_below30 = magnitude < 0x41d00000;
    below23[count23] = below30[count30] = large[count_large] = arguments[k];
    count23 += is_below23;
    count30 += is_below30 && !is_below23;
    count_large += !is_below30;
  }
  run<Below23>(below23, count23);
  run<Below30>(below30, count30);
  run<Large>(large, count_large);
}

}  // namespace dakvm::reduce

DAKVM_EXPORT int32_t gaxreduce_pio2d(uint32_t low, uint32_t high, ReducedArg* reduced) {
  using namespace dakvm;
  reduce::Argument argument, *const arguments[] = {&argument};
  x87::put_words(argument.hi, high, low);
  reduce::by_half_pi(arguments, 1);
  *reduced = argument;
  return static_cast<int32_t>(argument.q);
}
