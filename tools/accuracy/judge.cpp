#include "judge.hpp"

#include <algorithm>
#include <limits>

#include "dakvmpx.h"

namespace dakvm::accuracy {
namespace {

// Enough for every known hard case: they need about 2.2 times the bits of the type.
constexpr mpfr_prec_t working_bits = 160;

mpfr_rnd_t mpfr_rounding(Rounding rounding) {
  switch (rounding) {
    case Rounding::nearest:
      return MPFR_RNDN;
    case Rounding::down:
      return MPFR_RNDD;
    case Rounding::up:
      return MPFR_RNDU;
    case Rounding::zero:
      return MPFR_RNDZ;
  }
  return MPFR_RNDN;
}

template <class T>
constexpr int digits = std::numeric_limits<T>::digits;
template <class T>
constexpr int least_exponent = std::numeric_limits<T>::min_exponent - digits<T>;  // of an ulp

}  // namespace

uint8_t flag_of_status(int status) {
  switch (status) {
    case DAKVM_STATUS_DOMAIN:
      return invalid;
    case DAKVM_STATUS_SINGULARITY:
      return divide_by_zero;
    case DAKVM_STATUS_OVERFLOW:
      return overflow;
    case DAKVM_STATUS_UNDERFLOW:
      return underflow;
    default:
      return 0;
  }
}

std::string status_name(int status) {
  switch (status) {
    case DAKVM_STATUS_OK:
      return "ok";
    case DAKVM_STATUS_DOMAIN:
      return "domain";
    case DAKVM_STATUS_SINGULARITY:
      return "singularity";
    case DAKVM_STATUS_OVERFLOW:
      return "overflow";
    case DAKVM_STATUS_UNDERFLOW:
      return "underflow";
    default:
      return "status " + std::to_string(status);
  }
}

std::string flag_names(uint8_t flags) {
  std::string names;
  const auto add = [&](uint8_t flag, const char* name) {
    if (flags & flag) names += (names.empty() ? "" : " ") + std::string(name);
  };
  add(invalid, "invalid");
  add(divide_by_zero, "divide-by-zero");
  add(overflow, "overflow");
  add(underflow, "underflow");
  add(inexact, "inexact");
  return names.empty() ? "none" : names;
}

void Expectation::join(const Expectation& other) {
  status = std::max(status, other.status);
  may_be_ok = may_be_ok || other.may_be_ok;
  flags |= other.flags;
  judged &= other.judged;
}

void Expectation::check(int got_status, uint8_t got_flags, const Witness& element,
                        Tally& tally) const {
  const auto note = [&](uint64_t& count, Witness& first, uint64_t got, uint64_t expected) {
    if (count++ != 0) return;
    first = element;
    first.got = got;
    first.expected = expected;
  };
  if (got_status != status && !(may_be_ok && got_status == DAKVM_STATUS_OK))
    note(tally.wrong_statuses, tally.wrong_status, static_cast<uint64_t>(got_status),
         static_cast<uint64_t>(status));
  if (((got_flags ^ flags) & judged) != 0)
    note(tally.wrong_flags, tally.wrong_flag, got_flags & (judged | inexact), flags);
}

Judge::Judge(const Function& function, Modes modes)
    : function_(function), modes_(modes), rounding_(mpfr_rounding(modes.rounding)) {
  mpfr_inits2(53, x_, y_, nullptr);
  mpfr_inits2(working_bits, exact_, work_, nullptr);
}

Judge::~Judge() { mpfr_clears(x_, y_, exact_, work_, nullptr); }

// Rounded toward nearest in the working precision, where the rounding mode of the result does not
// matter: a result that lies closer to a number of T is that number.
template <class T>
void Judge::find_exact(const Word<T> (&in)[2], int output) {
  const Reference& reference = *function_.reference;
  mpfr_set_d(x_, number_of<T>(in[0]), MPFR_RNDN);
  if (reference.two != nullptr) {
    mpfr_set_d(y_, number_of<T>(in[1]), MPFR_RNDN);
    was_rounded_ = reference.two(exact_, x_, y_, MPFR_RNDN) != 0;
  } else {
    was_rounded_ = (output == 0 ? reference.one : reference.second)(exact_, x_, MPFR_RNDN) != 0;
  }
}

template <class T>
T Judge::rounded() const {
  if constexpr (sizeof(T) == 8)
    return mpfr_get_d(exact_, rounding_);
  else
    return mpfr_get_flt(exact_, rounding_);
}

// In ulp of the exact result. An infinity counts as the power of two that follows the numbers.
template <class T>
double Judge::distance(T got) const {
  constexpr double none = std::numeric_limits<double>::infinity();
  if (mpfr_nan_p(exact_) || std::isnan(got))
    return mpfr_nan_p(exact_) && std::isnan(got) ? 0 : none;
  if (mpfr_inf_p(exact_)) return mpfr_get_d(exact_, MPFR_RNDN) == got ? 0 : none;
  if (std::isinf(got)) {
    mpfr_set_si_2exp(work_, got < 0 ? -1 : 1, std::numeric_limits<T>::max_exponent, MPFR_RNDN);
    mpfr_sub(work_, exact_, work_, MPFR_RNDN);
    // An exact result beyond the largest number is rightly infinite.
    if (mpfr_zero_p(work_) || (mpfr_sgn(work_) > 0) == (got > 0)) return 0;
  } else {
    mpfr_sub_d(work_, exact_, got, MPFR_RNDN);
  }
  int ulp = least_exponent<T>;
  if (!mpfr_zero_p(exact_)) {
    const auto exponent = std::min<mpfr_exp_t>(mpfr_get_exp(exact_), 4096);
    ulp = std::max(ulp, static_cast<int>(exponent) - digits<T>);
    ulp = std::min(ulp, std::numeric_limits<T>::max_exponent - digits<T>);
  }
  mpfr_mul_2si(work_, work_, -ulp, MPFR_RNDN);
  return std::fabs(mpfr_get_d(work_, MPFR_RNDN));
}

template <class T>
double Judge::error(const Word<T> (&in)[2], int output, Word<T> got, Word<T>& expected) {
  find_exact<T>(in, output);
  const T nearest = rounded<T>();
  expected = word_of(nearest);
  const T result = number_of<T>(got);
  const double ulp = distance<T>(result);
  if (got == expected || (std::isnan(result) && std::isnan(nearest)))
    return ulp <= 1 ? ulp : 0;  // the largest number for something beyond all numbers
  return ulp == 0 ? 1 : ulp;    // the sign of a zero
}

// The relative error of a value that double holds with all its digits, 0 of others.
double Judge::relative_error(const uint32_t (&in)[2], int output, double value) {
  if (!std::isnormal(value)) return 0;
  find_exact<float>(in, output);
  mpfr_d_sub(work_, value, exact_, MPFR_RNDN);
  mpfr_div(work_, work_, exact_, MPFR_RNDN);
  return std::fabs(mpfr_get_d(work_, MPFR_RNDN));
}

// The exact result is in exact_. What holds for all functions, and where two of them deviate: 0/0
// is a singularity of division, and zero to a negative power outside the domain of the power.
template <class T>
Expectation Judge::expectation(const Word<T> (&in)[2], T nearest) const {
  const bool two = function_.reference->two != nullptr;
  const T x = number_of<T>(in[0]), y = two ? number_of<T>(in[1]) : T{1};
  Expectation e;
  if (is_signalling<T>(in[0]) || (two && is_signalling<T>(in[1])))
    e.judged &= static_cast<uint8_t>(~invalid);
  if (std::isnan(x) || std::isnan(y)) return e;
  const bool power = function_.reference->two == mpfr_pow;
  if (power && x == 0 && y < 0) {
    e.status = DAKVM_STATUS_DOMAIN;
    e.judged &= static_cast<uint8_t>(~divide_by_zero);
  } else if (function_.reference->two == mpfr_div && y == 0 && std::isfinite(x)) {
    e.status = DAKVM_STATUS_SINGULARITY;
    if (x == 0) e.flags = invalid;
  } else if (mpfr_nan_p(exact_)) {
    e.status = DAKVM_STATUS_DOMAIN;
  } else if (mpfr_inf_p(exact_)) {
    if (std::isfinite(x) && std::isfinite(y)) e.status = DAKVM_STATUS_SINGULARITY;
  } else if (std::isinf(nearest)) {
    mpfr_mul_2si(work_, exact_, -std::numeric_limits<T>::max_exponent, MPFR_RNDN);
    e.out_of_numbers<T>(DAKVM_STATUS_OVERFLOW, function_.traits->overflow,
                        std::fabs(mpfr_get_d(work_, MPFR_RNDN)) - 1);
  } else if (!mpfr_zero_p(exact_)) {
    // Tiny and inexact. Just below the least normal number it depends on the rounding.
    if (nearest == 0) {
      mpfr_mul_2si(work_, exact_, 1 - least_exponent<T>, MPFR_RNDN);
      e.out_of_numbers<T>(DAKVM_STATUS_UNDERFLOW, function_.traits->underflow,
                          1 - std::fabs(mpfr_get_d(work_, MPFR_RNDN)));
    } else if (std::fabs(nearest) < std::numeric_limits<T>::min()) {
      mpfr_sub_d(work_, exact_, nearest, MPFR_RNDN);
      const bool differs = mpfr_zero_p(work_) == 0;
      if (differs) e.flags = underflow;
      // 64 bits in the register may be a subnormal number already, which its store does not round.
      if (differs ? mpfr_get_exp(work_) < mpfr_get_exp(exact_) - 62 : was_rounded_)
        e.judged &= static_cast<uint8_t>(~underflow);
    } else if (std::fabs(nearest) == std::numeric_limits<T>::min()) {
      e.judged &= static_cast<uint8_t>(~underflow);
    }
  }
  e.flags |= flag_of_status(e.status);
  return e;
}

template <class T>
void Judge::element(const Inputs<T>& inputs, const Outputs<T>& outputs, size_t i, Tally& tally) {
  Word<T> in[2] = {inputs.in[0][i], function_.sources() == 2 ? inputs.in[1][i] : Word<T>{0}};
  Expectation expected_report;
  for (int output = 0; output < function_.destinations(); ++output) {
    Witness witness{0, {in[0], in[1]}, outputs.out[output][i], 0, static_cast<uint32_t>(output)};
    Word<T> expected;
    witness.ulp = error<T>(in, output, outputs.out[output][i], expected);
    witness.expected = expected;
    const T nearest = number_of<T>(expected), got = number_of<T>(outputs.out[output][i]);
    ++tally.exact_values;
    tally.count(witness.ulp,
                witness.got == witness.expected || (std::isnan(nearest) && std::isnan(got)));
    if (witness.ulp > tally.worst.ulp) tally.worst = witness;
    expected_report.join(expectation<T>(in, nearest));
  }
  if (modes_.usual() && function_.is_vector())
    expected_report.check(outputs.statuses[i], outputs.flags[i],
                          Witness{0, {in[0], in[1]}, 0, 0, 0}, tally);
}

template void Judge::element(const Inputs<double>&, const Outputs<double>&, size_t, Tally&);
template void Judge::element(const Inputs<float>&, const Outputs<float>&, size_t, Tally&);
template double Judge::error<double>(const uint64_t (&)[2], int, uint64_t, uint64_t&);
template double Judge::error<float>(const uint32_t (&)[2], int, uint32_t, uint32_t&);

}  // namespace dakvm::accuracy
