// Tables of src/exponential/exp: gentables_exp 50_64f | ha_64f | ha_32f
#include <cmath>
#include <cstring>
#include <initializer_list>

#include "gentables.hpp"

using namespace gentables;

namespace {

constexpr double low_polynomial[] = {0x1.fffffffffdbd9p-2, 0x1.5555555557676p-3,
                                     0x1.555573c3184f2p-5, 0x1.111108f38cb59p-7};
constexpr double high_polynomial[] = {0x1p-1, 0x1.55555555548f8p-3, 0x1.5555555558fccp-5,
                                      0x1.111123aaf20d3p-7, 0x1.6c16a1c2a3ffdp-10};

struct Bounds {
  double overflow, subnormal, underflow;
};
constexpr Bounds double_bounds = {0x1.62e42fefa39efp+9, -0x1.6232bdd7abcd2p+9,
                                  -0x1.74910d52d3052p+9};
constexpr Bounds float_bounds = {0x1.62e42ep+6, -0x1.5d589ep+6, -0x1.9fe368p+6};

// Each bound is the last ordinary argument: e^x passes `power`'s power of two right after it.
void check_bound(double bound, double power, bool is_float) {
  const Real logarithm = Real(power) * ln2();
  const double next =
      is_float ? std::nextafterf(static_cast<float>(bound), bound > 0 ? INFINITY : -INFINITY)
               : std::nextafter(bound, bound > 0 ? INFINITY : -INFINITY);
  check(!(abs(logarithm) < abs(Real(bound))), "a bound lies beyond the logarithm it stands for");
  check(abs(logarithm) < abs(Real(next)), "a bound is not the last number before its logarithm");
}

// Relative error of 1 + q(r) against e^r over the reduced range.
template <size_t count>
void check_polynomial(const double (&c)[count], double log2_bound) {
  const Real half_step = ln2() / Real(128);
  const Real worst = largest(Real() - half_step, half_step, [&](const Real& r) {
    Real sum = Real(c[count - 1]);
    for (size_t k = count - 1; k-- > 0;) sum = sum * r + Real(c[k]);
    return r + sum * r * r - expm1(r);
  });
  check_error(worst, log2_bound, "error of the polynomial");
}

void constants(const double* polynomial, int degree, const Bounds& bounds) {
  const Real step = ln2() / Real(64);
  const double step_hi = 0x1.62e42fefap-7;
  check(std::fmod(step_hi, 0x1p-42) == 0, "N step_hi is not exact");
  scalar("inv_step", (Real(1) / step).nearest());
  scalar("shifter", 0x1.8p+52);
  const char* const names[] = {"c2", "c3", "c4", "c5", "c6"};
  for (int k = 0; k <= degree - 2; ++k) scalar(names[k], polynomial[k]);
  scalar("overflow", bounds.overflow);
  scalar("subnormal", bounds.subnormal);
  scalar("underflow", bounds.underflow);
  scalar("step_hi", step_hi);
  scalar("step_lo", (step - Real(step_hi)).nearest());
  scalar("least", 0x1.0000000000001p-1022);
  scalar("largest", 0x1.fffffffffffffp+1023);
  scalar("zero", 0);
  scalar("one", 1);
  scalar("two", 2);
  scalar("unscale", 0x1p-60);
}

void low() {
  std::printf(".pow2 = {\n");
  for (int j = 0; j < 64; ++j) std::printf("  %a,\n", exp2(Real(j) / Real(64)).nearest());
  std::printf("},\n");
  check_polynomial(low_polynomial, -53);
  constants(low_polynomial, 5, double_bounds);
}

void high(const Bounds& bounds) {
  std::printf(".pow2 = {\n");
  for (int j = 0; j < 64; ++j) {
    const Real power = exp2(Real(j) / Real(64));
    const double value = power.nearest();
    std::printf("  {%a, %a},\n", value, (power / Real(value) - Real(1)).nearest());
  }
  std::printf("},\n");
  check_polynomial(high_polynomial, -62);
  constants(high_polynomial, 6, bounds);
  scalar("cut", 0x1.8p+32);
}

}  // namespace

int main(int argc, char** argv) {
  const char* table = argc == 2 ? argv[1] : "";
  if (std::strcmp(table, "50_64f") == 0) {
    low();
  } else if (std::strcmp(table, "ha_64f") == 0) {
    check_bound(double_bounds.overflow, 1024, false);
    high(double_bounds);
  } else if (std::strcmp(table, "ha_32f") == 0) {
    check_bound(float_bounds.overflow, 128, true);
    check_bound(float_bounds.subnormal, -126, true);
    check_bound(float_bounds.underflow, -150, true);
    high(float_bounds);
  } else {
    std::fprintf(stderr, "usage: gentables_exp 50_64f|ha_64f|ha_32f\n");
    return 2;
  }
}
