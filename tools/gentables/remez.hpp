// Minimax polynomials at 300 bits, for the generators that fit their tables.
//
// Method  Remez's exchange. A reference of count + 1 arguments determines the polynomial whose
//         weighted error has one size and alternating signs on it; the extrema of that error, found
//         on a grid and refined by parabolas, are the next reference.
// Source  E. Ya. Remez, C. R. Acad. Sci. Paris 199 (1934) 337-340.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "gentables.hpp"

namespace gentables {

using Coefficients = std::vector<Real>;  // the constant term first
using Function = std::function<Real(const Real&)>;

inline Real polynomial(const Coefficients& c, const Real& x) {
  Real sum = c.back();
  for (size_t k = c.size() - 1; k-- > 0;) sum = sum * x + c[k];
  return sum;
}

// c without its first `count` terms: (c(x) - c0 - c1 x - ...) / x^count.
inline Coefficients without_first(const Coefficients& c, size_t count) {
  return {c.begin() + static_cast<std::ptrdiff_t>(count), c.end()};
}

// The solution of the linear system whose equations are rows of coefficients and a right side.
inline std::vector<Real> solve(std::vector<std::vector<Real>> rows) {
  const size_t n = rows.size();
  for (size_t k = 0; k < n; ++k) {
    const auto pivot =
        std::max_element(rows.begin() + static_cast<std::ptrdiff_t>(k), rows.end(),
                         [&](const auto& a, const auto& b) { return abs(a[k]) < abs(b[k]); });
    std::swap(rows[k], *pivot);
    for (size_t i = k + 1; i < n; ++i) {
      const Real factor = rows[i][k] / rows[k][k];
      for (size_t j = k + 1; j <= n; ++j) rows[i][j] = rows[i][j] - factor * rows[k][j];
    }
  }
  std::vector<Real> solution(n);
  for (size_t k = n; k-- > 0;) {
    Real rest = rows[k][n];
    for (size_t j = k + 1; j < n; ++j) rest = rest - rows[k][j] * solution[j];
    solution[k] = rest / rows[k][k];
  }
  return solution;
}

// The polynomial P of `count` coefficients with the least largest |weight(x) (f(x) - P(x))| over
// [low, high]. The weight is positive; at single arguments it may be zero.
inline Coefficients minimax(const Function& f, const Function& weight, size_t count, double low,
                            double high) {
  struct Sample {
    Real x, f, weight, error;
  };
  const auto sample_at = [&](const Real& x) { return Sample{x, f(x), weight(x), Real()}; };
  // Closer together towards the ends, as extrema are. The shift keeps them from zeros of a weight.
  const size_t steps = 12 * count;
  std::vector<Sample> grid;
  for (size_t i = 0; i <= steps; ++i) {
    const Real angle = pi() * Real(static_cast<double>(i) / static_cast<double>(steps));
    grid.push_back(sample_at((Real(low) + Real(high) - cos(angle) * Real(high - low)) / Real(2)));
  }
  std::vector<Sample> reference;
  for (size_t i = 0; i <= count; ++i) {
    const size_t middle = i == 0 || i == count ? 0 : 5;
    reference.push_back(grid[i * steps / count + middle]);
  }

  Coefficients c;
  for (int round = 0; round < 30; ++round) {
    std::vector<std::vector<Real>> equations;
    for (size_t i = 0; i <= count; ++i) {
      const Sample& s = reference[i];
      std::vector<Real> equation;
      Real power = s.weight;
      for (size_t k = 0; k < count; ++k, power = power * s.x) equation.push_back(power);
      equation.push_back(Real(i % 2 == 0 ? 1 : -1));
      equation.push_back(s.weight * s.f);
      equations.push_back(std::move(equation));
    }
    c = solve(std::move(equations));
    const Real levelled = abs(c.back());
    c.pop_back();

    const auto find_error = [&](Sample& s) { s.error = s.weight * (s.f - polynomial(c, s.x)); };
    std::vector<Sample> points(grid);
    points.insert(points.end(), reference.begin(), reference.end());
    std::sort(points.begin(), points.end(),
              [](const Sample& a, const Sample& b) { return a.x < b.x; });
    for (Sample& s : points) find_error(s);
    // Places of the largest error in each run of one sign. Without errors below the levelled one,
    // which then grows from round to round; those of the reference are among the points.
    std::vector<size_t> extrema;
    for (size_t i = 0; i < points.size(); ++i) {
      if (abs(points[i].error) < levelled * Real(1 - 0x1p-40)) continue;
      const bool same_run =
          !extrema.empty() && Real() < points[i].error * points[extrema.back()].error;
      if (!same_run)
        extrema.push_back(i);
      else if (abs(points[extrema.back()].error) < abs(points[i].error))
        extrema.back() = i;
    }
    while (extrema.size() > count + 1)
      extrema.erase(abs(points[extrema.front()].error) < abs(points[extrema.back()].error)
                        ? extrema.begin()
                        : extrema.end() - 1);
    check(extrema.size() == count + 1, "the error of a fit does not alternate");

    Real worst;
    reference.clear();
    for (const size_t i : extrema) {
      Sample best = points[i];
      const auto nearer = [](const Real& x, const Real& y) { return x < y ? x : y; };
      const Real to_end = nearer(best.x - Real(low), Real(high) - best.x);
      Real reach = nearer(to_end, Real((high - low) / static_cast<double>(4 * steps)));
      for (int refinement = 0; refinement < 4 && Real(0x1p-60) < reach; ++refinement) {
        Sample left = sample_at(best.x - reach), right = sample_at(best.x + reach);
        find_error(left);
        find_error(right);
        // The top of the parabola through the three, but not further away than they are.
        Real move = reach * (right.error - left.error) /
                    (Real(2) * (Real(2) * best.error - left.error - right.error));
        if (reach < abs(move)) move = abs(left.error) < abs(right.error) ? reach : Real() - reach;
        Sample top = sample_at(best.x + move);
        find_error(top);
        if (abs(top.error) < abs(best.error)) break;
        best = top;
        reach = nearer(reach, abs(move) * Real(2));
        if (best.x - reach < Real(low) || Real(high) < best.x + reach) break;
      }
      if (worst < abs(best.error)) worst = abs(best.error);
      reference.push_back(best);
    }
    if (worst < levelled * Real(1 + 0x1p-40)) return c;
  }
  check(false, "the exchange does not converge");
  return c;
}

// The same with coefficients that are doubles: each of the first `refitted` is rounded before the
// ones behind it are fitted once more, so that they take up its rounding.
inline std::vector<double> minimax_doubles(const Function& f, const Function& weight, size_t count,
                                           size_t refitted, double low, double high) {
  Coefficients fixed;
  const auto power = [](const Real& x, size_t k) {
    Real p = Real(1);
    while (k-- > 0) p = p * x;
    return p;
  };
  for (size_t k = 0; k <= refitted; ++k) {
    const Coefficients rest = minimax(
        [&](const Real& x) { return k == 0 ? f(x) : (f(x) - polynomial(fixed, x)) / power(x, k); },
        [&](const Real& x) { return weight(x) * abs(power(x, k)); }, count - k, low, high);
    if (k < refitted) {
      fixed.push_back(Real(rest.front().nearest()));
    } else {
      for (const Real& c : rest) fixed.push_back(Real(c.nearest()));
    }
  }
  std::vector<double> doubles;
  for (const Real& c : fixed) doubles.push_back(c.nearest());
  return doubles;
}

}  // namespace gentables
