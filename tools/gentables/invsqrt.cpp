// Table of src/algebraic/invsqrt.
#include "gentables.hpp"

using namespace gentables;

namespace {

constexpr double polynomial[] = {0x1.8000000000001p-2, 0x1.400000000138bp-2, 0x1.17ffffffe2a26p-2,
                                 0x1.f7fffec1426e4p-3, 0x1.ce000c07a3b3ep-3, 0x1.ad28a9e3226dfp-3,
                                 0x1.91a80bfbf8b2ap-3};

// Rows 0 to 32 stand for v in [1, 2], rows 32 to 64 for v in [2, 4].
Real point(int row) {
  return row <= 32 ? Real(1) + Real(row) / Real(32) : Real(2) * Real(row) / Real(32);
}

}  // namespace

int main() {
  Real widest;  // residual of a seed at the ends of its interval
  std::printf(".seed = {\n");
  for (int row = 0; row <= 64; ++row) {
    const Real v = point(row);
    const double seed = (Real(1) / sqrt(v)).multiple_of_power(-13);
    std::printf("  %a,\n", seed);
    // A row serves half a step to both sides, but nothing below 1 or above 4.
    const Real below = row == 0 ? v : v - Real(row <= 32 ? 1 : 2) / Real(64);
    const Real above = row == 64 ? v : v + Real(row < 32 ? 1 : 2) / Real(64);
    for (const Real& at : {below, above}) {
      const Real residual = abs(Real(1) - at * Real(seed) * Real(seed));
      if (widest < residual) widest = residual;
    }
  }
  std::printf("},\n");
  check_error(widest, -5.98, "residual of a seed");
  const Real worst = largest(Real() - widest, widest, [](const Real& e) {
    Real P = Real(polynomial[6]);
    for (int k = 6; k-- > 0;) P = P * e + Real(polynomial[k]);
    return (Real(1) + e / Real(2) + e * e * P) * sqrt(Real(1) - e) - Real(1);
  });
  check_error(worst, -60.7, "error of the polynomial");
  scalar("shifter", 0x1p+47 + 1);
  scalar("splitter", 0x1p+27);
  scalar("raise", 0x1p+60);
  scalar("zero", 0);
  scalar("one", 1);
  scalar("half", 0.5);
  const char* const names[] = {"p0", "p1", "p2", "p3", "p4", "p5", "p6"};
  for (int k = 0; k < 7; ++k) scalar(names[k], polynomial[k]);
}
