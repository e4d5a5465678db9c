// A periodic signal from its spectrum, x[n] = sum over h of a[h] cos(2 pi h n/N) + b[h] sin(2 pi h
// n/N), by one call of SinCos for each harmonic. Checks itself: the power of the samples is that of
// the spectrum (Parseval), and a harmonic follows the recurrence of the cosine.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <dakvmpx.hpp>
#include <vector>

namespace {

constexpr size_t samples = 4096, harmonics = 100;
constexpr double two_pi = 6.2831853071795865;

// Sine and cosine of 2 pi h n/N for all n. The phase is reduced in integers, without error.
void harmonic(size_t h, std::vector<double>& sine, std::vector<double>& cosine) {
  for (size_t n = 0; n < samples; ++n)
    sine[n] = two_pi / samples * static_cast<double>(h * n % samples);
  const auto status =
      dakvmpx::SinCos(std::span<const double>(sine), std::span(sine), std::span(cosine));
  if (status != dakvmpx::Status::ok) std::exit(1);
}

double mean_square(const std::vector<double>& x) {
  double sum = 0;
  for (const double value : x) sum += value * value;
  return sum / static_cast<double>(x.size());
}

// cos((n + 1) w) = 2 cos(w) cos(n w) - cos((n - 1) w), the sine likewise: the largest deviation.
double worst_recurrence(const std::vector<double>& x, double cosine_of_step) {
  double worst = 0;
  for (size_t n = 1; n + 1 < x.size(); ++n)
    worst = std::max(worst, std::fabs(x[n + 1] - (2 * cosine_of_step * x[n] - x[n - 1])));
  return worst;
}

}  // namespace

int main() {
  std::vector<double> signal(samples), sine(samples), cosine(samples);
  double power = 0, worst = 0;
  for (size_t h = 1; h <= harmonics; ++h) {
    // A decaying spectrum with alternating phase.
    const double a = (h % 2 == 0 ? 1.0 : -1.0) / static_cast<double>(h);
    const double b = 1.0 / static_cast<double>(h * h);
    harmonic(h, sine, cosine);
    for (size_t n = 0; n < samples; ++n) signal[n] += a * cosine[n] + b * sine[n];
    power += (a * a + b * b) / 2;
    if (cosine[0] != 1 || sine[0] != 0 || sine[1] <= 0) return 1;
    worst =
        std::max({worst, worst_recurrence(cosine, cosine[1]), worst_recurrence(sine, cosine[1])});
  }
  const double error = std::fabs(mean_square(signal) / power - 1);
  std::printf("%zu harmonics, %zu samples; power %.15g, by Parseval %.15g, off by %.1e\n",
              harmonics, samples, mean_square(signal), power, error);
  std::printf("largest deviation from the recurrence %.1e\n", worst);
  return error < 1e-13 && worst < 4e-15 ? 0 : 1;
}
