// What Gappa cannot know: bounds that are computed with MPFR, each with the argument why it holds.
// MPFR works at 300 bits here; its own errors drown in the 2^-250 that is added.
#pragma once

#include <string>
#include <vector>

#include "../../tools/gentables/gentables.hpp"

namespace bounds {

using gentables::Real;

// A bound on |f| over [low, high], f(x) = d[0] + d[1] x + d[2] x^2 + ...: in each of some cells
// |f(m)| + |f'(m)| h + M h^2/2, with m the middle of the cell, h half its width, and M a bound on
// |f''|: the same sum with |d[k]|, at the end of the interval that is farther from zero.
inline Real of_series(const std::vector<Real>& d, const Real& low, const Real& high,
                      int cells = 1 << 10) {
  const auto slope_of = [](const std::vector<Real>& c) {
    std::vector<Real> slope;
    for (size_t k = 1; k < c.size(); ++k) slope.push_back(Real(static_cast<double>(k)) * c[k]);
    return slope;
  };
  using gentables::abs, gentables::horner;
  const std::vector<Real> slope = slope_of(d);
  std::vector<Real> absolute;
  for (const Real& value : d) absolute.push_back(abs(value));
  const Real far = abs(low) < abs(high) ? abs(high) : abs(low);
  const Real curvature = horner(slope_of(slope_of(absolute)), far);
  const Real h = (high - low) / Real(2 * cells);
  Real worst;
  for (int i = 0; i < cells; ++i) {
    const Real m = low + h * Real(2 * i + 1);
    const Real here = abs(horner(d, m)) + abs(horner(slope, m)) * h;
    if (worst < here) worst = here;
  }
  return worst + curvature * h * h / Real(2) + Real(0x1p-250);
}

// The number as Gappa reads it, rounded up or down.
inline std::string text(const Real& number, mpfr_rnd_t rounding) {
  char digits[40];
  std::snprintf(digits, sizeof digits, "%a", mpfr_get_d(number.get(), rounding));
  return digits;
}
inline std::string upper(const Real& number) { return text(number, MPFR_RNDU); }
inline std::string lower(const Real& number) { return text(number, MPFR_RNDD); }

}  // namespace bounds
