// Tables of src/trigonometric, single precision: trig_32f sin|cos|sincos|tan
#include <cstring>
#include <functional>
#include <utility>
#include <vector>

#include "gentables.hpp"

using namespace gentables;

namespace {

using Coefficients = std::vector<std::pair<const char*, double>>;

// sin(r) on |r| <= pi/2; sin(r), 1 - cos(r) and tan(r) on |r| <= pi/4.
const Coefficients sine = {{"c1", 0x1.000000089705fp+0},
                           {"c3", -0x1.55554ae8ba1bdp-3},
                           {"c5", 0x1.110ee64cd0933p-7},
                           {"c7", -0x1.9f75e2c166f94p-13},
                           {"c9", 0x1.5e0a329a17541p-19}};
const Coefficients short_sine = {
    {"s3", -0.16666654612881793}, {"s5", 0.008332160761521766}, {"s7", -0.00019515283190447318}};
const Coefficients cosine = {
    {"k4", 0.04166664568297557}, {"k6", -0.0013887316254360454}, {"k8", 2.443315705834904e-05}};
const Coefficients tangent = {
    {"p3", -0x1.8867706ed6612p-4}, {"q2", -0x1.b76f5e7f08c11p-2}, {"q4", 0x1.3e66ea6aa37f2p-7}};

void print(const Coefficients& coefficients) {
  for (const auto& [name, value] : coefficients) scalar(name, value);
}

// The sum of the coefficients times z^0, z^1, ...
Real even(const Coefficients& coefficients, const Real& z) {
  Real sum;
  for (size_t k = coefficients.size(); k-- > 0;) sum = sum * z + Real(coefficients[k].second);
  return sum;
}

void check_approximation(const Real& high, double log2_bound,
                         const std::function<Real(const Real&)>& approximation,
                         Real (*function)(const Real&), const char* what) {
  const Real worst = largest(high / Real(1000000), high, [&](const Real& r) {
    return approximation(r) / function(r) - Real(1);
  });
  check_error(worst, log2_bound, what);
}

// The period's reciprocal and its negative in two parts: the head leaves room for a factor N of 20
// bits.
void print_period(const Real& period, const char* inverse, const char* head, const char* tail) {
  scalar("shifter", 0x1.8p+23);
  scalar(inverse, (Real(1) / period).nearest());
  const double first = period.nearest(35);
  scalar(head, -first);
  scalar(tail, (Real(first) - period).nearest());
}

void print_sine() {
  print_period(pi(), "inv_pi", "minus_pi", "minus_pi_lo");
  print(sine);
  check_approximation(
      pi() / Real(2), -25.7, [](const Real& r) { return r * even(sine, r * r); }, sin,
      "the sine's polynomial");
}

}  // namespace

int main(int argc, char** argv) {
  const char* table = argc == 2 ? argv[1] : "";
  const Real octant = pi() / Real(4);
  if (std::strcmp(table, "sin") == 0) {
    print_sine();
  } else if (std::strcmp(table, "cos") == 0) {
    print_sine();
    scalar("half_pi", (pi() / Real(2)).nearest());
    scalar("half", 0.5);
  } else if (std::strcmp(table, "sincos") == 0) {
    print_period(pi() / Real(2), "inv_half_pi", "minus_half_pi", "minus_half_pi_lo");
    print(short_sine);
    print(cosine);
    scalar("one", 1);
    scalar("half", 0.5);
    check_approximation(
        octant, -25, [](const Real& r) { return r + r * r * r * even(short_sine, r * r); }, sin,
        "the short sine's polynomial");
    check_approximation(
        octant, -25,
        [](const Real& r) {
          const Real z = r * r;
          return Real(1) - z / Real(2) + z * z * even(cosine, z);
        },
        cos, "the cosine's polynomial");
  } else if (std::strcmp(table, "tan") == 0) {
    print_period(pi() / Real(2), "inv_half_pi", "minus_half_pi", "minus_half_pi_lo");
    print(tangent);
    scalar("one", 1);
    check_approximation(
        octant, -25,
        [](const Real& r) {
          const Real z = r * r;
          const double p = tangent[0].second, q2 = tangent[1].second, q4 = tangent[2].second;
          return (r + r * z * Real(p)) / (Real(1) + z * (Real(q2) + z * Real(q4)));
        },
        tan, "the tangent's quotient");
  } else {
    std::fprintf(stderr, "usage: trig_32f sin|cos|sincos|tan\n");
    return 2;
  }
}
