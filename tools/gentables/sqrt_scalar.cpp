// Table of src/algebraic/sqrt, scalar functions: quadratics through the function's values at the
// three Chebyshev nodes of each interval of the mantissa.
#include <vector>

#include "gentables.hpp"

using namespace gentables;

namespace {

struct Quadratic {
  double c0, c1, c2;
};

using Function = Real (*)(const Real&);

Quadratic interpolate(Function f, const Real& low, const Real& high) {
  Real x[3], y[3];
  for (int i = 0; i < 3; ++i) {
    x[i] = (low + high) / Real(2) + (high - low) / Real(2) * cos(Real(2 * i + 1) * pi() / Real(6));
    y[i] = f(x[i]);
  }
  const Real slope01 = (y[1] - y[0]) / (x[1] - x[0]);
  const Real slope12 = (y[2] - y[1]) / (x[2] - x[1]);
  const Real curve = (slope12 - slope01) / (x[2] - x[0]);
  const Real slope = slope01 - curve * (x[0] + x[1]);
  return {(y[0] - slope * x[0] - curve * x[0] * x[0]).nearest(), slope.nearest(), curve.nearest()};
}

void print(const char* name, const std::vector<Quadratic>& rows, double Quadratic::*member) {
  std::printf("constexpr double %s[%zu] = {\n", name, rows.size());
  for (const Quadratic& row : rows) std::printf("  %a,\n", row.*member);
  std::printf("};\n");
}

// `first` is the row of the first interval as it is fixed; it must be the rule's to 2^-37.
std::vector<Quadratic> fit(Function f, int intervals, const Quadratic& first, double log2_bound) {
  std::vector<Quadratic> rows;
  Real worst;
  for (int j = 0; j < intervals; ++j) {
    const Real low = Real(1) + Real(j) / Real(intervals);
    const Real high = Real(1) + Real(j + 1) / Real(intervals);
    Quadratic row = interpolate(f, low, high);
    if (j == 0) {
      for (const auto member : {&Quadratic::c0, &Quadratic::c1, &Quadratic::c2})
        check(abs(Real(row.*member) - Real(first.*member)) < exp2(Real(-37)),
              "the first row does not follow the rule");
      row = first;
    }
    const Real error = largest(low, high, [&](const Real& m) {
      return ((Real(row.c2) * m + Real(row.c1)) * m + Real(row.c0)) / f(m) - Real(1);
    });
    if (worst < error) worst = error;
    rows.push_back(row);
  }
  check_error(worst, log2_bound, "error of a quadratic");
  return rows;
}

}  // namespace

int main() {
  const auto reciprocal = fit([](const Real& m) { return Real(1) / sqrt(m); }, 128,
                              {1.8713552252000643, -1.242721083338007, 0.3713658535287034}, -27.5);
  print("dsqrt_dwA0", reciprocal, &Quadratic::c0);
  print("dsqrt_dwA1", reciprocal, &Quadratic::c1);
  print("dsqrt_dwA2", reciprocal, &Quadratic::c2);
  const auto root = fit([](const Real& m) { return sqrt(m); }, 64,
                        {0.3764573985459165, 0.747093681044062, -0.12355107224720996}, -25.5);
  print("dwA0", root, &Quadratic::c0);
  print("dwA1", root, &Quadratic::c1);
  print("dwA2", root, &Quadratic::c2);
}
