// Table of src/error/erf.
#include <cmath>

#include "error_rows.hpp"
#include "remez.hpp"

using namespace gentables;

namespace {

constexpr double saturated = 0x1.7afb48dc96628p+2;
constexpr double cubic_hi = -0x1.8127468p-2, cubic_lo = -0x1.81bcf35cfdb21p-29;
constexpr double series[] = {0x1.ce2f21a042b41p-4, -0x1.b82ce31247c36p-6, 0x1.565bcc4d1d139p-8,
                             -0x1.c02b6e14edcedp-11, 0x1.f644dd9e75958p-14};

// Row j serves a quarter of a binade from 1/8 on; the last row ends where erf rounds to 1.
double start_of(int row) { return std::ldexp(1 + row % 4 / 4.0, row / 4 - 3); }
double end_of(int row) { return row == 21 ? saturated : start_of(row + 1); }

// erf(centre + t/a) in powers of t, from erf'' = -2 x erf'.
Coefficients expansion(const Real& centre, const Real& width) {
  Coefficients c = {erf(centre), two_over_root_pi() * exp(Real() - centre * centre) * width};
  for (int k = 0; k < 40; ++k) {
    const auto at = static_cast<size_t>(k);
    const Real slope = centre * Real(k + 1) * c[at + 1] + width * Real(k) * c[at];
    c.push_back(Real(-2) * width * slope / Real((k + 1) * (k + 2)));
  }
  return c;
}

void print_row(int row) {
  const double low = start_of(row), high = end_of(row);
  const double a = (Real(1) / Real(high - low)).nearest();
  const double b = -((Real(low) + Real(high)) / Real(2) / Real(high - low)).nearest();
  const Real width = Real(1) / Real(a), centre = Real() - Real(b) * width;
  const Coefficients exact = expansion(centre, width);
  const Pair c0 = cut_pair(exact[0], 53), c1 = cut_pair(exact[1], 53), c2 = cut_pair(exact[2], 26);
  if (row == 0) {
    check(a == 32 && b == -4.5, "reduction of row 0");
    check(c0.hi == 0.15763852138168022 && c0.lo == 2.5106099519251896e-17, "c0 of row 0");
    check(c1.hi == 0.03457138176490174 && c1.lo == 5.274099224730994e-18, "c1 of row 0");
    check(c2.hi == -0.00015192501450655982 && c2.lo == -3.01498104247074e-12, "c2 of row 0");
  }
  if (row == 21) {
    check(a == 1.0850845200142905 && b == -5.925422600071452, "reduction of row 21");
    check(c0.hi == 0.9999999999999886, "c0 of row 21");
  }
  const Coefficients rest = without_first(exact, 3);
  const auto d = minimax_doubles(
      [&](const Real& t) { return polynomial(rest, t); },
      [&](const Real& t) { return abs(t * t * t) / polynomial(exact, t); }, 12, 2, -0.5, 0.5);
  const Real error = largest(
      Real(low), Real(high),
      [&](const Real& y) {
        const Real t = Real(a) * y + Real(b), exact_value = erf(y);
        Real P = Real(d[11]);
        for (size_t k = 11; k-- > 0;) P = P * t + Real(d[k]);
        const Real sum = c0.sum() + t * (c1.sum() + t * (c2.sum() + t * P));
        return sum / exact_value - Real(1);
      },
      100);
  check_error(error, row == 20 ? -59.8 : -63, "relative error of a row");
  std::printf("  // [%g, %g]: 2^%.1f\n  {%a, %a, %a, %a, %a, %a, %a, %a,\n   {", low, high,
              log2(error).nearest(), a, b, c0.hi, c0.lo, c1.hi, c1.lo, c2.hi, c2.lo);
  print_list(d);
  std::printf("}},\n");
}

void check_series(const Real& slope) {
  const Real error = largest(Real(0x1p-10), Real(0.125), [&](const Real& y) {
    const Real s = y * y;
    Real q = Real(series[4]);
    for (int k = 4; k-- > 0;) q = q * s + Real(series[k]);
    return y * (slope + s * (Real(cubic_hi) + Real(cubic_lo) + s * q)) / erf(y) - Real(1);
  });
  check_error(error, -65.1, "relative error of the series");
}

}  // namespace

int main() {
  std::printf(".rows = {\n");
  for (int row = 0; row < 22; ++row) print_row(row);
  std::printf("},\n");
  const Real slope = two_over_root_pi();
  const double slope_hi = slope.cut(26), slope_lo = (slope - Real(slope_hi)).nearest();
  check(slope_hi == 0x1.20dd75p+0 && slope_lo == 0x1.0a6db446b8ea4p-30, "parts of 2/sqrt(pi)");
  check_series(Real(slope_hi) + Real(slope_lo));
  // Half of the last place of numbers below 1: erf rounds to 1 from here on.
  check_error(erfc(Real(saturated)) / Real(0x1p-54) - Real(1), -44, "bound of results 1");
  const double subnormal = 0x0.e2dfc48da77b5p-1022;
  check(!(Real(subnormal) * slope < Real(0x0.fffffffffffffp-1022)) &&
            Real(subnormal) * slope < Real(0x1.0000000000001p-1022),
        "the largest argument with a subnormal result");
  scalar("slope", slope.nearest());
  scalar("slope_hi", slope_hi);
  scalar("slope_lo", slope_lo);
  scalar("cubic_hi", cubic_hi);
  scalar("cubic_lo", cubic_lo);
  std::printf(".series = {");
  print_list({std::begin(series), std::end(series)});
  std::printf("},\n");
  scalar("raise", 0x1p+200);
  scalar("lower", 0x1p-200);
  scalar("splitter", 0x1p+27 + 1);
  scalar("zero", 0);
  std::printf(".signs = {%a, %a},\n", 1.0, -1.0);
  scalar("unsplit", 0x1p-1034);
  scalar("subnormal", subnormal);
  scalar("small", 0.125);
  scalar("saturated", saturated);
}
