// Table of src/trigonometric/tan.
#include <array>
#include <cmath>

#include "gentables.hpp"

using namespace gentables;

namespace {

constexpr int degree = 15;
using Series = std::array<Real, degree + 1>;

constexpr double inv_step = 0x1.45f306dc9c883p+3;
constexpr double step[] = {0x1.921fb5444p-4, 0x1.68c234c4cp-43, 0x1.98a2e03707345p-81};
constexpr double pole_step[] = {0x1.921fb54444p-4, -0x1.2e7b967674p-44, 0x1.8a2e03707344ap-85};

// Good to 29 bits, which is ample; results rest on it.
constexpr double tail_of_row_1 = 0x1.87d054e88f7a5p-58;

Real step_times(int n) { return pi() * Real(n) / Real(32); }

bool is_pole_row(int j) { return j >= 9 && j <= 23; }

// tan about x, by f' = 1 + f^2.
Series tangent(const Real& x) {
  Series a;
  a[0] = tan(x);
  for (int n = 0; n < degree; ++n) {
    Real sum(n == 0 ? 1 : 0);
    for (int k = 0; k <= n; ++k) sum = sum + a[k] * a[n - k];
    a[n + 1] = sum / Real(n + 1);
  }
  return a;
}

// tan(pi/2 + u) + 1/u about a point u other than 0.
Series tangent_less_pole(const Real& u) {
  Series a = tangent(u + step_times(16));
  Real pole = Real(1) / u;
  for (int n = 0; n <= degree; ++n) {
    a[n] = a[n] + pole;
    pole = Real() - pole / u;
  }
  return a;
}

// The same about 0, where it is f = 1/u - cot(u), by f' = 1 + f^2 - 2 f/u.
Series tangent_less_pole_at_pole() {
  Series b;
  for (int n = 1; n <= degree; n += 2) {
    Real sum(n == 1 ? 1 : 0);
    for (int k = 1; k < n - 1; k += 2) sum = sum + b[k] * b[n - 1 - k];
    b[n] = sum / Real(n + 2);
  }
  return b;
}

Series expansion(int j) {
  if (j == 0) {
    Series odd = tangent(Real());
    return odd;
  }
  if (j == 16) return tangent_less_pole_at_pole();
  return is_pole_row(j) ? tangent_less_pole(step_times(j - 16)) : tangent(step_times(j));
}

// What a row stands for at its point plus r.
Real exact(int j, const Real& r) {
  const Real whole = tan(step_times(j) + r);
  return is_pole_row(j) ? whole + Real(1) / (step_times(j - 16) + r) : whole;
}

void row(int j) {
  const Series c = expansion(j);
  const bool pole = is_pole_row(j);
  const double T_hi = pole ? c[0].multiple_of_power(-40) : c[0].nearest();
  const double T_lo = j == 1 ? tail_of_row_1 : (c[0] - Real(T_hi)).nearest();
  const double slope1 = pole ? 0 : 1;
  const double slope2 = (c[1] - Real(slope1)).nearest();
  check_error(c[0] - Real(T_hi) - Real(T_lo), pole ? -93 : -86, "a tangent of the table");

  const Real edge = step_times(1) / Real(2);
  const Real worst = largest(Real() - edge, edge, [&](const Real& r) {
    if (abs(r) < Real(0x1p-20)) return Real();
    Real sum;
    for (int n = degree; n >= 2; --n) sum = sum * r + Real(c[static_cast<size_t>(n)].nearest());
    const Real result = Real(T_hi) + Real(T_lo) + (Real(slope1) + Real(slope2)) * r + sum * r * r;
    return (result - exact(j, r)) / tan(step_times(j) + r);
  });
  check_error(worst, -58.3, "expansion of a row");

  std::printf("  {");
  for (const int n : {8, 9, 10, 2, 11, 3, 12, 4, 13, 5, 14, 6, 15, 7})
    std::printf("%a,%s", c[static_cast<size_t>(n)].nearest(),
                n == 2 || n == 4 || n == 6 ? "\n   " : " ");
  std::printf("%a, %a,\n   %a, %a, %d, {0, %s}},\n", T_hi, T_lo, slope1, slope2, pole ? 1 : 0,
              pole ? "0xfffffff8" : "0");
}

void check_pieces(const double (&piece)[3], int bits) {
  for (int i = 0; i < 2; ++i)
    check(Real(piece[i]).nearest(bits) == piece[i], "a piece of pi/32 is too long");
  check((step_times(1) - Real(piece[0]) - Real(piece[1])).nearest() == piece[2],
        "the pieces are not pi/32");
}

}  // namespace

int main() {
  check(inv_step * 12800 < 0x1p+17, "K is too large");
  check_pieces(step, 35);
  check_pieces(pole_step, 39);
  scalar("inv_step", inv_step);
  scalar("shifter", 0x1.8p+52);
  scalar("pole_shifter", 0x1.8p+56);
  scalar("pole_step1", pole_step[0]);
  scalar("pole_step2", pole_step[1]);
  scalar("pole_step3", pole_step[2]);
  scalar("step1", step[0]);
  scalar("step2", step[1]);
  scalar("step3", step[2]);
  scalar("step_rest", (Real(pole_step[0]) - step_times(1)).nearest());
  std::printf(".short_mask = {0xfffc0000, 0xffffffff},\n");
  scalar("one", 1);
  scalar("zero", 0);
  std::printf(".infinity = __builtin_inf(),\n");
  scalar("scale", 0x1p+55);
  scalar("unscale", 0x1p-55);
  std::printf(".rows = {\n");
  for (int j = 0; j < 32; ++j) row(j);
  std::printf("},\n");
}
