// Tables of src/inverse/atanh: gentables_atanh 64f | 32f
#include <array>
#include <cstring>

#include "natural_log.hpp"

using namespace gentables;

namespace {

constexpr double odd_part[] = {0x1.5555555555575p-2, 0x1.99999999617f9p-3, 0x1.24924a261c820p-3,
                               0x1.c7186a4ccaf82p-4, 0x1.7805c0c359672p-4};

void double_precision() {
  const Real bound = Real(0.0625);
  check_error(largest(Real(), bound,
                      [](const Real& y) {
                        if (y.nearest() == 0) return Real();
                        const Real exact = log((Real(1) + y) / (Real(1) - y)) / Real(2);
                        return (y + y * y * y * evaluate(odd_part, 5, y * y)) / exact - Real(1);
                      }),
              -61.5, "relative error of the polynomial for small arguments");
  natural_rows();
  coefficients("p", 1, odd_part, 5);
  natural_coefficients();
  scalar("tiny", 0x1p-57);
  scalar("small", 0.0625);
  scalar("one", 1);
  scalar("zero", 0);
  scalar("half", 0.5);
  natural_constants();
  scalar("halver", 0x1p+27 + 1);
}

constexpr int rows = 256;
using Cubic = std::array<double, 4>;

// The expansion of ln at 1 begins the table and that at 2 ends it. The next two rows were fitted in
// less precision than the rest, and are kept.
constexpr Cubic first_rows[] = {
    {-1.8333333333333333, 3.0, -1.5, 0.3333333333333333},
    {-1.8275761931406556, 2.982777260582211, -1.482825762468242, 0.3276246952693178},
    {-1.823665760125057, 2.9711360951873864, -1.471274030773735, 0.32380369778502016}};
constexpr Cubic last_row = {-1.140186152773388, 1.5, -0.375, 0.041666666666666664};

Real start_of(int row) { return Real(1) + Real(row) / Real(rows); }

// The solution of a x = b, in place of b; Gauss's elimination.
template <size_t n>
void solve(std::array<std::array<Real, n>, n> a, std::array<Real, n>& b) {
  for (size_t i = 0; i < n; ++i) {
    size_t pivot = i;
    for (size_t k = i + 1; k < n; ++k)
      if (abs(a[pivot][i]) < abs(a[k][i])) pivot = k;
    std::swap(a[i], a[pivot]);
    std::swap(b[i], b[pivot]);
    for (size_t k = 0; k < n; ++k) {
      if (k == i) continue;
      const Real factor = a[k][i] / a[i][i];
      for (size_t j = i; j < n; ++j) a[k][j] = a[k][j] - factor * a[i][j];
      b[k] = b[k] - factor * b[i];
    }
  }
  for (size_t i = 0; i < n; ++i) b[i] = b[i] / a[i][i];
}

// The cubic with the least relative error over the row: at five points, the ends among them, the
// error is the same with alternating sign (exchange of E. Ya. Remez, 1934).
Cubic fit(int row) {
  const Real low = start_of(row), width = Real(1) / Real(rows);
  std::array<Real, 5> points;
  for (int i = 0; i < 5; ++i)
    points[i] = low + width * (Real(1) - cos(pi() * Real(i) / Real(4))) / Real(2);
  std::array<Real, 5> solution;
  const auto error = [&](const Real& x) {
    const Real cubic = solution[0] + x * (solution[1] + x * (solution[2] + x * solution[3]));
    return cubic / log(x) - Real(1);
  };
  for (int round = 0; round < 5; ++round) {
    std::array<std::array<Real, 5>, 5> a;
    for (int i = 0; i < 5; ++i) {
      const Real exact = log(points[i]);
      Real power = Real(1);
      for (int j = 0; j < 4; ++j, power = power * points[i]) a[i][j] = power;
      a[i][4] = i % 2 == 0 ? exact : Real() - exact;
      solution[i] = exact;
    }
    solve(a, solution);
    if (round == 4) break;
    const Real step = width / Real(1 << 12);
    for (int i = 1; i < 4; ++i)  // to the vertex of the parabola through three errors
      for (int k = 0; k < 3; ++k) {
        const Real before = error(points[i] - step), here = error(points[i]),
                   after = error(points[i] + step);
        points[i] =
            points[i] + step * (before - after) / (Real(2) * (before - Real(2) * here + after));
      }
  }
  return {solution[0].nearest(), solution[1].nearest(), solution[2].nearest(),
          solution[3].nearest()};
}

Cubic cubic_of(int row) {
  if (row < static_cast<int>(std::size(first_rows))) return first_rows[row];
  return row == rows - 1 ? last_row : fit(row);
}

Real relative_error(int row, const Cubic& cubic) {
  const Real low = start_of(row), high = start_of(row + 1);
  return largest(row == 0 ? low + Real(0x1p-28) : low, high,
                 [&](const Real& m) { return evaluate(cubic.data(), 4, m) / log(m) - Real(1); });
}

void single_precision() {
  for (const int row : {1, 2})
    for (int i = 0; i < 4; ++i)
      check_error(Real(fit(row)[i]) - Real(first_rows[row][i]), -36,
                  "a fitted row is not the kept");
  std::printf(".rows = {\n");
  for (int row = 0; row < rows; ++row) {
    const Cubic cubic = cubic_of(row);
    check_error(relative_error(row, cubic), row == 0 ? -25.9 : -33.5, "error of a row");
    std::printf("  {%a, %a, %a, %a},\n", cubic[0], cubic[1], cubic[2], cubic[3]);
  }
  std::printf("},\n");
  scalar("ln2", ln2().nearest());
  scalar("minus_one", -1);
  scalar("two", 2);
  scalar("one", 1);
  scalar("half", 0.5);
}

}  // namespace

int main(int argc, char** argv) {
  const char* table = argc == 2 ? argv[1] : "";
  if (std::strcmp(table, "64f") == 0) {
    double_precision();
  } else if (std::strcmp(table, "32f") == 0) {
    single_precision();
  } else {
    std::fprintf(stderr, "usage: gentables_atanh 64f|32f\n");
    return 2;
  }
}
