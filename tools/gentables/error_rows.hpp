// What the tables of erf and erfc share.
#pragma once

#include <vector>

#include "gentables.hpp"

namespace gentables {

inline Real two_over_root_pi() { return Real(2) / sqrt(pi()); }

struct Pair {
  double hi, lo;

  Real sum() const { return Real(hi) + Real(lo); }
};

// A high part of `bits` bits, cut, and the rest.
inline Pair cut_pair(const Real& x, int bits) {
  const double hi = x.cut(bits);
  return {hi, (x - Real(hi)).nearest()};
}

inline void print_list(const std::vector<double>& values) {
  const char* separator = "";
  for (const double value : values) {
    std::printf("%s%a", separator, value);
    separator = ", ";
  }
}

}  // namespace gentables
