// What the table generators share: high-precision numbers, rows of committed files, checks.
//
// A generator prints one .inc file to standard output. It works at 300 bits, rounds once, checks
// what its kernel relies on, and exits with status 1 and a message if a check fails.
#pragma once

#include <mpfr.h>

#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>

namespace gentables {

// A number of 300 bits.
class Real {
 public:
  Real() {
    mpfr_init2(value_, 300);
    mpfr_set_zero(value_, 1);
  }
  Real(double d) : Real() { mpfr_set_d(value_, d, MPFR_RNDN); }
  Real(const Real& other) : Real() { mpfr_set(value_, other.value_, MPFR_RNDN); }
  Real& operator=(const Real& other) {
    mpfr_set(value_, other.value_, MPFR_RNDN);
    return *this;
  }
  ~Real() { mpfr_clear(value_); }

  mpfr_ptr get() { return value_; }
  mpfr_srcptr get() const { return value_; }

  double nearest() const { return mpfr_get_d(value_, MPFR_RNDN); }
  // The nearest number with `bits` significant bits.
  double nearest(int bits) const {
    Real copy = *this;
    mpfr_prec_round(copy.value_, bits, MPFR_RNDN);
    return copy.nearest();
  }
  // Cut, not rounded, to `bits` significant bits.
  double cut(int bits) const {
    Real copy = *this;
    mpfr_prec_round(copy.value_, bits, MPFR_RNDZ);
    return copy.nearest();
  }
  // The nearest multiple of 2^exponent.
  double multiple_of_power(int exponent) const {
    Real copy = *this;
    mpfr_mul_2si(copy.value_, copy.value_, -exponent, MPFR_RNDN);
    mpfr_rint(copy.value_, copy.value_, MPFR_RNDN);
    mpfr_mul_2si(copy.value_, copy.value_, exponent, MPFR_RNDN);
    return copy.nearest();
  }

 private:
  mpfr_t value_;
};

#define GENTABLES_OPERATOR(op, function)                  \
  inline Real operator op(const Real& a, const Real& b) { \
    Real result;                                          \
    function(result.get(), a.get(), b.get(), MPFR_RNDN);  \
    return result;                                        \
  }
GENTABLES_OPERATOR(+, mpfr_add)
GENTABLES_OPERATOR(-, mpfr_sub)
GENTABLES_OPERATOR(*, mpfr_mul)
GENTABLES_OPERATOR(/, mpfr_div)
#undef GENTABLES_OPERATOR

inline bool operator<(const Real& a, const Real& b) { return mpfr_less_p(a.get(), b.get()) != 0; }

#define GENTABLES_FUNCTION(name, function)      \
  inline Real name(const Real& a) {             \
    Real result;                                \
    function(result.get(), a.get(), MPFR_RNDN); \
    return result;                              \
  }
GENTABLES_FUNCTION(sqrt, mpfr_sqrt)
GENTABLES_FUNCTION(exp2, mpfr_exp2)
GENTABLES_FUNCTION(expm1, mpfr_expm1)
GENTABLES_FUNCTION(log, mpfr_log)
GENTABLES_FUNCTION(log2, mpfr_log2)
GENTABLES_FUNCTION(sin, mpfr_sin)
GENTABLES_FUNCTION(cos, mpfr_cos)
GENTABLES_FUNCTION(sinh, mpfr_sinh)
GENTABLES_FUNCTION(tanh, mpfr_tanh)
GENTABLES_FUNCTION(atan, mpfr_atan)
GENTABLES_FUNCTION(tan, mpfr_tan)
GENTABLES_FUNCTION(abs, mpfr_abs)
GENTABLES_FUNCTION(exp, mpfr_exp)
GENTABLES_FUNCTION(erf, mpfr_erf)
GENTABLES_FUNCTION(erfc, mpfr_erfc)
#undef GENTABLES_FUNCTION

// A polynomial, its coefficients from the constant up.
template <class Coefficients>
Real horner(const Coefficients& c, const Real& x) {
  Real sum;
  for (size_t k = std::size(c); k-- > 0;) sum = sum * x + Real(c[k]);
  return sum;
}

inline Real ln2() {
  Real result;
  mpfr_const_log2(result.get(), MPFR_RNDN);
  return result;
}

inline Real pi() {
  Real result;
  mpfr_const_pi(result.get(), MPFR_RNDN);
  return result;
}

inline void check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "check failed: %s\n", what);
  std::exit(1);
}

// Stops unless |error| is below 2^log2_bound; the message says what it is.
inline void check_error(const Real& error, double log2_bound, const char* what) {
  if (error < exp2(Real(log2_bound))) return;
  std::fprintf(stderr, "check failed: %s: 2^%.2f, allowed 2^%.2f\n", what, log2(error).nearest(),
               log2_bound);
  std::exit(1);
}

// The largest |error(x)| on a grid over [low, high].
inline Real largest(const Real& low, const Real& high,
                    const std::function<Real(const Real&)>& error, int steps = 400) {
  Real worst;
  for (int i = 0; i <= steps; ++i) {
    const Real e = abs(error(low + (high - low) * Real(i) / Real(steps)));
    if (worst < e) worst = e;
  }
  return worst;
}

inline void scalar(const char* name, double value) { std::printf(".%s = %a,\n", name, value); }

}  // namespace gentables
