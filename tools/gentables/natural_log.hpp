// What the tables share whose kernels end in the natural logarithm of src/exponential/log.
#pragma once

#include "gentables.hpp"

namespace gentables {

// Scalars letter<first>, letter<first + 1> and so on.
inline void coefficients(const char* letter, int first, const double* values, int count) {
  for (int i = 0; i < count; ++i) std::printf(".%s%d = %a,\n", letter, first + i, values[i]);
}

// c[0] + c[1] x + ... + c[count - 1] x^(count - 1)
inline Real evaluate(const double* c, int count, const Real& x) {
  Real sum;
  for (int i = count; i-- > 0;) sum = sum * x + Real(c[i]);
  return sum;
}

// An array whose rows are a file of their own, because several tables have them.
inline void included_array(const char* name, const char* file) {
  std::printf(".%s = {\n#include \"%s\"\n},\n", name, file);
}
inline void natural_rows() { included_array("rows", "exponential/log/ln_rows.inc"); }

// ln(1 + v) = v + natural[0] v^2 + ... + natural[6] v^8
constexpr double natural[] = {-0x1p-1,
                              0x1.5555555555613p-2,
                              -0x1.0000000000262p-2,
                              0x1.9999997b36c81p-3,
                              -0x1.555555228b38fp-3,
                              0x1.249c02481059dp-3,
                              -0x1.000b405a2836dp-3};
inline void natural_coefficients() { coefficients("b", 2, natural, 7); }
inline Real natural_sum(const Real& v) { return v + v * v * evaluate(natural, 7, v); }

// ln(2) in two parts, the first a multiple of 2^-42, and what splits a mantissa for the rows: the
// low 7 bits of a sum with `shifter` are the row, a sum with `splitter` keeps multiples of 2^-31.
inline void natural_constants() {
  const double hi = ln2().multiple_of_power(-42);
  scalar("log_2_hi", hi);
  scalar("log_2_lo", (ln2() - Real(hi)).nearest());
  scalar("shifter", 0x1p+46 + 1);
  scalar("splitter", 0x1p+21);
}

}  // namespace gentables
