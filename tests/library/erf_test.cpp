// Error functions: special arguments, both sides of every bound, seams between rows, identities.
#include <cmath>

#include "arrays.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, under = DAKVM_STATUS_UNDERFLOW;
constexpr uint64_t one = 0x3ff0000000000000, two = 0x4000000000000000, inf = 0x7ff0000000000000,
                   minus = sign_mask<double>;
constexpr uint32_t one_f = 0x3f800000, two_f = 0x40000000, inf_f = 0x7f800000,
                   minus_f = sign_mask<float>;
constexpr uint16_t tiny = underflow | inexact;

TEST(Erf, SpecialArguments) {
  expect_cases<double>("Erf", {{0, 0, ok, 0},
                               {minus, minus, ok, 0},
                               {inf, one, ok, 0},
                               {inf | minus, one | minus, ok, 0},
                               {inf - 1, one, ok, inexact},
                               {0x4017afb48dc96628, one, ok, inexact},  // 5.92...
                               {0x4017afb48dc96627, one, ok, inexact},
                               {0x7ff8000000000123, 0x7ff8000000000123, ok, 0},
                               {0xfff0000000000001, 0xfff8000000000001, ok, invalid}});
  expect_cases<float>("Erf", {{0, 0, ok, 0},
                              {minus_f, minus_f, ok, 0},
                              {inf_f, one_f, ok, 0},
                              {inf_f | minus_f, one_f | minus_f, ok, 0},
                              {0x40bd7da5, one_f, ok, inexact},
                              {0xffc00123, 0xffc00123, ok, 0},
                              {inf_f + 1, 0x7fc00001, ok, invalid}});
}

TEST(Erf, KnownResults) {
  expect_cases<double>("Erf", {{1, 1, ok, tiny},
                               {0x00000fffffffffff, 0x0000120dd750429a, ok, tiny},
                               {0x0000010000000000 | minus, 0x00000120dd75042a | minus, ok, tiny},
                               {0x000e2dfc48da77b4, 0x000fffffffffffff, ok, tiny},
                               {0x000e2dfc48da77b6, 0x0010000000000001, ok, inexact},
                               {0x0010000000000000, 0x00120dd750429b6d, ok, inexact},
                               {0x3d6fffffffffffff, 0x3d720dd750429b6d, ok, inexact},  // 2^-40
                               {0x3d70000000000000, 0x3d720dd750429b6d, ok, inexact},
                               {0x3fb5988928000000, 0x3fb84f84a0cf699f, ok, inexact},  // a near tie
                               {0x3fc0000000000000, 0x3fc1f5e1a35c3b89, ok, inexact},
                               {0x3fe0000000000000, 0x3fe0a7ef5c18edd2, ok, inexact},
                               {one | minus, 0x3feaf767a741088b | minus, ok, inexact},
                               {0x4012000000000000, 0x3fefffffffe4fa30, ok, inexact}});
  expect_cases<float>("Erf", {{1, 1, ok, tiny},
                              {0x007fffff, 0x00906eb9, ok, inexact},
                              {0x2b7fffff, 0x2b906eba, ok, inexact},
                              {0x3e000000 | minus_f, 0x3e0faf0d | minus_f, ok, inexact},
                              {one_f, 0x3f57bb3d, ok, inexact}});
}

TEST(Erfc, SpecialArguments) {
  expect_cases<double>("Erfc", {{0, one, ok, 0},
                                {minus, one, ok, 0},
                                {1, one, ok, inexact},
                                {0x3b9fffffffffffff, one, ok, inexact},  // 2^-70
                                {0x3ba0000000000000 | minus, one, ok, inexact},
                                {inf, 0, ok, 0},
                                {inf | minus, two, ok, 0},
                                {(inf - 1) | minus, two, ok, inexact},
                                {0xc017744f8f74e94a, two, ok, inexact},  // -5.86...
                                {0x403b39dc41e48bfd, 0, under, tiny},    // 27.22...
                                {inf - 1, 0, under, tiny},
                                {0x7ff8000000000123, 0x7ff8000000000123, ok, 0},
                                {inf + 1, 0x7ff8000000000001, ok, invalid}});
  expect_cases<float>("Erfc", {{0, one_f, ok, 0},
                               {minus_f, one_f, ok, 0},
                               {1, one_f, ok, inexact},
                               {inf_f, 0, ok, 0},
                               {inf_f | minus_f, two_f, ok, 0},
                               {0xc0bba27d, two_f, ok, inexact},
                               {0x4120ddfc, 0, under, tiny},  // 10.05...
                               {inf_f - 1, 0, under, tiny},
                               {0xffc00123, 0xffc00123, ok, 0}});
}

TEST(Erfc, KnownResults) {
  expect_cases<double>("Erfc",
                       {{one, 0x3fc4226162fbddd5, ok, inexact},
                        {0x3ffd84ec6c99786c, 0x3f8296bdfebf31bf, ok, inexact},  // a near tie
                        {one | minus, 0x3ffd7bb3d3a08445, ok, inexact},
                        {0x403a8b12fc6e4891, 0x0010000000000332, ok, inexact},
                        {0x403a8b12fc6e4893, 0x000ffffffffffc8e, ok, tiny},
                        {0x403ab30a0f9c4611, 0x0000010000000000, ok, tiny},
                        {0x403ab30a0f9c4612, 0x000000ffffffffff, ok, tiny},
                        {0x403b333333333333, 2, ok, tiny},
                        {0x403b39dc41e48bfc, 1, ok, tiny}});
  expect_cases<float>("Erfc", {{one_f, 0x3e21130b, ok, inexact},
                               {one_f | minus_f, 0x3febdd9f, ok, inexact},
                               {0x41131a3b, 0x00818995, ok, inexact},
                               {0x4120ddfb, 1, ok, tiny}});
}

// A result's place in the order of numbers; on the way across `seam` results go one way only.
template <class T>
void expect_one_way(const registry::Function& function, T seam, bool rises) {
  const Word<T> around = word_of(seam);
  const auto place = [](Word<T> word) {
    const auto magnitude = static_cast<int64_t>(word & ~sign_mask<T>);
    return word & sign_mask<T> ? -magnitude : magnitude;
  };
  int64_t last = 0;
  for (Word<T> x = around - 200; x != around + 200; ++x) {
    const int64_t now = place(evaluate_one<T>(function, x).result[0]);
    // Below zero the numbers fall as their words grow.
    if (x != around - 200) {
      ASSERT_TRUE(now == last || (now > last) == (rises != (seam < 0)))
          << function.name << " at " << seam << ": " << x;
    }
    last = now;
  }
}

TEST(Erf, RowsMeet) {
  std::vector<double> erf_seams = {0x1p-1034, 0x1p-1022, 0x1p-40, 0x1.7afb48dc96628p+2},
                      erfc_seams = {0x1p-70,
                                    0x1.8p+4,
                                    0x1.a8b12fc6e4892p+4,
                                    0x1.ab30a0f9c4611p+4,
                                    0x1.b39dc41e48bfcp+4,
                                    -0x1.7744f8f74e94ap+2};
  for (int row = 0; row <= 21; ++row)
    erf_seams.push_back(std::ldexp(1 + row % 4 / 4.0, row / 4 - 3));
  for (int row = 1; row < 20; ++row) erfc_seams.push_back(std::exp2(row / 4.0) - 1);
  for (const auto& function : registry::functions) {
    const bool rises = function.family.name == "Erf";
    if (!rises && function.family.name != "Erfc") continue;
    for (const double seam : rises ? erf_seams : erfc_seams)
      for (const double sign : {1, -1}) {
        if (function.type == registry::Type::f64)
          expect_one_way<double>(function, seam * sign, rises);
        else if (seam > 0x1p-126)
          expect_one_way<float>(function, static_cast<float>(seam * sign), rises);
      }
  }
}

// erf is odd to the bit, and erf(x) + erfc(x) = 1 but for the roundings of the two.
TEST(Erf, Identities) {
  const auto words = mixed_words<double>(20000, -6, 6, 0.1, 7);
  const auto& erf = function_named("Erf", registry::Type::f64, "A53");
  const auto& erfc = function_named("Erfc", registry::Type::f64, "A53");
  for (const uint64_t word : words) {
    if (is_nan<double>(word)) continue;
    const auto result = evaluate_one<double>(erf, word).result[0];
    ASSERT_EQ(evaluate_one<double>(erf, word ^ minus).result[0], result ^ minus);
    const auto complement = evaluate_one<double>(erfc, word).result[0];
    const long double sum =
        static_cast<long double>(*numbers<double>(&result)) + *numbers<double>(&complement);
    ASSERT_LE(std::fabs(sum - 1), word >> 63 != 0 ? 0x1.82p-53L : 0x1.03p-53L) << word;
  }
}

}  // namespace
}  // namespace dakvm::test
