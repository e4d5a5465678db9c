// Tables of src/inverse/atan and src/inverse/atan2:
//   gentables_atan arc | atan_64f | atan_32f | atan2 | atan2_scalar
#include <cmath>
#include <cstring>
#include <vector>

#include "gentables.hpp"

using namespace gentables;

namespace {

// atan(t) = t + t s P(s), s = t^2
const std::vector<double> arc = {
    -0x1.5555555555555p-2, 0x1.99999999991bbp-3, -0x1.2492492382a27p-3, 0x1.c71c6f9b157d3p-4,
    -0x1.745be69cca475p-4, 0x1.3ab7c1048afd1p-4, -0x1.029bd34239994p-4};
const std::vector<double> single = {-0x1.5554d99939da6p-2, 0x1.995576336ffc8p-3,
                                    -0x1.1eaae8e4cef8fp-3, 0x1.5c9f1c79aa128p-4};
// atan(t) = t - t s P(s)
const std::vector<double> scalar_series = {
    0x1.555555555550dp-2, -0x1.999999998ebc4p-3, 0x1.24924920083ffp-3, -0x1.c71c6fe231671p-4,
    0x1.745cdc54c206ep-4, -0x1.3b0f2af749a6dp-4, 0x1.10d66a0d03d51p-4, -0x1.dde2d52defd9ap-5,
    0x1.97b4b24760debp-5, -0x1.2b4442c6a6c2fp-5, 0x1.0ad3ae322da11p-6};

Real sum_of(const std::vector<double>& series, const Real& s) {
  Real sum;
  for (size_t i = series.size(); i-- > 0;) sum = sum * s + Real(series[i]);
  return sum;
}

// Relative error of t + sign t s P(s), for 0 < t <= bound.
void check_series(const std::function<Real(const Real&)>& P, int sign, double bound,
                  double log2_bound) {
  check_error(largest(Real(0x1p-40), Real(bound),
                      [&](const Real& t) {
                        const Real s = t * t;
                        return (t + Real(sign) * t * s * P(s)) / atan(t) - Real(1);
                      }),
              log2_bound, "relative error of the polynomial");
}

void check_series(const std::vector<double>& series, double bound, double log2_bound) {
  check_series([&](const Real& s) { return sum_of(series, s); }, 1, bound, log2_bound);
}

void coefficients(const char* letter, const std::vector<double>& values) {
  for (size_t i = 0; i < values.size(); ++i)
    std::printf(".%s%zu = %a,\n", letter, i + 1, values[i]);
}

Real half_pi() { return pi() / Real(2); }

void two_parts(const char* name, const Real& value) {
  const double hi = value.nearest();
  std::printf(".%s = {%a, %a},\n", name, hi, (value - Real(hi)).nearest());
}

double breakpoint(int j) { return std::ldexp(j % 2 == 0 ? 1.25 : 1.75, j / 2 - 3); }

void print_arc() {
  Real reach = Real(0.125);
  std::printf(".rows = {\n");
  for (int j = 0; j < 114; ++j) {
    const Real c = Real(breakpoint(j)), angle = atan(c);
    const double hi = angle.nearest(26);
    std::printf("  {%a, %a},\n", hi, (angle - Real(hi)).nearest());
    const Real half_width = Real(std::ldexp(0.25, j / 2 - 3));
    for (const Real& q : {c - half_width, c + half_width}) {
      const Real t = abs((q - c) / (Real(1) + q * c));
      if (reach < t) reach = t;
    }
  }
  std::printf("},\n");
  check(!(Real(0.125) < reach), "the reduced range is wider than stated");
  check_series(arc, 0.125, -61.7);
  coefficients("c", arc);
}

void print_atan_64f() {
  const double half_pi_hi = half_pi().nearest();
  scalar("one", 1);
  scalar("half_pi_hi", half_pi_hi);
  scalar("half_pi_lo", (half_pi() - Real(half_pi_hi)).nearest());
  scalar("splitter", 0x1p+27 + 1);
}

void print_atan_32f() {
  check_series(single, 0.375, -26.8);
  std::printf(".intervals = {\n");
  std::printf("  {%a, %a, %a, %a, %a},\n", 1.0, 0.0, 1.0, 0.0, 0.0);
  for (const double c : {0.5625, 1.625})
    std::printf("  {%a, %a, %a, %a, %a},\n", 1.0, -c, 1.0, c, atan(Real(c)).nearest());
  std::printf("  {%a, %a, %a, %a, %a},\n},\n", 0.0, -1.0, 0.0, 1.0, half_pi().nearest());
  coefficients("a", single);
  std::printf(".m_or_p = {%a, %a},\n", -1.0, 1.0);
}

void print_atan2() {
  const double pi_hi = pi().nearest();
  std::printf(".half = {{%a, %a, %a}, {%a, %a, %a}},\n", 0.0, 0.0, 1.0, pi_hi,
              (pi() - Real(pi_hi)).nearest(), -1.0);
  scalar("one", 1);
  scalar("minus_one", -1);
  scalar("zero", 0);
  two_parts("quarter_pi", pi() / Real(4));
  two_parts("half_pi", half_pi());
  two_parts("three_quarters_pi", Real(3) * half_pi() / Real(2));
  two_parts("pi", pi());
  scalar("raise", 0x1p+200);
}

void array(const char* name, const std::vector<double>& values) {
  std::printf("constexpr double %s[%zu] = {\n", name, values.size());
  for (const double value : values) std::printf("  %a,\n", value);
  std::printf("};\n");
}

// The polynomial through (t - atan(t))/t^3 at the Chebyshev nodes of 0 <= s <= bound^2, less
// scalar_series.
std::vector<double> series_correction(double bound) {
  const size_t n = scalar_series.size();
  std::vector<Real> node(n), difference(n), sum(n);
  for (size_t i = 0; i < n; ++i) {
    const Real angle =
        Real(static_cast<double>(2 * i + 1)) * pi() / Real(static_cast<double>(2 * n));
    node[i] = Real(bound) * Real(bound) * (Real(1) + cos(angle)) / Real(2);
    const Real t = sqrt(node[i]);
    difference[i] = (t - atan(t)) / (t * node[i]);
  }
  for (size_t order = 1; order < n; ++order)
    for (size_t i = n; i-- > order;)
      difference[i] = (difference[i] - difference[i - 1]) / (node[i] - node[i - order]);
  for (size_t i = n; i-- > 0;) {  // sum <- sum (s - node) + difference
    for (size_t k = n - 1; k > 0; --k) sum[k] = sum[k - 1] - sum[k] * node[i];
    sum[0] = difference[i] - sum[0] * node[i];
  }
  std::vector<double> correction;
  for (size_t k = 0; k < n; ++k) correction.push_back((sum[k] - Real(scalar_series[k])).nearest());
  return correction;
}

void print_atan2_scalar() {
  constexpr double bound = 0.308;
  const auto correction = series_correction(bound);
  check_series([&](const Real& s) { return sum_of(scalar_series, s) + sum_of(correction, s); }, -1,
               bound, -67);
  std::vector<double> hi = {0}, lo = {0};
  for (const Real& angle : {atan(Real(0.5)), atan(Real(1)), atan(Real(1.5)), half_pi()}) {
    hi.push_back(angle.nearest());
    lo.push_back((angle - Real(hi.back())).nearest());
  }
  const double pi_hi = pi().nearest();
  array("aT", scalar_series);
  array("aT_correction", correction);
  array("atanhi", hi);
  array("atanlo", lo);
  array("pi_or_zero", {pi_hi, 0});
  array("pi_or_zeroLo", {1.224646799147353e-16, 0});  // the rest of pi, to 16 digits
  array("m_or_p", {-1, 1});
}

}  // namespace

int main(int argc, char** argv) {
  struct {
    const char* table;
    void (*print)();
  } const tables[] = {{"arc", print_arc},
                      {"atan_64f", print_atan_64f},
                      {"atan_32f", print_atan_32f},
                      {"atan2", print_atan2},
                      {"atan2_scalar", print_atan2_scalar}};
  for (const auto& [table, print] : tables)
    if (argc == 2 && std::strcmp(argv[1], table) == 0) {
      print();
      return 0;
    }
  std::fprintf(stderr, "usage: gentables_atan arc|atan_64f|atan_32f|atan2|atan2_scalar\n");
  return 2;
}
