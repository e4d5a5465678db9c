// Checks gaxreduce_pio2d against MPFR: reduction WORKER [SAMPLES]
//
// Random arguments of every exponent, SAMPLES of each, and those nearest to multiples of pi/2, with
// the unit in 64-bit and in 53-bit precision. Exits with status 1 unless the quadrant and the
// reduced argument belong together, lo is what hi leaves of it, and hi + lo is as precise as
// promised.
#include <mpfr.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "tools/accuracy/near_half_pi.hpp"
#include "worker_process.hpp"

namespace {

std::vector<double> arguments(int samples) {
  constexpr double least = 0x1.921fb54442d19p-1;  // pi/4, rounded up
  std::vector<double> all;
  std::mt19937_64 random(1);
  for (uint64_t exponent = 1022; exponent < 2047; ++exponent)
    for (int i = 0; i < samples; ++i)
      all.push_back(std::bit_cast<double>(exponent << 52 | random() >> 12));
  for (const double x : near_half_pi::numbers<double>()) all.push_back(x);
  // The switches between the ways, and a quadrant that needs all bits of its sum.
  for (const double x : {0x1p+23, 0x1p+30, 0x1.fffffffffffffp+1023}) {
    all.push_back(std::nextafter(x, 0));
    all.push_back(x);
  }
  all.push_back(std::bit_cast<double>(uint64_t{0x57b010e9a80058b1}));
  std::erase_if(all, [](double x) { return x < least; });
  const size_t positive = all.size();
  for (size_t i = 0; i < positive; i += 2) all.push_back(-all[i]);
  return all;
}

class Judge {
 public:
  Judge() {
    mpfr_inits2(1400, half_pi_, x_, multiple_, rest_, nullptr);
    mpfr_const_pi(half_pi_, MPFR_RNDN);
    mpfr_div_2ui(half_pi_, half_pi_, 1, MPFR_RNDN);
    mpz_init(integer_);
  }
  ~Judge() {
    mpfr_clears(half_pi_, x_, multiple_, rest_, nullptr);
    mpz_clear(integer_);
  }
  Judge(const Judge&) = delete;
  Judge& operator=(const Judge&) = delete;

  // The relative error of hi + lo; infinite where it is no reduced argument of x at all.
  double error(double x, double quadrant, double hi, double lo) {
    // hi is rounded by way of 64 bits: lo may exceed half its last place a little.
    if (!(std::fabs(hi) < 0.78541) || !(std::fabs(lo) <= std::fabs(hi) * 0x1.01p-53))
      return INFINITY;
    // x - hi is a multiple of pi/2, nearly; which one decides.
    mpfr_set_d(x_, x, MPFR_RNDN);
    mpfr_sub_d(multiple_, x_, hi, MPFR_RNDN);
    mpfr_div(multiple_, multiple_, half_pi_, MPFR_RNDN);
    mpfr_rint(multiple_, multiple_, MPFR_RNDN);
    mpfr_get_z(integer_, multiple_, MPFR_RNDN);
    if (static_cast<double>(mpz_fdiv_ui(integer_, 4)) != quadrant) return INFINITY;
    mpfr_mul(multiple_, multiple_, half_pi_, MPFR_RNDN);
    mpfr_sub(x_, x_, multiple_, MPFR_RNDN);
    mpfr_sub_d(rest_, x_, hi, MPFR_RNDN);
    mpfr_sub_d(rest_, rest_, lo, MPFR_RNDN);
    mpfr_div(rest_, rest_, x_, MPFR_RNDN);
    return std::fabs(mpfr_get_d(rest_, MPFR_RNDA));
  }

 private:
  mpfr_t half_pi_, x_, multiple_, rest_;
  mpz_t integer_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: reduction WORKER [SAMPLES]\n");
    return 2;
  }
  const auto x = arguments(argc > 2 ? std::atoi(argv[2]) : 100);
  const struct {
    const char* function;
    double log2_bound;
  } runs[] = {{"64", -78}, {"53", -75}};
  bool all_hold = true;
  for (const auto& run : runs) {
    const auto results = evaluate(argv[1], run.function, x, 3);
    if (results.size() != 3 * x.size()) {
      std::fprintf(stderr, "%s: results are missing\n", run.function);
      return 2;
    }
    Judge judge;
    double worst = 0, worst_argument = 0;
    for (size_t i = 0; i < x.size(); ++i) {
      const double error =
          judge.error(x[i], results[3 * i], results[3 * i + 1], results[3 * i + 2]);
      if (error > worst) worst = error, worst_argument = x[i];
    }
    const bool holds = std::log2(worst) < run.log2_bound;
    all_hold = all_hold && holds;
    std::printf("%s %-18s %zu arguments, relative error 2^%.2f (limit 2^%.0f) at %a\n",
                holds ? "ok  " : "FAIL", run.function, x.size(), std::log2(worst), run.log2_bound,
                worst_argument);
  }
  return all_hold ? 0 : 1;
}
