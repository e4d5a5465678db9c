// Table of src/hyperbolic/tanh.
#include <cmath>
#include <vector>

#include "gentables.hpp"

using namespace gentables;

namespace {

constexpr double saturation = 0x1.30fc1931f09cbp+4;
constexpr int degree = 14;
// The series below 0.125, fitted as a whole: its first coefficient lies near -1/3.
constexpr double third_hi = -0x1.555555p-2, third_lo = -0x1.5555548f72a9ap-28;
constexpr double odd_series[] = {0x1.111111110f2ffp-3, -0x1.ba1ba1adeeb47p-5, 0x1.664f365ee6189p-6,
                                 -0x1.22608847886ffp-7, 0x1.cca925be3321p-9};

// The interpolating polynomial at the Chebyshev nodes of [-1/2, 1/2], from the constant up. One
// node is 0: the constant is f(0).
template <class F>
std::vector<Real> interpolate(const F& f) {
  std::vector<Real> nodes, differences;
  for (int i = 0; i <= degree; ++i) {
    const Real angle = pi() * Real(2 * i + 1) / Real(2 * (degree + 1));
    nodes.push_back(2 * i == degree ? Real() : cos(angle) / Real(2));
    differences.push_back(f(nodes.back()));
  }
  for (int order = 1; order <= degree; ++order)
    for (int i = degree; i >= order; --i)
      differences[i] = (differences[i] - differences[i - 1]) / (nodes[i] - nodes[i - order]);
  std::vector<Real> c(degree + 1);  // Newton's form, multiplied out from the innermost factor
  for (int i = degree; i >= 0; --i) {
    for (int k = degree; k > 0; --k) c[k] = c[k - 1] - nodes[i] * c[k];
    c[0] = differences[i] - nodes[i] * c[0];
  }
  return c;
}

// A number cut after `bits` bits, and what is left of it.
struct Pair {
  double hi, lo;

  Pair(const Real& x, int bits) : hi(x.cut(bits)), lo((x - Real(hi)).nearest()) {}
  Real sum() const { return Real(hi) + Real(lo); }
};

void row(int i, const Real& low, const Real& high) {
  const Real width = high - low;
  const double scale = (Real(1) / width).nearest();
  const double offset = (Real() - (low + high) / (Real(2) * width)).nearest();
  const auto value = [&](const Real& u) { return tanh((u - Real(offset)) / Real(scale)); };
  const auto c = interpolate(value);
  const Pair v(c[0], 53), p(c[1], 53), q(c[2], 26);
  std::printf("  {%a, %a,\n   %a, %a,\n   %a, %a,\n   %a, %a,\n   {", scale, offset, v.hi, v.lo,
              p.hi, p.lo, q.hi, q.lo);
  std::vector<Real> stored = {v.sum(), p.sum(), q.sum()};
  for (int k = 3; k <= degree; ++k) {
    stored.push_back(Real(c[k].nearest()));
    std::printf("%a,%s", c[k].nearest(), k == degree ? "}},\n" : k % 3 == 2 ? "\n    " : " ");
  }
  check_error(largest(Real(-0.5), Real(0.5),
                      [&](const Real& u) { return horner(stored, u) / value(u) - Real(1); }),
              -63, "error of a row");
  if (i == 0)
    check(v.hi == 0x1.1e1dd055cd971p-3 && v.lo == 0x1.6170649f62403p-56, "value of row 0");
  if (i == 28)
    check(scale == 0x1.4e78ac3ce95d7p-2 && offset == -0x1.6e78ac3ce95d7p+2 &&
              v.hi == 0x1.ffffffffffff5p-1,
          "row 28");
}

}  // namespace

int main() {
  std::printf(".rows = {\n");
  for (int i = 0; i <= 28; ++i) {
    const Real binade = exp2(Real(i / 4 - 3));
    const Real low = binade * (Real(1) + Real(i % 4) / Real(4));
    row(i, low, i == 28 ? Real(saturation) : low + binade / Real(4));
  }
  std::printf("},\n");
  const Real eighth = Real(1) / Real(8);
  const Real worst = largest(eighth / Real(400), eighth, [&](const Real& a) {
    const Real z = a * a;
    const Real cubic = Real(third_hi) + Real(third_lo) + z * horner(odd_series, z);
    return (a + a * z * cubic) / tanh(a) - Real(1);
  });
  check_error(worst, -62, "error of the series near zero");
  check(!(tanh(Real(saturation)) < Real(1) - exp2(Real(-54))), "the bound of saturation");
  scalar("third_hi", third_hi);
  scalar("third_lo", third_lo);
  const char* const names[] = {"t5", "t7", "t9", "t11", "t13"};
  for (int k = 0; k < 5; ++k) scalar(names[k], odd_series[k]);
  scalar("least", 0x1.0000000000001p-1022);
  scalar("splitter", 0x1p+27 + 1);
  scalar("zero", 0);
  std::printf(".sign = {%a, %a},\n", 1.0, -1.0);
  scalar("first", 0.125);
  scalar("saturation", saturation);
}
