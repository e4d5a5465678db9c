// Square roots: special arguments, subnormal numbers, exact roots, and the scalar entries.
#include "arrays.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, domain = DAKVM_STATUS_DOMAIN;
constexpr uint64_t inf = 0x7ff0000000000000, minus = sign_mask<double>;
constexpr uint64_t default_nan = 0xfff8000000000000, nan = 0x7ff8000000000123;
constexpr uint32_t inf_f = 0x7f800000, minus_f = sign_mask<float>, default_nan_f = 0xffc00000;

TEST(Sqrt, SpecialArguments) {
  expect_cases<double>("Sqrt", {{0, 0, ok, 0},
                                {minus, minus, ok, 0},
                                {inf, inf, ok, 0},
                                {inf | minus, default_nan, domain, invalid},
                                {0xbff0000000000000, default_nan, domain, invalid},
                                {minus | 1, default_nan, domain, invalid},
                                {nan, nan, ok, 0},
                                {nan | minus, nan | minus, ok, 0},
                                {inf + 1, 0x7ff8000000000001, ok, invalid}});
  expect_cases<float>("Sqrt", {{0, 0, ok, 0},
                               {minus_f, minus_f, ok, 0},
                               {inf_f, inf_f, ok, 0},
                               {inf_f | minus_f, default_nan_f, domain, invalid},
                               {minus_f | 1, default_nan_f, domain, invalid},
                               {0x7fc00123, 0x7fc00123, ok, 0},
                               {inf_f + 1, 0x7fc00001, ok, invalid}});
}

// Squares of 26-bit numbers (32f: 12-bit) in every binade, subnormal ones too.
TEST(Sqrt, ExactRoots) {
  for (const auto& function : registry::functions) {
    if (function.family.name != "Sqrt") continue;
    const auto check = [&]<class T>(T, int bits, int least) {
      std::mt19937 random(1);
      for (int exponent = least; exponent + 2 * bits < -least - 2 * bits; exponent += 2) {
        const auto root = static_cast<long double>(random() >> (32 - bits) | 1);
        const T x = static_cast<T>(__builtin_ldexpl(root * root, exponent));
        const T expected = static_cast<T>(__builtin_ldexpl(root, exponent / 2));
        ASSERT_EQ(evaluate_one<T>(function, word_of(x)).result[0], word_of(expected)) << exponent;
      }
    };
    SCOPED_TRACE(function.name);
    if (function.type == registry::Type::f64)
      check(double{}, 26, -1074);
    else
      check(float{}, 12, -148);
  }
}

template <class T>
Word<T> scalar_root(long double (*root)(T), Word<T> x) {
  T argument;
  std::memcpy(&argument, &x, sizeof argument);
  return word_of(static_cast<T>(root(argument)));
}

TEST(ScalarSqrt, SpecialArguments) {
  const std::pair<uint64_t, uint64_t> doubles[] = {{0, 0},
                                                   {minus, minus},
                                                   {inf, inf},
                                                   {inf | minus, 0x7ff8a5a55a5a5a5a},
                                                   {nan, nan},
                                                   {nan | minus, nan | minus},
                                                   {0xc010000000000000, 0x7ff8a5a55a5a5a5a},
                                                   {minus | 1, 0x7ff8a5a55a5a5a5a},
                                                   {0x4010000000000000, 0x4000000000000000}};
  for (const auto& [x, root] : doubles)
    EXPECT_EQ(scalar_root<double>(gaxdsqrt_scalar, x), root) << x;
  const std::pair<uint32_t, uint32_t> floats[] = {{0, 0},
                                                  {minus_f, minus_f},
                                                  {inf_f, inf_f},
                                                  {inf_f | minus_f, default_nan_f},
                                                  {0xc0800000, default_nan_f},
                                                  {minus_f | 1, default_nan_f},
                                                  {0x7fc00123, 0x7fc00123},
                                                  {0xffc00123, 0xffc00123}};
  for (const auto& [x, root] : floats) EXPECT_EQ(scalar_root<float>(gaxssqrt_scalar, x), root) << x;
}

TEST(ScalarSqrt, ReturnsMoreThanItsTypeHolds) {
  const long double root = gaxdsqrt_scalar(2.0);
  EXPECT_NE(root, static_cast<long double>(static_cast<double>(root)));
  EXPECT_TRUE(stack_is_empty());
}

}  // namespace
}  // namespace dakvm::test
