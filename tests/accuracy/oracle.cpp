// Measures the library's errors against MPFR: oracle WORKER [--samples N] [--markdown] [FUNCTION]
//
// Checks every row of limits.inc and exits with status 1 if one does not hold. With --samples the
// rows are measured with N samples, and then a limit that lies far above what is seen fails too.
#include <mpfr.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "near_half_pi.hpp"
#include "worker_process.hpp"

namespace {

struct Limit {
  std::string_view function;
  double low, high;
  int samples;
  double ulp;
};
constexpr Limit limits[] = {
#include "limits.inc"
};

// The exact function, to the precision of the result.
using OneInput = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
using TwoInputs = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);

struct Reference {
  std::string_view family;
  OneInput one;
  TwoInputs two;
  OneInput second_output = nullptr;
  bool periodic = false;  // measured next to multiples of pi/2 too
};

int reciprocal(mpfr_ptr result, mpfr_srcptr x, mpfr_rnd_t rounding) {
  return mpfr_ui_div(result, 1, x, rounding);
}

int reciprocal_cbrt(mpfr_ptr result, mpfr_srcptr x, mpfr_rnd_t rounding) {
  mpfr_cbrt(result, x, rounding);
  return mpfr_ui_div(result, 1, result, rounding);
}

constexpr Reference references[] = {
    {"Div", nullptr, mpfr_div},
    {"Inv", reciprocal, nullptr},
    {"Sqrt", mpfr_sqrt, nullptr},
    {"sqrt", mpfr_sqrt, nullptr},
    {"InvSqrt", mpfr_rec_sqrt, nullptr},
    {"Cbrt", mpfr_cbrt, nullptr},
    {"InvCbrt", reciprocal_cbrt, nullptr},
    {"Exp", mpfr_exp, nullptr},
    {"Ln", mpfr_log, nullptr},
    {"Log10", mpfr_log10, nullptr},
    {"Pow", nullptr, mpfr_pow},
    {"Sinh", mpfr_sinh, nullptr},
    {"Cosh", mpfr_cosh, nullptr},
    {"Tanh", mpfr_tanh, nullptr},
    {"Erf", mpfr_erf, nullptr},
    {"Erfc", mpfr_erfc, nullptr},
    {"Atan", mpfr_atan, nullptr},
    {"atan", mpfr_atan, nullptr},
    {"Atan2", nullptr, mpfr_atan2},
    {"atan2", nullptr, mpfr_atan2},
    {"Asin", mpfr_asin, nullptr},
    {"Acos", mpfr_acos, nullptr},
    {"Atanh", mpfr_atanh, nullptr},
    {"Asinh", mpfr_asinh, nullptr},
    {"Acosh", mpfr_acosh, nullptr},
    {"Sin", mpfr_sin, nullptr, nullptr, true},
    {"Cos", mpfr_cos, nullptr, nullptr, true},
    {"SinCos", mpfr_sin, nullptr, mpfr_cos, true},
    {"Tan", mpfr_tan, nullptr, nullptr, true},
};

// daksExp_32f_A24, gaxssqrt_scalar
bool is_single(std::string_view function) {
  return function.starts_with("daks") ? function.find("_32f_") != function.npos
                                      : function.starts_with("gaxs");
}

const Reference& reference_of(std::string_view function) {
  const std::string_view family = function.substr(4, function.find('_') - 4);
  for (const Reference& reference : references)
    if (reference.family == family) return reference;
  std::fprintf(stderr, "no reference for %.*s\n", static_cast<int>(function.size()),
               function.data());
  std::exit(2);
}

template <class T>
using Word = std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t>;

// A whole number for each T, in the order of the numbers.
template <class T>
int64_t place(T x) {
  const auto word = std::bit_cast<Word<T>>(x);
  const auto magnitude = static_cast<int64_t>(word & (~Word<T>{0} >> 1));
  return std::signbit(x) ? -magnitude : magnitude;
}

template <class T>
T number_at(int64_t place) {
  const auto x = std::bit_cast<T>(static_cast<Word<T>>(std::abs(place)));
  return place < 0 ? -x : x;
}

template <class T>
std::vector<T> sample(const Limit& limit, int samples, uint64_t seed) {
  std::mt19937_64 random(seed);
  const T low = static_cast<T>(limit.low), high = static_cast<T>(limit.high);
  std::uniform_int_distribution<int64_t> places(place(low), place(high));
  std::uniform_real_distribution<T> values(low / 2, high / 2);
  std::vector<T> numbers;
  for (int i = 0; i < samples / 2; ++i) {
    numbers.push_back(number_at<T>(places(random)));
    numbers.push_back(2 * values(random));
  }
  for (const T end : {low, high})
    for (int64_t step = -2000; step <= 2000; ++step) {
      const int64_t at = place(end) + step;
      if (at >= place(low) && at <= place(high)) numbers.push_back(number_at<T>(at));
    }
  return numbers;
}

// The numbers of the interval that are nearest to multiples of pi/2, some for each binade.
template <class T>
void add_near_half_pi(const Limit& limit, std::vector<T>& numbers) {
  for (const T& x : near_half_pi::numbers<T>())
    for (const T at : {x, -x})
      if (at >= static_cast<T>(limit.low) && at <= static_cast<T>(limit.high))
        numbers.push_back(at);
}

struct Measured {
  double worst = 0;
  std::string worst_argument;
  size_t count = 0, correctly_rounded = 0;

  double percent() const {
    return 100.0 * static_cast<double>(correctly_rounded) / static_cast<double>(count);
  }
};

// The unit of the last place of T at `exact`.
template <class T>
int ulp_exponent(mpfr_srcptr exact) {
  constexpr int digits = sizeof(T) == 8 ? 53 : 24;
  constexpr int least = sizeof(T) == 8 ? -1074 : -149;
  return std::max(static_cast<int>(mpfr_get_exp(exact)) - digits, least);
}

template <class T>
Measured measure(const std::string& worker, const Limit& limit, int samples) {
  const Reference& reference = reference_of(limit.function);
  auto arguments = sample<T>(limit, samples, 1);
  if (reference.periodic) add_near_half_pi(limit, arguments);
  if (reference.two != nullptr) {
    const auto second = sample<T>(limit, samples, 2);
    arguments.insert(arguments.end(), second.begin(), second.end());
  }
  const size_t outputs = reference.second_output != nullptr ? 2 : 1;
  const auto results = evaluate(worker, limit.function, arguments, outputs);
  Measured measured;
  const size_t count = arguments.size() / (reference.two != nullptr ? 2 : 1);
  const size_t expected = count * outputs;
  if (results.size() < expected) {
    std::fprintf(stderr, "%.*s: results are missing\n", static_cast<int>(limit.function.size()),
                 limit.function.data());
    std::exit(2);
  }
  mpfr_t x, y, exact, error;
  mpfr_inits2(53, x, y, nullptr);
  mpfr_inits2(160, exact, error, nullptr);
  for (size_t place = 0; place < expected; ++place) {
    const size_t i = place % count;
    mpfr_set_d(x, arguments[i], MPFR_RNDN);
    if (reference.two != nullptr) {
      mpfr_set_d(y, arguments[count + i], MPFR_RNDN);
      reference.two(exact, x, y, MPFR_RNDN);
    } else {
      (place < count ? reference.one : reference.second_output)(exact, x, MPFR_RNDN);
    }
    const T nearest = sizeof(T) == 8 ? static_cast<T>(mpfr_get_d(exact, MPFR_RNDN))
                                     : static_cast<T>(mpfr_get_flt(exact, MPFR_RNDN));
    ++measured.count;
    if (std::bit_cast<Word<T>>(results[place]) == std::bit_cast<Word<T>>(nearest)) {
      ++measured.correctly_rounded;
      if (!std::isfinite(nearest)) continue;
    }
    mpfr_sub_d(error, exact, results[place], MPFR_RNDN);
    mpfr_mul_2si(error, error, -ulp_exponent<T>(exact), MPFR_RNDN);
    const double ulp = std::fabs(mpfr_get_d(error, MPFR_RNDN));
    if (!(ulp <= measured.worst)) {
      measured.worst = ulp;
      char text[80];
      std::snprintf(text, sizeof text, "%a", static_cast<double>(arguments[i]));
      measured.worst_argument = text;
      if (reference.two != nullptr) {
        std::snprintf(text, sizeof text, ", %a", static_cast<double>(arguments[count + i]));
        measured.worst_argument += text;
      }
    }
  }
  mpfr_clears(x, y, exact, error, nullptr);
  return measured;
}

}  // namespace

int main(int argc, char** argv) {
  std::string worker;
  std::string_view only;
  int samples = 0;
  bool markdown = false;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--markdown")
      markdown = true;
    else if (argument == "--samples" && i + 1 < argc)
      samples = std::atoi(argv[++i]);
    else if (worker.empty())
      worker = argument;
    else
      only = argument;
  }
  if (worker.empty()) {
    std::fprintf(stderr, "usage: oracle WORKER [--samples N] [--markdown] [FUNCTION]\n");
    return 2;
  }
  if (markdown)
    std::printf(
        "| function | from | to | largest error (ulp) | at | correctly rounded |\n"
        "|---|---|---|---|---|---|\n");
  bool all_hold = true;
  int measured_rows = 0;
  for (const Limit& limit : limits) {
    if (!only.empty() && only != limit.function) continue;
    ++measured_rows;
    const int count = samples > 0 ? samples : limit.samples;
    const Measured m = is_single(limit.function) ? measure<float>(worker, limit, count)
                                                 : measure<double>(worker, limit, count);
    const bool holds = m.worst <= limit.ulp && (samples == 0 || m.worst > 0.98 * limit.ulp);
    all_hold = all_hold && holds;
    if (markdown)
      std::printf("| `%s` | %g | %g | %.5f | `%s` | %.3f %% of %zu |\n", limit.function.data(),
                  limit.low, limit.high, m.worst, m.worst_argument.c_str(), m.percent(), m.count);
    else
      std::printf(
          "%s %-18s [%g, %g] %.5f ulp (limit %.5f) at %s, %.3f %% of %zu correctly rounded\n",
          holds ? "ok  " : "FAIL", limit.function.data(), limit.low, limit.high, m.worst, limit.ulp,
          m.worst_argument.c_str(), m.percent(), m.count);
  }
  if (measured_rows == 0) std::fprintf(stderr, "no row for %s\n", only.data());
  return all_hold && measured_rows > 0 ? 0 : 1;
}
