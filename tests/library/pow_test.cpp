// Power: the special cases in their order, both sides of the range's bounds, exact results, and one
// exponent for all against an array of it.
#include "arrays.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, domain = DAKVM_STATUS_DOMAIN;
constexpr uint16_t over = overflow | inexact, under = underflow | inexact;
constexpr uint16_t pole = divide_by_zero | invalid;  // the division, and the notification
constexpr uint64_t one = 0x3ff0000000000000, two = 0x4000000000000000, three = 0x4008000000000000,
                   half = 0x3fe0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>,
                   nan = 0x7ff8000000000123, default_nan = 0xfff8000000000000,
                   signalling = 0x7ff0000000000001;

constexpr uint32_t one_f = 0x3f800000, two_f = 0x40000000, three_f = 0x40400000, inf_f = 0x7f800000,
                   minus_f = sign_mask<float>, nan_f = 0x7fc00123, default_nan_f = 0xffc00000;

TEST(Pow, OneAndZeroExponentComeBeforeNan) {
  std::vector<Case<double>> cases;
  for (const uint64_t other : {nan, signalling, nan | minus, inf, inf | minus}) {
    cases.push_back({one, one, ok, 0, other});
    cases.push_back({one | minus, one, ok, 0, other});
    cases.push_back({other, one, ok, 0, 0});
    cases.push_back({other, one, ok, 0, minus});
  }
  expect_cases<double>("Pow", cases);
  expect_cases<double>("Pow", {{nan, nan, ok, 0, one},
                               {two, nan, ok, 0, nan},
                               {0, nan, ok, 0, nan},
                               {one | minus, one | minus, ok, 0, three},
                               {signalling, signalling | 1ull << 51, ok, invalid, two},
                               {nan, 0x7ff8000000000456, ok, 0, 0x7ff8000000000456}});
  expect_cases<float>("Pow", {{one_f, one_f, ok, 0, nan_f},
                              {one_f | minus_f, one_f, ok, 0, inf_f},
                              {nan_f, one_f, ok, 0, minus_f},
                              {two_f, nan_f, ok, 0, nan_f},
                              {nan_f, nan_f, ok, 0, two_f}});
}

TEST(Pow, InfiniteOperands) {
  expect_cases<double>("Pow", {{0, inf, domain, pole, inf | minus},
                               {minus, inf, domain, pole, inf | minus},
                               {0, 0, ok, 0, inf},
                               {minus, 0, ok, 0, inf},
                               {half, 0, ok, 0, inf},
                               {half, inf, ok, 0, inf | minus},
                               {two | minus, inf, ok, 0, inf},
                               {two, 0, ok, 0, inf | minus},
                               {inf, inf, ok, 0, half},
                               {inf, 0, ok, 0, three | minus},
                               {inf | minus, inf | minus, ok, 0, three},
                               {inf | minus, minus, ok, 0, three | minus},
                               {inf | minus, inf, ok, 0, two},
                               {inf | minus, inf, ok, 0, half}});
  expect_cases<float>("Pow", {{0, inf_f, domain, pole, inf_f | minus_f},
                              {two_f, 0, ok, 0, inf_f | minus_f},
                              {0x3f000000, inf_f, ok, 0, inf_f | minus_f},
                              {inf_f | minus_f, inf_f | minus_f, ok, 0, three_f},
                              {inf_f | minus_f, minus_f, ok, 0, three_f | minus_f}});
}

TEST(Pow, ZerosAndNegativeNumbers) {
  expect_cases<double>("Pow",
                       {{0, inf, domain, pole, three | minus},
                        {minus, inf | minus, domain, pole, three | minus},
                        {minus, inf, domain, pole, two | minus},
                        {minus, inf, domain, pole, half | minus},
                        {minus, minus, ok, 0, three},
                        {minus, 0, ok, 0, two},
                        {0, 0, ok, 0, half},
                        {0xc020000000000000, default_nan, domain, invalid, 0x3fd5555555555555},
                        {1 | minus, default_nan, domain, invalid, half},
                        {two | minus, 0xc020000000000000, ok, 0, three},
                        {two | minus, 0x4010000000000000, ok, 0, two},
                        {one | minus, one | minus, ok, 0, three | minus},
                        {one | minus, one, ok, 0, two},
                        {one | minus, default_nan, domain, invalid, half}});
  expect_cases<float>("Pow", {{0, inf_f, domain, pole, three_f | minus_f},
                              {minus_f, inf_f | minus_f, domain, pole, three_f | minus_f},
                              {minus_f, minus_f, ok, 0, three_f},
                              {minus_f, 0, ok, 0, two_f},
                              {0xc1000000, default_nan_f, domain, invalid, 0x3eaaaaab},
                              {two_f | minus_f, 0xc1000000, ok, 0, three_f},
                              {two_f | minus_f, 0x40800000, ok, 0, two_f}});
}

// The sign of (-1)^y is the parity of y, at every exponent of y.
TEST(Pow, ParityOfTheExponent) {
  const auto& pow = function_named("Pow", registry::Type::f64, "A53");
  const auto& powf = function_named("Pow", registry::Type::f32, "A24");
  const auto sign = [&](uint64_t y) { return evaluate_one<double>(pow, one | minus, y); };
  const auto sign_f = [&](uint32_t y) { return evaluate_one<float>(powf, one_f | minus_f, y); };
  for (int e = 1; e <= 70; ++e) {
    SCOPED_TRACE(e);
    const uint64_t power = one + (static_cast<uint64_t>(e) << 52);
    const uint32_t power_f = one_f + (static_cast<uint32_t>(e) << 23);
    EXPECT_EQ(sign(power).result[0], one);
    EXPECT_EQ(sign_f(power_f).result[0], one_f);
    EXPECT_EQ(sign(power + (e <= 52 ? 1ull << (52 - e) : 1)).result[0],
              e <= 52 ? one | minus : one);
    EXPECT_EQ(sign_f(power_f + (e <= 23 ? 1u << (23 - e) : 1)).result[0],
              e <= 23 ? one_f | minus_f : one_f);
    EXPECT_EQ(sign(power + (e < 52 ? 1ull << (51 - e) : 0)).status, e < 52 ? domain : ok);
    EXPECT_EQ(sign_f(power_f + (e < 23 ? 1u << (22 - e) : 0)).status, e < 23 ? domain : ok);
  }
  EXPECT_EQ(evaluate_one<double>(pow, 0xbff8000000000000, 0x4130000100000000).result[0],
            inf | minus);  // (-1.5)^1048577
}

TEST(Pow, BoundsOfTheRange) {
  const uint64_t huge = inf - 1, e1024 = 0x4090000000000000;
  expect_cases<double>("Pow", {{two, inf, ok, over, e1024},
                               {two, 0x7fe0000000000000, ok, 0, 0x408ff80000000000},  // 2^1023
                               {two, 1ull << 52, ok, 0, 0xc08ff00000000000},          // 2^-1022
                               {two, 1ull << 51, ok, under, 0xc08ff80000000000},      // 2^-1023
                               {two, 1, ok, under, 0xc090c80000000000},               // 2^-1074
                               {two, 0, ok, under, 0xc090e00000000000},               // 2^-1080
                               {two | minus, 2 | minus, ok, under, 0xc090c40000000000},
                               {two | minus, minus, ok, under, 0xc090f40000000000},  // (-2)^-1085
                               {huge, inf, ok, over, two},
                               {huge, 0, ok, under, huge | minus},
                               {0x4000000000000001, inf, ok, over, huge},
                               {two | minus, inf, ok, over, 0x43b0000000000000},  // (-2)^(2^60)
                               {two, one, ok, inexact, 1},
                               {two, one, ok, inexact, 0x3c00000000000000},  // 2^-63
                               {two | minus, default_nan, domain, invalid, 0x3c00000000000000},
                               {1, 0x6180000000000000, ok, 0, half | minus}});
  expect_cases<float>("Pow", {{two_f, inf_f, ok, over, 0x43000000},
                              {two_f, 0x7f000000, ok, 0, 0x42fe0000},
                              {two_f, 1, ok, 0, 0xc3150000},
                              {two_f, 0, ok, under, 0xc3160000},  // 2^-150, half of the least
                              {two_f, 0, ok, under, inf_f - 1 + minus_f},
                              {two_f | minus_f, inf_f, ok, over, inf_f - 1},
                              {two_f, one_f, ok, inexact, 1},
                              {1, 0x1a3504f3, ok, inexact, 0x3f000000}});
}

// Single precision: squares, cubes and roots whose exact value is a float or midway between two.
TEST(Pow, ExactResultsAndMidpointsInSinglePrecision) {
  const auto& pow = function_named("Pow", registry::Type::f32, "A24");
  const auto result = [&](float x, float y) {
    return evaluate_one<float>(pow, word_of(x), word_of(y)).result[0];
  };
  for (int k = 1; k < 8192; ++k) {
    const double x = k * 0x1p-12 + 1;
    ASSERT_EQ(result(static_cast<float>(x), 2), word_of(static_cast<float>(x * x))) << k;
    ASSERT_EQ(result(static_cast<float>(x * 0x1p-70), 2),
              word_of(static_cast<float>(x * x * 0x1p-140)));
    const double c = (k % 256 + 256);
    ASSERT_EQ(result(static_cast<float>(c), 3), word_of(static_cast<float>(c * c * c)));
    ASSERT_EQ(result(static_cast<float>(c * c), 1.5f), word_of(static_cast<float>(c * c * c)));
    ASSERT_EQ(result(static_cast<float>(k), 1), word_of(static_cast<float>(k)));
    ASSERT_EQ(result(static_cast<float>(k & 4095) * (k & 4095), 0.5f),
              word_of(static_cast<float>(k & 4095)));
  }
}

template <class T>
void expect_repeated_exponent() {
  constexpr bool is_double = sizeof(T) == 8;
  const auto type = is_double ? registry::Type::f64 : registry::Type::f32;
  const auto& pow = function_named("Pow", type, is_double ? "A53" : "A24");
  const auto xs = mixed_words<T>(300, 0.5, 20, 0.4, 1);
  const auto ys = mixed_words<T>(300, -30, 30, 0.5, 2);
  for (const auto& function : registry::functions) {
    if (function.type != type || (function.family.name != "Pow" && function.family.name != "Powx"))
      continue;
    SCOPED_TRACE(function.name);
    for (const Word<T> y : ys) {
      for (size_t i = 0; i < 40; ++i) {
        const Word<T> x = xs[(i * 7 + y % 300) % 300];
        const auto expected = evaluate_one<T>(pow, x, y);
        Single<T> got;
        if (function.family.name == "Pow") {
          got = evaluate_one<T>(function, x, y);
        } else {
          // By its bits on the stack: the exponent may be a signalling NaN.
          const auto entry =
              std::get<registry::ScalarExponent<T>>(std::get<registry::Entry<T>>(function.entry));
#ifdef __i386__
          const auto call = reinterpret_cast<int32_t (*)(const T*, Word<T>, T*, int32_t)>(
              reinterpret_cast<void*>(entry));
          clear_flags();
          got.status = call(numbers<T>(&x), y, numbers<T>(&got.result[0]), 1);
#else
          clear_flags();
          got.status = entry(numbers<T>(&x), *numbers<T>(&y), numbers<T>(&got.result[0]), 1);
#endif
          got.flags = raised_flags();
        }
        ASSERT_EQ(got.result[0], expected.result[0]) << std::hex << x << " " << y;
        ASSERT_EQ(got.status, expected.status) << std::hex << x << " " << y;
        ASSERT_EQ(got.flags, expected.flags) << std::hex << x << " " << y;
      }
    }
  }
}

TEST(Powx, IsPowWithTheExponentRepeated) {
  expect_repeated_exponent<double>();
  expect_repeated_exponent<float>();
}

}  // namespace
}  // namespace dakvm::test
