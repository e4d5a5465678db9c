// Tables of src/hyperbolic/sinhcosh: gentables_sinhcosh sinh_50_64f | sinh_ha_64f | cosh_50_64f |
// cosh_ha_64f | sinhcosh_32f
#include <cmath>
#include <cstring>
#include <string_view>

#include "gentables.hpp"

using namespace gentables;

namespace {

constexpr double low_polynomial[] = {0x1.fffffffffdbd9p-2, 0x1.5555555557676p-3,
                                     0x1.555573c3184f2p-5, 0x1.111108f38cb59p-7};
constexpr double high_polynomial[] = {0x1p-1, 0x1.55555555548f8p-3, 0x1.5555555558fccp-5,
                                      0x1.111123aaf20d3p-7, 0x1.6c16a1c2a3ffdp-10};
constexpr double overflow = 0x1.633ce8fb9f87ep+9, single = 0x1.57cd0e702682p+4;

Real power(int j) { return exp2(Real(j) / Real(64)); }

void one_part(const char* name, int rows) {
  std::printf(".%s = {\n", name);
  for (int j = 0; j < rows; ++j) std::printf("  %a,\n", power(j).nearest());
  std::printf("},\n");
}

void two_parts() {
  std::printf(".pow2 = {\n");
  for (int j = 0; j <= 64; ++j) {
    const double hi = power(j).nearest();
    std::printf("  {%a, %a},\n", hi, (power(j) - Real(hi)).nearest());
  }
  std::printf("},\n");
}

void reduction() {
  const Real step = ln2() / Real(64);
  const double step_hi = 0x1.62e42fefap-7;
  check(std::fmod(step_hi, 0x1p-42) == 0, "N step_hi is not exact");
  check(overflow == (Real(1025) * ln2()).nearest(), "overflow bound");
  check(single == (Real(31) * ln2()).nearest(), "bound of the single exponential");
  std::printf(".reduction = {\n");
  scalar("inv_step", (Real(1) / step).nearest());
  scalar("shifter", 0x1.8p+52);
  scalar("step_hi", step_hi);
  scalar("step_lo", (step - Real(step_hi)).nearest());
  scalar("overflow", overflow);
  scalar("single", single);
  std::printf("},\n");
}

// Relative error of 1 + q(r) against e^r over the reduced range.
template <size_t count>
void series(const double (&c)[count], double log2_bound) {
  const Real half_step = ln2() / Real(128);
  const Real worst = largest(Real() - half_step, half_step,
                             [&](const Real& r) { return r + horner(c, r) * r * r - expm1(r); });
  check_error(worst, log2_bound, "error of the polynomial");
  std::printf(".series = {\n");
  const char* const names[] = {"c2", "c3", "c4", "c5", "c6"};
  for (size_t k = 0; k < count; ++k) scalar(names[k], c[k]);
  std::printf("},\n");
}

void near_zero(double bound) {
  const double c[] = {(Real(1) / Real(6)).nearest(), (Real(1) / Real(120)).nearest(),
                      (Real(1) / Real(5040)).nearest(), 0x1.71de3a556c734p-19};
  check(c[3] == (Real(1) / Real(362880)).nearest(), "1/9!");
  const Real worst = largest(Real(bound) / Real(400), Real(bound), [&](const Real& a) {
    return (a + a * a * a * horner(c, a * a)) / sinh(a) - Real(1);
  });
  check_error(worst, -63, "error of the series near zero");
  std::printf(".near_zero = {\n");
  scalar("bound", bound);
  const char* const names[] = {"s3", "s5", "s7", "s9"};
  for (int k = 0; k < 4; ++k) scalar(names[k], c[k]);
  std::printf("},\n");
}

void factors(bool with_least) {
  if (with_least) scalar("least", 0x1.0000000000001p-1022);
  scalar("largest", 0x1.fffffffffffffp+1023);
  scalar("one", 1);
  scalar("two", 2);
}

void sinh_high() {
  two_parts();
  reduction();
  series(high_polynomial, -62);
  near_zero(0x1.bdb8cdadbe12p-6);
  // |r| has 11 bits above the unit that a sum with `cut` keeps.
  const double cut = 0x1.8p+34;
  check(ln2() / Real(128) < Real(std::ldexp(1, 11) * (std::nextafter(cut, INFINITY) - cut)),
        "the leading part of r has more than 11 bits");
  scalar("cut", cut);
  factors(true);
}

void single_precision() {
  one_part("twoJ", 64);
  const double d[] = {0x1.fffffffff626bp-1, 0x1.62e42fef9e28ep-1, 0x1.ebfc2ec2dedaep-3,
                      0x1.c6b0cef9b9f1ep-5};
  const Real worst = largest(Real() - Real(1) / Real(128), Real(1) / Real(128),
                             [&](const Real& f) { return horner(d, f) / exp2(f) - Real(1); });
  check_error(worst, -36, "error of the polynomials");
  scalar("log2_e", (Real(1) / ln2()).nearest());
  const char* const names[] = {"d0", "d1", "d2", "d3"};
  for (int k = 0; k < 4; ++k) scalar(names[k], d[k]);
  scalar("shifter", 0x1.8p+17);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view table = argc == 2 ? argv[1] : "";
  if (table == "sinh_50_64f") {
    two_parts();
    reduction();
    series(low_polynomial, -53);
    near_zero(0x1.eb851eb851eb8p-5);
    factors(true);
  } else if (table == "sinh_ha_64f") {
    sinh_high();
  } else if (table == "cosh_50_64f") {
    one_part("pow2", 65);
    reduction();
    series(low_polynomial, -53);
    factors(false);
  } else if (table == "cosh_ha_64f") {
    two_parts();
    reduction();
    series(high_polynomial, -62);
    factors(false);
  } else if (table == "sinhcosh_32f") {
    single_precision();
  } else {
    std::fprintf(stderr,
                 "usage: gentables_sinhcosh sinh_50_64f|sinh_ha_64f|cosh_50_64f|cosh_ha_64f|"
                 "sinhcosh_32f\n");
    return 2;
  }
}
