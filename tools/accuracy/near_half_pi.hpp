// The floating-point numbers nearest to multiples of pi/2: there sine, cosine or tangent have a
// zero or a pole, and an argument reduction shows what it is worth. Random arguments come nowhere
// near.
#pragma once

#include <gmp.h>
#include <mpfr.h>

#include <cmath>
#include <limits>
#include <vector>

namespace near_half_pi {

namespace detail {
class Integer {
 public:
  explicit Integer(unsigned long value) { mpz_init_set_ui(value_, value); }
  ~Integer() { mpz_clear(value_); }
  Integer(const Integer&) = delete;
  Integer& operator=(const Integer&) = delete;
  mpz_ptr get() { return value_; }

 private:
  mpz_t value_;
};
}  // namespace detail

// An integer m of T's precision makes m 2^e come nearest to a multiple k pi/2 where m/k is a
// convergent of the continued fraction of (pi/2) 2^-e, or an intermediate fraction before it.
template <class T>
std::vector<T> numbers() {
  using Limits = std::numeric_limits<T>;
  constexpr int digits = Limits::digits;
  std::vector<T> found;
  mpfr_t x;
  mpfr_init2(x, 2 * Limits::max_exponent + 200);
  const auto add = [&](mpz_srcptr m, int e) {
    const auto bits = static_cast<int>(mpz_sizeinbase(m, 2));
    if (bits <= digits && bits > digits - 6 && e + bits >= 0)
      found.push_back(static_cast<T>(std::ldexp(mpz_get_d(m), e)));
  };
  for (int e = 2 - 2 * digits; e <= Limits::max_exponent - digits; ++e) {
    mpfr_const_pi(x, MPFR_RNDN);
    mpfr_mul_2si(x, x, -1 - e, MPFR_RNDN);
    detail::Integer quotient(0), last(1), before(0), next(0);
    while (static_cast<int>(mpz_sizeinbase(last.get(), 2)) <= digits) {
      mpfr_get_z(quotient.get(), x, MPFR_RNDD);
      mpz_set(next.get(), before.get());
      for (int step = 0; step < 8 && mpz_cmp_ui(quotient.get(), static_cast<unsigned>(step)) > 0;
           ++step) {
        mpz_add(next.get(), next.get(), last.get());
        add(next.get(), e);
      }
      mpz_set(next.get(), before.get());
      mpz_addmul(next.get(), quotient.get(), last.get());
      add(next.get(), e);
      mpz_swap(before.get(), last.get());
      mpz_swap(last.get(), next.get());
      mpfr_sub_z(x, x, quotient.get(), MPFR_RNDN);
      mpfr_ui_div(x, 1, x, MPFR_RNDN);
    }
  }
  mpfr_clear(x);
  return found;
}

}  // namespace near_half_pi
