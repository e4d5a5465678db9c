// Tables of src/trigonometric/sincos: gentables_sincos sin_64f | cos_64f
#include <cmath>
#include <cstring>
#include <limits>

#include "gentables.hpp"

using namespace gentables;

namespace {

constexpr double step[] = {0x1.921fb544p-4, 0x1.0b4611a6p-38, 0x1.3198a2e037073p-73};
constexpr double inv_step = 0x1.45f306dc9c883p+3;

// The factorial's reciprocal, with the sign of the sine's or cosine's series.
Real coefficient(int power) {
  Real factorial(1);
  for (int k = 2; k <= power; ++k) factorial = factorial * Real(k);
  return Real(power / 2 % 2 == 0 ? 1 : -1) / factorial;
}

// The power of two nearest to |x|, with the sign of x.
double nearest_power(const Real& x) {
  double best = 1;
  for (double power = 1; power > 0x1p-10; power /= 2)
    if (abs(abs(x) - Real(power)) < abs(abs(x) - Real(best))) best = power;
  return x < Real() ? -best : best;
}

void rows() {
  std::printf(".rows = {\n");
  for (int j = 0; j < 64; ++j) {
    const Real angle = pi() * Real(j) / Real(32);
    // Multiples of pi/2 have zeros and ones.
    constexpr double of_quarter[] = {0, 1, 0, -1};
    const Real sine = j % 16 == 0 ? Real(of_quarter[j / 16]) : sin(angle);
    const Real cosine = j % 16 == 0 ? Real(of_quarter[(j / 16 + 1) % 4]) : cos(angle);
    const double c = j % 32 == 16 ? -0.0 : nearest_power(cosine);
    const double Cd = (cosine - Real(c)).nearest();
    const double S = sine.nearest();
    const double Sl = (sine - Real(S)).nearest(24);
    check_error(cosine - Real(c) - Real(Cd), -55, "cosine of a row");
    check_error(sine - Real(S) - Real(Sl), -77, "sine of a row");
    std::printf("  {%a, %a, %a, %a},\n", Cd, S, Sl, c);
  }
  std::printf("},\n");
}

void reduction() {
  // N P1 and N P2 have to fit the register, N the low word.
  for (int i = 0; i < 2; ++i)
    check(Real(step[i]).nearest(32) == step[i], "a piece of pi/32 is too long");
  check(inv_step * 0x1p+17 < 0x1p+21, "N is too large");
  const Real rest = pi() / Real(32) - Real(step[0]) - Real(step[1]);
  check(rest.nearest() == step[2], "the pieces are not pi/32");
  scalar("inv_step", inv_step);
  scalar("shifter", 0x1.8p+52);
  scalar("step1", step[0]);
  scalar("step2", step[1]);
  scalar("step3", step[2]);
}

void polynomials() {
  const Real half_step = pi() / Real(64);
  const Real z = half_step * half_step;
  Real sine(1), cosine(1), power(1);
  for (int k = 1; k <= 4; ++k) {
    power = power * z;
    sine = sine + Real(coefficient(2 * k + 1).nearest()) * power;
    cosine = cosine + Real(coefficient(2 * k).nearest()) * power;
  }
  check_error(sine - sin(half_step) / half_step, -65, "sine polynomial");
  check_error(cosine - cos(half_step), -64, "cosine polynomial");
  const char* const names[][4] = {{"s1", "s2", "s3", "s4"}, {"c1", "c2", "c3", "c4"}};
  for (int k = 1; k <= 4; ++k) scalar(names[0][k - 1], coefficient(2 * k + 1).nearest());
  for (int k = 1; k <= 4; ++k) scalar(names[1][k - 1], coefficient(2 * k).nearest());
}

}  // namespace

int main(int argc, char** argv) {
  const bool sine = argc == 2 && std::strcmp(argv[1], "sin_64f") == 0;
  if (!sine && (argc != 2 || std::strcmp(argv[1], "cos_64f") != 0)) {
    std::fprintf(stderr, "usage: gentables_sincos sin_64f|cos_64f\n");
    return 2;
  }
  rows();
  reduction();
  polynomials();
  if (sine) {
    scalar("scale", 0x1p+55);
    scalar("unscale", 0x1p-55);
  }
  scalar("one", 1);
  scalar("zero", 0);
  std::printf(".infinity = __builtin_inf(),\n");
}
