// The parts of double-double arithmetic. A value is an unevaluated sum head + tail: the head a
// double, the tail what its rounding left over. The errors below are exact where the unit works
// with more bits than a double has.
#pragma once

#include "x87/x87.hpp"

namespace dakvm::x87 {

struct Sum {
  double head;
  Ext tail;
};

// a + b with |a| >= |b|. Source: T. J. Dekker, Numer. Math. 18 (1971) 224-242.
DAKVM_INLINE Sum fast_two_sum(Ext a, Ext b) {
  const double head = round_to_double(a + b);
  return {head, b + (a - head)};
}

// A sum of many terms in a register, and beside it what its roundings lost. The head must be a
// multiple of the last place of each term that is added: head - sum is exact then, as in
// fast_two_sum, though the term may be the larger one.
struct Accumulator {
  Ext head, tail;

  DAKVM_INLINE void add(Ext term) {
    const Ext sum = head + term;
    tail = computed(tail + (term + (head - sum)));
    head = sum;
  }
  DAKVM_INLINE void fold_tail() {
    const Ext sum = head + tail;
    tail = tail + (head - sum);
    head = sum;
  }
};

// A register's value in two doubles, exactly. A stage hands it on at the cost of two operations;
// storing and loading 80 bits costs more.
struct Parts {
  double value, rest;

  DAKVM_INLINE void put(Ext whole) {
    value = round_to_double(whole);
    rest = narrow<double>(whole - value);
  }
  DAKVM_INLINE Ext whole() const { return Ext{value} + rest; }
};

// The head of few bits that Dekker's split takes from x. With a splitter 2^k + 1, or 2^k, it has
// 53 - k bits, so that products of heads are exact; the rest x - head is exact as well. Its two
// roundings are fields of an element, each stored in a stage of its own.
struct Split {
  double product, remainder;

  DAKVM_INLINE void multiply(Ext x, Ext splitter) { product = narrow<double>(splitter * x); }
  DAKVM_INLINE void subtract(Ext x) { remainder = narrow<double>(product - x); }
  // Both at once, for a splitter 2^k: the product is exact.
  DAKVM_INLINE void cut(Ext x, Ext power) {
    const Ext exact = power * x;
    product = narrow<double>(exact);
    remainder = narrow<double>(exact - x);
  }
  DAKVM_INLINE Ext high() const { return Ext{product} - remainder; }
};

// The head of Dekker's split at once, where time does not count.
DAKVM_INLINE Ext head_of(Ext x, Ext splitter) {
  const double product = round_to_double(splitter * x);
  return product - Ext{round_to_double(product - x)};
}

}  // namespace dakvm::x87
