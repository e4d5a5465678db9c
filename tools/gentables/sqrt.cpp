// Table of src/algebraic/sqrt, vector functions.
#include "gentables.hpp"

using namespace gentables;

int main() {
  Real worst;
  std::printf(".seed = {\n");
  for (int p = 0; p < 2; ++p) {
    std::printf("  {\n");
    for (int k = 0; k < 256; ++k) {
      const Real v = Real(1 << p) * (Real(1) + Real(k) / Real(256));
      const double seed = (Real(1) / sqrt(v)).multiple_of_power(-11);
      std::printf("    %a,\n", seed);
      // The seed serves the interval from v on.
      const Real end = v + Real(1 << p) / Real(256);
      for (const Real& at : {v, end}) {
        const Real error = abs(Real(seed) * sqrt(at) - Real(1));
        if (worst < error) worst = error;
      }
    }
    std::printf("  },\n");
  }
  std::printf("},\n");
  check_error(worst, -8.5, "error of a seed");
  scalar("raise", 0x1p+200);
  scalar("zero", 0);
  scalar("half", 0.5);
  std::printf(".factor = {%a, %a},\n", 1.0, 2.0);
  scalar("splitter", 134217729.0);
}
