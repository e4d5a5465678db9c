// Cube roots: special arguments, exact results over the whole range, changes of row and binade.
#include "arrays.hpp"
#include "properties.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, pole = DAKVM_STATUS_SINGULARITY;
constexpr uint64_t one = 0x3ff0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>;
constexpr uint32_t one_f = 0x3f800000, inf_f = 0x7f800000, minus_f = sign_mask<float>;

TEST(Cbrt, SpecialArguments) {
  expect_cases<double>("Cbrt", {{0, 0, ok, 0},
                                {minus, minus, ok, 0},
                                {inf, inf, ok, 0},
                                {inf | minus, inf | minus, ok, 0},
                                {0x7ff8000000000123, 0x7ff8000000000123, ok, 0},
                                {0xfff8000000000123, 0xfff8000000000123, ok, 0},
                                {inf + 1, 0x7ff8000000000001, ok, invalid},
                                {1, 0x2990000000000000, ok, inexact},  // 2^-358
                                {inf - 1, 0x554428a2f98d728b, ok, inexact},
                                {one + 1, one, ok, inexact},
                                {0x4000000000000000, 0x3ff428a2f98d728b, ok, inexact},
                                {0xc010000000000000, 0xbff965fea53d6e3d, ok, inexact}});
  expect_cases<float>("Cbrt", {{minus_f, minus_f, ok, 0},
                               {inf_f | minus_f, inf_f | minus_f, ok, 0},
                               {0xffc00123, 0xffc00123, ok, 0},
                               {inf_f + 1, 0x7fc00001, ok, invalid},
                               {one_f + 1, one_f, ok, inexact}});
  expect_cases<double>("InvCbrt", {{0, inf, pole, divide_by_zero},
                                   {minus, inf | minus, pole, divide_by_zero},
                                   {inf, 0, ok, 0},
                                   {inf | minus, minus, ok, 0},
                                   {0x7ff8000000000123, 0x7ff8000000000123, ok, 0},
                                   {inf + 1, 0x7ff8000000000001, ok, invalid},
                                   {one + 1, one - 1, ok, inexact},
                                   {one - 1, one, ok, inexact}});
  expect_cases<float>("InvCbrt", {{0, inf_f, pole, divide_by_zero},
                                  {minus_f, inf_f | minus_f, pole, divide_by_zero},
                                  {inf_f | minus_f, minus_f, ok, 0},
                                  {0xffc00123, 0xffc00123, ok, 0},
                                  {one_f - 1, one_f, ok, inexact}});
}

// Powers of eight and cubes of whole numbers over the whole range, subnormal ones too.
TEST(Cbrt, ExactResults) {
  const auto& root = function_named("Cbrt", registry::Type::f64, "A53");
  const auto& inverse = function_named("InvCbrt", registry::Type::f64, "A53");
  for (int e = -358; e <= 341; ++e) {
    const auto word = [](double x, int exponent) { return word_of(__builtin_ldexp(x, exponent)); };
    ASSERT_EQ(evaluate_one<double>(root, word(1, 3 * e)).result[0], word(1, e));
    ASSERT_EQ(evaluate_one<double>(inverse, word(-1, 3 * e)).result[0], word(-1, -e));
    if (e <= -330 || e >= 320) continue;
    for (const double whole : {3.0, 5.0, 7.0, 181.0, 99999.0})
      ASSERT_EQ(evaluate_one<double>(root, word(-whole * whole * whole, 3 * e)).result[0],
                word(-whole, e));
  }
  for (int e = -49; e <= 42; ++e) {
    const auto word = [](float x, int exponent) { return word_of(__builtin_ldexpf(x, exponent)); };
    ASSERT_EQ(
        evaluate_one<float>(function_named("Cbrt", registry::Type::f32, "A24"), word(-1, 3 * e))
            .result[0],
        word(-1, e));
    ASSERT_EQ(
        evaluate_one<float>(function_named("InvCbrt", registry::Type::f32, "A24"), word(1, 3 * e))
            .result[0],
        word(1, -e));
  }
}

// Every change of row, a multiple of 1/64 of a binade, in three binades; the least normal number.
TEST(Cbrt, PathsMeet) {
  for (const auto& function : registry::functions) {
    if (function.family.name != "Cbrt" && function.family.name != "InvCbrt") continue;
    const int64_t direction = function.family.name == "Cbrt" ? 1 : -1;
    for (uint32_t row = 0; row < 192; ++row) {
      if (function.type == registry::Type::f64)
        expect_no_fall<double>(function, one + (uint64_t{row} << 46), direction);
      else
        expect_no_fall<float>(function, one_f + (row << 17), direction);
    }
    if (function.type == registry::Type::f64)
      expect_no_fall<double>(function, 0x0010000000000000, direction);
    else
      expect_no_fall<float>(function, 0x00800000, direction);
  }
}

TEST(Cbrt, SymmetryAndGrades) {
  const auto words = mixed_words<double>(5000, 0, 100, 0.3, 7);
  const auto single_words = mixed_words<float>(5000, 0, 100, 0.3, 7);
  for (const char* family : {"Cbrt", "InvCbrt"}) {
    expect_symmetry<double>(function_named(family, registry::Type::f64, "A53"), words, minus);
    expect_symmetry<float>(function_named(family, registry::Type::f32, "A24"), single_words,
                           minus_f);
    expect_grades_agree<double>(family, words);
    expect_grades_agree<float>(family, single_words);
  }
}

}  // namespace
}  // namespace dakvm::test
