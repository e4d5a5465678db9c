// Table of src/algebraic/cbrt.
#include "gentables.hpp"

using namespace gentables;

namespace {

// cbrt(x)
Real cbrt(const Real& x) {
  Real result;
  mpfr_cbrt(result.get(), x.get(), MPFR_RNDN);
  return result;
}

constexpr double multiple = 0x1p+8;  // of the seeds

// The first part of 2^(r/3): 26 bits or fewer.
constexpr double step_hi[] = {1, 0x1.428a2f8p+0, 0x1.965feap+0};

}  // namespace

int main() {
  Real least, most;  // residuals at the ends of the rows' intervals
  std::printf(".seed = {\n");
  for (int k = 0; k < 32; ++k) {
    const Real v = Real(1) + Real(k) / Real(32);
    Real seed = Real(multiple) / cbrt(v);
    mpfr_floor(seed.get(), seed.get());
    seed = seed / Real(multiple);
    std::printf("  %a,\n", seed.nearest());
    for (const Real& at : {v, v + Real(1) / Real(32)}) {
      const Real e = Real(1) - at * seed * seed * seed;
      if (e < least) least = e;
      if (most < e) most = e;
    }
  }
  std::printf("},\n");
  check_error(abs(least), -4.99, "lowest residual");
  check_error(most, -6.18, "highest residual");

  // (1 - e)^(-2/3) = 1 + c1 e + c2 e^2 + ...
  Real c[13];
  c[1] = Real(2) / Real(3);
  for (int n = 1; n < 12; ++n) c[n + 1] = c[n] * (c[1] + Real(n)) / Real(n + 1);
  const double c1 = c[1].nearest(), c1_rest = (c[1] - Real(c1)).nearest();
  scalar("c1_hi", c1);
  scalar("c1_lo", c1_rest);
  for (int n = 2; n <= 12; ++n) std::printf(".c%d = %a,\n", n, c[n].nearest());
  const Real worst = largest(least, most, [&](const Real& e) {
    Real sum;
    for (int n = 12; n >= 2; --n) sum = (sum + Real(c[n].nearest())) * e;
    sum = Real(1) + e * (Real(c1) + Real(c1_rest) + sum);
    const Real root = cbrt(Real(1) - e);
    return sum * root * root - Real(1);
  });
  check_error(worst, -64.6, "error of the series");

  scalar("raise", 0x1p+300);
  scalar("splitter", 0x1p+43 + 1);
  std::printf(".step = {\n");
  for (int r = 0; r < 3; ++r) {
    const Real step = cbrt(exp2(Real(r)));
    check(step_hi[r] == Real(step_hi[r]).nearest(26), "a step has too many bits");
    check_error(step - Real(step_hi[r]), -24, "first part of a step");
    std::printf("  {%a, %a},\n", step_hi[r], (step - Real(step_hi[r])).nearest());
  }
  std::printf("},\n");
  scalar("one", 1);
}
