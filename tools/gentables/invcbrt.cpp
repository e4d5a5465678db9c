// Table of src/algebraic/invcbrt.
#include "gentables.hpp"

using namespace gentables;

namespace {

constexpr double third_hi = 0x1.5556p-2, third_lo = -0x1.555555556eeb1p-19;
constexpr double polynomial[] = {0x1.c71c71c71c7c6p-3, 0x1.61f9add3d926ep-3, 0x1.26fabb82a92c1p-3,
                                 0x1.ff4c2cad96dc0p-4, 0x1.c67d1021abd48p-4, 0x1.9b8dcfa1cbb4bp-4,
                                 0x1.76e1b29541c7ap-4};

Real cbrt(const Real& x) {
  Real result;
  mpfr_cbrt(result.get(), x.get(), MPFR_RNDN);
  return result;
}

}  // namespace

int main() {
  Real least, most;  // residuals at the ends of the rows' intervals
  std::printf(".seed = {\n");
  for (int row = 0; row <= 96; ++row) {
    const auto point = [](int at) {  // in steps of 1/32 of the binade
      return exp2(Real(at / 32)) * Real(32 + at % 32) / Real(32);
    };
    const Real v = point(row);
    const double seed = (Real(1) / cbrt(v)).multiple_of_power(-8);
    std::printf("  %a,\n", seed);
    // A row serves half the way to its neighbours.
    for (const int neighbour : {row - 1, row + 1}) {
      if (neighbour < 0 || neighbour > 96) continue;
      const Real at = (v + point(neighbour)) / Real(2);
      const Real e = Real(1) - at * Real(seed) * Real(seed) * Real(seed);
      if (e < least) least = e;
      if (most < e) most = e;
    }
  }
  std::printf("},\n");
  check_error(abs(least), -5.4, "lowest residual");
  check_error(most, -5.5, "highest residual");
  const Real worst = largest(least, most, [](const Real& e) {
    Real sum;
    for (int k = 7; k-- > 0;) sum = sum * e + Real(polynomial[k]);
    return (Real(1) + e * (Real(third_hi) + Real(third_lo)) + e * e * sum) * cbrt(Real(1) - e) -
           Real(1);
  });
  check_error(worst, -59.1, "error of the polynomial");
  scalar("shifter", 0x1p+47 + 1);
  scalar("splitter", 0x1p+37);
  scalar("raise", 0x1p+90);
  scalar("zero", 0);
  scalar("one", 1);
  scalar("third_hi", third_hi);
  scalar("third_lo", third_lo);
  for (int k = 0; k < 7; ++k) std::printf(".d%d = %a,\n", k + 2, polynomial[k]);
}
