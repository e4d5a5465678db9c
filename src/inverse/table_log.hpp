// ln(v) for kernels that end in a logarithm, v the sum of a double and a smaller tail.
//
// Method     v = (m + tail 2^-K) 2^K with m in [1, 2) the mantissa of the double. With the rows of
//            the natural logarithm, R about 1/m and mh the leading 32 bits of m,
//                ln(v) = K ln2 - ln(R) + ln(1 + u),  u = (mh R - 1) + c,
//                c = R ((m - mh) + tail 2^-K)
// Exactness  mh R - 1 and its sum with K ln2_hi + hi, as in the logarithm: multiples of 2^-42 below
//            2^10.
// Error      polynomial 2^-68 while the tail is below an ulp of the double, tails 2^-70, then one
//            rounding of 64 bits.
// Source     P. T. P. Tang, ACM TOMS 16 (1990) 378-400. Rows: tools/gentables/log.cpp.
#pragma once

#include "exponential/log/log_kernel.hpp"

namespace dakvm::table_log {
using namespace x87;

// The end of an element's way: a kernel fills head and tail and runs locate, split, then asks for
// ln. Its table has rows, coefficients and constants under the names of log::LnTable. A double
// holds the tail where that is the rest of a rounding.
template <class Table, class Tail>
struct Logarithm : log::TableElement<Table> {
  double head;
  Tail tail;
  double unscale;  // 2^-K

  DAKVM_INLINE void locate(const Table& t) {
    this->decompose(t, &head, 0);
    put_power_of_two(unscale, 2046 - Bits<double>::read(&head).exponent());
  }

  DAKVM_INLINE Ext ln(const Table& t) const {
    const log::Row& row = t.rows[low_word(this->indexed) % 128];
    const Ext mh = Ext{this->cut} - t.splitter;
    const Ext c = row.factor * ((this->m - mh) + tail * unscale);
    const Ext a = mh * row.factor - t.one;
    const Ext K = static_cast<Ext>(this->E);
    const Ext lo = K * t.log_2_lo + row.lo + c + log::polynomial(t, a + c);
    return (K * t.log_2_hi + row.hi + a) + lo;
  }

  // ln(2v) of a v without tail.
  static Ext ln_of_twice(const Table& t, Ext v) {
    Logarithm twice;
    twice.head = round_to_double(v);
    twice.tail = 0;
    twice.locate(t);
    ++twice.E;
    settle(&twice);
    twice.split(t);
    settle(&twice);
    return twice.ln(t);
  }
};

}  // namespace dakvm::table_log
