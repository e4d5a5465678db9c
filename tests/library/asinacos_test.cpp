// Arc sine and arc cosine: special arguments, both sides of every bound, symmetry.
#include "arrays.hpp"
#include "properties.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, domain = DAKVM_STATUS_DOMAIN;
constexpr uint64_t one = 0x3ff0000000000000, half = 0x3fe0000000000000, inf = 0x7ff0000000000000,
                   minus = sign_mask<double>, tiny = 0x3ca0000000000000,
                   half_pi = 0x3ff921fb54442d18, invalid_nan = 0xfff8000000000000;
constexpr uint32_t one_f = 0x3f800000, half_f = 0x3f000000, inf_f = 0x7f800000,
                   minus_f = sign_mask<float>, tiny_f = 0x25000000, half_pi_f = 0x3fc90fdb,
                   invalid_nan_f = 0xffc00000;

TEST(AsinAcos, OutsideTheDomain) {
  for (const char* family : {"Asin", "Acos"}) {
    expect_cases<double>(family, {{one + 1, invalid_nan, domain, invalid},
                                  {(one + 1) | minus, invalid_nan, domain, invalid},
                                  {inf - 1, invalid_nan, domain, invalid},
                                  {inf, invalid_nan, domain, invalid},
                                  {inf | minus, invalid_nan, domain, invalid},
                                  {0x7ff8000000000123, 0x7ff8000000000123, ok, 0},
                                  {0xfff8000000000123, 0xfff8000000000123, ok, 0},
                                  {inf + 1, 0x7ff8000000000001, ok, invalid}});
    expect_cases<float>(family, {{one_f + 1, invalid_nan_f, domain, invalid},
                                 {inf_f, invalid_nan_f, domain, invalid},
                                 {inf_f | minus_f, invalid_nan_f, domain, invalid},
                                 {0xffc00123, 0xffc00123, ok, 0},
                                 {inf_f + 1, 0x7fc00001, ok, invalid}});
  }
}

// Zeros, subnormal and tiny numbers, both sides of 1/2, the ends.
TEST(AsinAcos, KnownResults) {
  expect_cases<double>("Asin", {{0, 0, ok, 0},
                                {minus, minus, ok, 0},
                                {1 | minus, 1 | minus, ok, underflow | inexact},
                                {0x000fffffffffffff, 0x000fffffffffffff, ok, underflow | inexact},
                                {0x0010000000000000, 0x0010000000000000, ok, inexact},
                                {tiny, tiny, ok, inexact},
                                {tiny + 1, tiny + 1, ok, inexact},
                                {half - 1, 0x3fe0c152382d7365, ok, inexact},
                                {half, 0x3fe0c152382d7366, ok, inexact},
                                {one - 1, 0x3ff921fb50442d18, ok, inexact},
                                {one, half_pi, ok, inexact},
                                {one | minus, half_pi | minus, ok, inexact}});
  expect_cases<double>("Acos", {{0, half_pi, ok, inexact},
                                {minus, half_pi, ok, inexact},
                                {1 | minus, half_pi, ok, inexact},
                                {tiny, half_pi, ok, inexact},
                                {0xbc8cb00000000000, half_pi, ok, inexact},
                                {0xbc8cc00000000000, half_pi + 1, ok, inexact},
                                {tiny | minus, half_pi + 1, ok, inexact},
                                {half - 1, 0x3ff0c152382d7366, ok, inexact},
                                {half, 0x3ff0c152382d7366, ok, inexact},
                                {(half - 1) | minus, 0x4000c152382d7365, ok, inexact},
                                {half | minus, 0x4000c152382d7366, ok, inexact},
                                {one - 1, 0x3e50000000000000, ok, inexact},
                                {(one - 1) | minus, 0x400921fb52442d18, ok, inexact},
                                {one, 0, ok, 0},
                                {one | minus, 0x400921fb54442d18, ok, inexact}});
  expect_cases<float>("Asin", {{minus_f, minus_f, ok, 0},
                               {minus_f | 1, minus_f | 1, ok, inexact},
                               {tiny_f, tiny_f, ok, inexact},
                               {one_f | minus_f, half_pi_f | minus_f, ok, inexact}});
  expect_cases<float>("Acos", {{minus_f, half_pi_f, ok, inexact},
                               {tiny_f | minus_f, half_pi_f, ok, inexact},
                               {one_f, 0, ok, 0},
                               {one_f | minus_f, 0x40490fdb, ok, inexact}});
}

// The bounds, and changes of row in both binades of the root's table: (1 - x)/2 is an odd multiple
// of 1/512 of a binade.
TEST(AsinAcos, PathsMeet) {
  for (const auto& function : registry::functions) {
    if (function.family.name != "Asin" && function.family.name != "Acos") continue;
    const int64_t direction = function.family.name == "Acos" ? -1 : 1;
    if (function.type == registry::Type::f64) {
      for (const uint64_t around : {tiny, half, one - 60}) {
        expect_no_fall<double>(function, around, direction);
        expect_no_fall<double>(function, around | minus, -direction);
      }
      for (int row = 1; row < 512; row += 14)
        for (const double binade : {0.125, 0.25})
          expect_no_fall<double>(function, word_of(1 - 2 * binade * (1 + row / 512.0)), direction);
    } else {
      for (const uint32_t around : {tiny_f, half_f, one_f - 60})
        expect_no_fall<float>(function, around, direction);
    }
  }
}

TEST(AsinAcos, SymmetryAndGrades) {
  auto words = mixed_words<double>(5000, 0, 1, 0.1, 7);
  auto single_words = mixed_words<float>(5000, 0, 1, 0.1, 7);
  for (const char* family : {"Asin", "Acos"}) {
    expect_grades_agree<double>(family, words);
    expect_grades_agree<float>(family, single_words);
  }
  std::erase_if(words, [](uint64_t word) { return (word & ~minus) > one; });
  std::erase_if(single_words, [](uint32_t word) { return (word & ~minus_f) > one_f; });
  expect_symmetry<double>(function_named("Asin", registry::Type::f64, "A53"), words, minus);
  expect_symmetry<float>(function_named("Asin", registry::Type::f32, "A24"), single_words, minus_f);
}

}  // namespace
}  // namespace dakvm::test
