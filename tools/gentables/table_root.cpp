// The rows of src/inverse/table_root.hpp: 1/sqrt(v), rows 0 to 256 for v in [1, 2], rows 256 to 512
// for v in [2, 4].
#include "table_root.hpp"

#include <cmath>

using namespace gentables;

int main() {
  Real widest;  // |v T^2 - 1| at the ends of a row's interval
  for (int row = 0; row <= 512; ++row) {
    const int binade = row <= 256 ? 1 : 2;
    const Real v = Real(row <= 256 ? 256 + row : 2 * row) / Real(256);
    const double T = (Real(1) / sqrt(v)).multiple_of_power(-11);
    std::printf("  %a,\n", T);
    check(T >= 0.5 && T <= 1, "a row has more than 11 fractional bits");
    // A row serves half a step to both sides, but nothing below 1 or above 4.
    const Real below = row == 0 ? v : v - Real(binade) / Real(512);
    const Real above = row == 512 ? v : v + Real(row < 256 ? 1 : 2) / Real(512);
    for (const Real& at : {below, above}) {
      const Real e = abs(at * Real(T) * Real(T) - Real(1));
      if (widest < e) widest = e;
    }
  }
  check_error(widest, -8.59, "residual of a row");
  const Real worst = largest(Real() - widest, widest, [](const Real& e) {
    Real sum;
    for (int k = 7; k-- > 0;) sum = sum * e + Real(root_series[k]);
    return (Real(1) + e * sum) * sqrt(Real(1) + e) - Real(1);
  });
  check_error(worst, -71, "error of the series");
}
