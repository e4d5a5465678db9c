// Inverse hyperbolic functions: special arguments, both sides of every bound, symmetry.
#include "properties.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, pole = DAKVM_STATUS_SINGULARITY,
                  domain = DAKVM_STATUS_DOMAIN;
constexpr uint64_t one = 0x3ff0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>,
                   invalid_nan = 0xfff8000000000000;
constexpr uint32_t one_f = 0x3f800000, inf_f = 0x7f800000, minus_f = sign_mask<float>,
                   invalid_nan_f = 0xffc00000;

TEST(InverseHyperbolic, SpecialArguments) {
  for (const char* family : {"Atanh", "Asinh", "Acosh"})
    expect_cases<double>(family, {{0x7ff8000000000123, 0x7ff8000000000123, ok, 0},
                                  {0xfff8000000000123, 0xfff8000000000123, ok, 0},
                                  {inf + 1, 0x7ff8000000000001, ok, invalid}});
  for (const char* family : {"Asinh", "Acosh"})
    expect_cases<float>(family,
                        {{0x7fc00123, 0x7fc00123, ok, 0}, {inf_f + 1, 0x7fc00001, ok, invalid}});
  for (const char* family : {"Atanh", "Asinh"}) {
    expect_cases<double>(family, {{0, 0, ok, 0},
                                  {minus, minus, ok, 0},
                                  {minus | 1, minus | 1, ok, underflow | inexact},
                                  {0x3c5fffffffffffff, 0x3c5fffffffffffff, ok, inexact}});
    expect_cases<float>(family, {{0, 0, ok, 0}, {minus_f, minus_f, ok, 0}});
  }

  expect_cases<double>("Atanh", {{one, inf, pole, divide_by_zero},
                                 {minus | one, minus | inf, pole, divide_by_zero},
                                 {one + 1, invalid_nan, domain, invalid},
                                 {minus | (inf - 1), invalid_nan, domain, invalid},
                                 {inf, invalid_nan, domain, invalid},
                                 {minus | inf, invalid_nan, domain, invalid}});
  expect_cases<float>("Atanh", {{one_f, inf_f, pole, divide_by_zero},
                                {minus_f | one_f, minus_f | inf_f, pole, divide_by_zero},
                                {one_f + 1, 0x7fffffff, domain, invalid},
                                {0x40000000, 0x7fffffff, domain, invalid},
                                {0xc0000000, 0xffffffff, domain, invalid},
                                {minus_f | inf_f, 0xffffffff, domain, invalid},
                                {minus_f | 1, minus_f | 1, ok, 0},
                                {inf_f + 1, inf_f + 1, ok, 0},  // still signalling
                                {0xffc00123, 0xffc00123, ok, 0}});

  expect_cases<double>("Asinh", {{inf, inf, ok, 0}, {minus | inf, minus | inf, ok, 0}});
  expect_cases<float>("Asinh", {{inf_f, inf_f, ok, 0},
                                {minus_f | inf_f, minus_f | inf_f, ok, 0},
                                {minus_f | 1, minus_f | 1, ok, inexact}});

  expect_cases<double>("Acosh", {{one, 0, ok, 0},
                                 {one - 1, invalid_nan, domain, invalid},
                                 {0, invalid_nan, domain, invalid},
                                 {minus, invalid_nan, domain, invalid},
                                 {minus | one, invalid_nan, domain, invalid},
                                 {minus | inf, invalid_nan, domain, invalid},
                                 {inf, inf, ok, 0}});
  expect_cases<float>("Acosh", {{one_f, 0, ok, 0},
                                {one_f - 1, invalid_nan_f, domain, invalid},
                                {minus_f, invalid_nan_f, domain, invalid},
                                {minus_f | inf_f, invalid_nan_f, domain, invalid},
                                {inf_f, inf_f, ok, 0}});
}

// The ends of the ranges and both sides of the bounds. Where a comment says so, a neighbour of the
// bound is the nearest one at which the other path would round to another number.
TEST(InverseHyperbolic, KnownResults) {
  expect_cases<double>("Atanh", {{0x3c60000000000000, 0x3c60000000000000, ok, inexact},
                                 {0x3fafffffffffffff, 0x3fb005588ad375ac, ok, inexact},
                                 {0x3fb0000000000000, 0x3fb005588ad375ad, ok, inexact},
                                 {0xbfe0000000000000, 0xbfe193ea7aad030b, ok, inexact},
                                 {one - 1, 0x4032b708872320e2, ok, inexact}});
  expect_cases<float>("Atanh", {{0x317fffff, 0x317fffff, ok, 0},
                                {0x31800000, 0x31800000, ok, inexact},
                                {0xbf000000, 0xbf0c9f54, ok, inexact},
                                {one_f - 1, 0x410aa123, ok, inexact}});
  expect_cases<double>("Asinh", {{0x3c60000000000000, 0x3c60000000000000, ok, inexact},
                                 {0x3fbffffffffffe23, 0x3fbfead0b699679a, ok, inexact},  // nearest
                                 {0x3fbfffffffffffff, 0x3fbfead0b6996972, ok, inexact},
                                 {0x3fc0000000000000, 0x3fbfead0b6996973, ok, inexact},
                                 {0x3fc000000000189d, 0x3fbfead0b6999a4b, ok, inexact},  // nearest
                                 {minus | one, 0xbfec34366179d427, ok, inexact},
                                 {0x41afffffffffffff, 0x403419ecb712c481, ok, inexact},
                                 {0x41b0000000000000, 0x403419ecb712c481, ok, inexact},
                                 {inf - 1, 0x408633ce8fb9f87e, ok, inexact}});
  expect_cases<float>("Asinh", {{0x3dffffff, 0x3dff5685, ok, inexact},
                                {0x3e000000, 0x3dff5686, ok, inexact},
                                {0x4d800000, 0x41a0cf66, ok, inexact},
                                {inf_f - 1, 0x42b2d4fc, ok, inexact}});
  expect_cases<double>("Acosh", {{one + 1, 0x3e56a09e667f3bcc, ok, inexact},
                                 {0x3ff0000100000000, 0x3f56a09e4853be5b, ok, inexact},
                                 {0x3ff0ffffffffff15, 0x3fd682dd8ac0ff33, ok, inexact},  // nearest
                                 {0x3ff0ffffffffffff, 0x3fd682dd8ac10961, ok, inexact},
                                 {0x3ff1000000000000, 0x3fd682dd8ac1096d, ok, inexact},
                                 {0x3ff100000000111f, 0x3fd682dd8ac1c82b, ok, inexact},  // nearest
                                 {0x4000000000000000, 0x3ff5124271980435, ok, inexact},
                                 {0x41afffffffffffff, 0x403419ecb712c481, ok, inexact},
                                 {0x41b0000000000000, 0x403419ecb712c481, ok, inexact},
                                 {inf - 1, 0x408633ce8fb9f87e, ok, inexact}});
  expect_cases<float>("Acosh", {{one_f + 1, 0x3a000000, ok, inexact},
                                {0x3f87ffff, 0x3eb416e1, ok, inexact},
                                {0x3f880000, 0x3eb416ec, ok, inexact},
                                {inf_f - 1, 0x42b2d4fc, ok, inexact}});
}

// At the bounds, and where the row of the logarithm's table changes.
TEST(InverseHyperbolic, PathsMeet) {
  const auto number = [](long double x) { return word_of(static_cast<double>(x)); };
  const auto single = [](long double x) { return word_of(static_cast<float>(x)); };
  for (const auto& function : registry::functions) {
    const std::string_view family = function.family.name;
    const bool is_atanh = family == "Atanh", is_asinh = family == "Asinh";
    if (!is_atanh && !is_asinh && family != "Acosh") continue;
    std::vector<long double> bounds{0x1p+28L, 0x1.1p+0L, 2, 10, 1000};
    if (is_asinh) bounds = {0x1p-57L, 0.125L, 1, 0x1p+28L};
    if (is_atanh) bounds = {0x1p-57L, 0x1p-28L, 0.0625L};
    for (int row = 1; row < 128; row += 10) {  // V in the middle between two rows
      const long double V = 2 * (1 + row / 128.0L);
      bounds.push_back(is_atanh   ? (V - 1) / (V + 1)
                       : is_asinh ? (V * V - 1) / (2 * V)
                                  : (V * V + 1) / (2 * V));
    }
    for (const long double bound : bounds) {
      if (function.type == registry::Type::f64)
        expect_no_fall<double>(function, number(bound));
      else
        expect_no_fall<float>(function, single(bound));
    }
  }
}

TEST(InverseHyperbolic, OddInEveryRoundingMode) {
  const auto words = mixed_words<double>(5000, 0, 0.99, 0, 6);
  const auto single_words = mixed_words<float>(5000, 0, 0.99, 0, 6);
  for (int rounding = 0; rounding < 4; ++rounding) {
    const ScopedModes modes(3, rounding);
    for (const char* family : {"Atanh", "Asinh"}) {
      expect_symmetry<double>(function_named(family, registry::Type::f64, "A53"), words, minus);
      expect_symmetry<float>(function_named(family, registry::Type::f32, "A24"), single_words,
                             minus_f);
    }
  }
}

TEST(InverseHyperbolic, GradesAgree) {
  for (const char* family : {"Atanh", "Asinh", "Acosh"}) {
    expect_grades_agree<double>(family, mixed_words<double>(5000, 0, 1.2, 0.3, 7));
    expect_grades_agree<float>(family, mixed_words<float>(5000, 0, 1.2, 0.3, 7));
  }
}

}  // namespace
}  // namespace dakvm::test
