// Tables of src/error/erfc: gentables_erfc 64f | 32f
#include <cmath>
#include <cstring>

#include "error_rows.hpp"
#include "remez.hpp"

using namespace gentables;

namespace {

constexpr int first_scaled = 6;  // from this row on the rows hold erfc(y) e^(y^2)
constexpr double end_of_rows = 27.25;
constexpr double exponential[] = {0x1p-1, 0x1.55555555548f8p-3, 0x1.5555555558fccp-5,
                                  0x1.111123aaf20d3p-7, 0x1.6c16a1c2a3ffdp-10};

// erfc or erfc(y) e^(y^2) at centre + t width, in powers of t, from erfc'' = -2 y erfc' and
// g' = 2 y g - 2/sqrt(pi).
Coefficients expansion(bool scaled, const Real& centre, const Real& width) {
  const Real square = centre * centre;
  Coefficients c = {erfc(centre)};
  if (scaled) {
    c[0] = c[0] * exp(square);
    c.push_back(width * (Real(2) * centre * c[0] - two_over_root_pi()));
  } else {
    c.push_back(Real() - two_over_root_pi() * exp(Real() - square) * width);
  }
  for (int k = 0; k < 60; ++k) {
    const auto at = static_cast<size_t>(k);
    const Real slope = scaled ? Real(k + 1) * (centre * c[at + 1] + width * c[at])
                              : Real(-k - 1) * centre * c[at + 1] - width * Real(k) * c[at];
    c.push_back(Real(2) * width * slope / Real((k + 1) * (k + 2)));
  }
  return c;
}

// Row n serves (1 + y)^4 in [2^n, 2^(n + 1)).
Real start_of(int row) { return exp2(Real(row) / Real(4)) - Real(1); }

void print_row(int row) {
  const bool scaled = row >= first_scaled;
  const Real low = start_of(row), high = row == 19 ? Real(end_of_rows) : start_of(row + 1);
  double a = 4, b = -0.5;
  if (row > 0) {
    a = std::exp2(-std::ceil(log2(high - low).nearest()));
    if (row == 1) a = 2;
    b = -(Real(a) * (low + high) / Real(2)).multiple_of_power(-3);
  }
  if (row == 1) check(b == -0.625, "reduction of row 1");
  const Real width = Real(1) / Real(a), centre = Real() - Real(b) * width;
  const double t_low = (Real(a) * low + Real(b)).nearest();
  const double t_high = (Real(a) * high + Real(b)).nearest();
  const Coefficients exact = expansion(scaled, centre, width);
  const Function f = [&](const Real& t) { return polynomial(exact, t); };
  const Function relative = [&](const Real& t) { return Real(1) / f(t); };

  // Six coefficients in two parts, the others with the rounding of the first taken up by the rest.
  const Coefficients fit = minimax(f, relative, 16, t_low, t_high);
  Coefficients six;
  std::vector<Pair> c;
  for (size_t k = 0; k < 6; ++k) {
    c.push_back(cut_pair(fit[k], 53));
    six.push_back(c.back().sum());
  }
  const auto sixth = [](const Real& t) { return t * t * t * t * t * t; };
  const auto d =
      minimax_doubles([&](const Real& t) { return (f(t) - polynomial(six, t)) / sixth(t); },
                      [&](const Real& t) { return sixth(t) / f(t); }, 10, 0, t_low, t_high);
  if (row == 0)
    check(c[0].hi == 0.8596837951986661 && c[0].lo == 7.067062302091855e-17, "c0 of row 0");

  Coefficients rounded(six);
  for (const double coefficient : d) rounded.push_back(Real(coefficient));
  const Real error = largest(
      low, high,
      [&](const Real& y) {
        Real value = erfc(y);
        if (scaled) value = value * exp(y * y);
        return polynomial(rounded, Real(a) * y + Real(b)) / value - Real(1);
      },
      60);
  check_error(error, row == 5 ? -64 : -66, "relative error of a row");
  // The kernel's sums are exact while t times the rest is not far larger than c_k.
  for (size_t k = 0; k < 6; ++k) {
    const Coefficients rest = without_first(rounded, k + 1);
    const Real ratio = largest(
        Real(t_low), Real(t_high),
        [&](const Real& t) { return t * polynomial(rest, t) / rounded[k]; }, 20);
    check(ratio < Real(2), "a coefficient is too small for its sum");
  }

  std::printf("  // [%.4f, %.4f]: 2^%.1f\n  {%a, %a,\n   {", low.nearest(), high.nearest(),
              log2(error).nearest(), a, b);
  for (const Pair& pair : c)
    std::printf("{%a, %a}%s", pair.hi, pair.lo, &pair == &c.back() ? "" : ", ");
  std::printf("},\n   {");
  print_list(d);
  std::printf("}},\n");
}

void check_exponential(const Real& half_step) {
  const Real error = largest(Real() - half_step, half_step, [](const Real& r) {
    Real sum = Real(exponential[4]);
    for (int k = 4; k-- > 0;) sum = sum * r + Real(exponential[k]);
    return r + r * r * sum - expm1(r);
  });
  check_error(error, -66, "error of the exponential");
}

}  // namespace

int main(int argc, char** argv) {
  const char* table = argc == 2 ? argv[1] : "";
  const bool is_float = std::strcmp(table, "32f") == 0;
  if (!is_float && std::strcmp(table, "64f") != 0) {
    std::fprintf(stderr, "usage: gentables_erfc 64f|32f\n");
    return 2;
  }
  std::printf(".rows = {\n");
  for (int row = 0; row < 20; ++row) print_row(row);
  const Real step = ln2() / Real(64);
  check_exponential(step / Real(2));
  std::printf("},\n.exponential = {");
  print_list({std::begin(exponential), std::end(exponential)});
  std::printf("},\n.pow2 = {\n");
  for (int j = 0; j < 64; ++j) {
    const Pair power = cut_pair(exp2(Real(j) / Real(64)), 26);
    if (j == 1) check(power.hi == 0x1.02c9a38p+0 && power.lo == 2.4090717183653223e-08, "2^(1/64)");
    std::printf("  {%a, %a},\n", power.hi, power.lo);
  }
  std::printf("},\n");
  const double step_hi = 0x1.62e42fefap-7;
  const double step_lo = (step - Real(step_hi)).nearest();
  check(step_lo == 2.572804622327669e-14, "low part of ln2/64");
  scalar("step_hi", step_hi);
  scalar("step_lo", step_lo);
  scalar("inv_step", (Real(1) / step).nearest());
  scalar("lower", 0x1p-200);
  scalar("shifter", 0x1.8p+52);
  scalar("splitter", 0x1p+27 + 1);
  scalar("zero", 0);
  scalar("least", 0x1.0000000000001p-1022);
  if (is_float) std::printf(".neighbours = {%a, %a},\n", 1 - 0x1p-53, 2 + 0x1p-51);
  scalar("one", 1);
  scalar("minus_one", -1);
  scalar("two", 2);
  // Results become 0, leave the range of the subnormal path's split, become subnormal.
  const double underflow = is_float ? 0x1.41bbf8p+3 : 0x1.b39dc41e48bfdp+4;
  const double few_bits = 0x1.ab30a0f9c4611p+4, subnormal = 0x1.a8b12fc6e4892p+4;
  const double two_from = -0x1.7744f8f74e94ap+2;
  if (is_float) {
    check(erfc(Real(underflow)) < Real(0x1p-150), "a result at the underflow bound");
    check(Real(0x1p-150) < erfc(Real(std::nextafterf(static_cast<float>(underflow), 0))),
          "a result below the underflow bound");
  } else {
    check_error(erfc(Real(underflow)) / exp2(Real(-1075)) - Real(1), -44, "underflow bound");
  }
  check_error(erfc(Real(few_bits)) / exp2(Real(-1034)) - Real(1), -44, "bound of the split");
  check_error(erfc(Real(subnormal)) / exp2(Real(-1022)) - Real(1), -44, "subnormal bound");
  check_error(erfc(Real(-two_from)) / exp2(Real(-53)) - Real(1), -44, "bound of results 2");
  scalar("underflow", underflow);
  scalar("few_bits", few_bits);
  scalar("subnormal", subnormal);
  scalar("two_from", two_from);
}
