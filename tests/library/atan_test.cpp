// Arc tangents: special arguments, both sides of every bound, symmetry, hard cases, scalar entries.
#include "arrays.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK;
constexpr uint16_t under = underflow | inexact;
constexpr uint64_t one = 0x3ff0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>,
                   nan = 0x7ff8000000000123, least_normal = 1ull << 52, eighth = 0x3fc0000000000000;
constexpr uint64_t pi = 0x400921fb54442d18, half_pi = 0x3ff921fb54442d18,
                   quarter_pi = 0x3fe921fb54442d18, three_quarters_pi = 0x4002d97c7f3321d2;
constexpr uint32_t one_f = 0x3f800000, inf_f = 0x7f800000, minus_f = sign_mask<float>,
                   nan_f = 0x7fc00123;
constexpr uint32_t pi_f = 0x40490fdb, half_pi_f = 0x3fc90fdb, quarter_pi_f = 0x3f490fdb,
                   three_quarters_pi_f = 0x4016cbe4;

const registry::Function& atan64() { return function_named("Atan", registry::Type::f64, "A53"); }
const registry::Function& atan32() { return function_named("Atan", registry::Type::f32, "A24"); }
const registry::Function& atan2_64() { return function_named("Atan2", registry::Type::f64, "A53"); }
const registry::Function& atan2_32() { return function_named("Atan2", registry::Type::f32, "A24"); }

TEST(Atan, SpecialArguments) {
  constexpr uint64_t tiny = 0x3ca0000000000000, huge = 0x4350000000000000;  // 2^-53, 2^54
  expect_cases<double>("Atan", {{0, 0, ok, 0},
                                {minus, minus, ok, 0},
                                {1, 1, ok, under},
                                {minus | (least_normal - 1), minus | (least_normal - 1), ok, under},
                                {least_normal, least_normal, ok, inexact},
                                {tiny - 1, tiny - 1, ok, inexact},
                                {minus | tiny, minus | tiny, ok, inexact},
                                {huge - 1, half_pi, ok, inexact},
                                {huge, half_pi, ok, inexact},
                                {minus | (inf - 1), minus | half_pi, ok, inexact},
                                {inf, half_pi, ok, inexact},
                                {minus | inf, minus | half_pi, ok, inexact},
                                {nan, nan, ok, 0},
                                {minus | nan, minus | nan, ok, 0},
                                {inf + 1, 0x7ff8000000000001, ok, invalid}});
  expect_cases<float>("Atan", {{0, 0, ok, 0},
                               {minus_f, minus_f, ok, 0},
                               {1, 1, ok, inexact},
                               {minus_f | 0x00800001, minus_f | 0x00800001, ok, inexact},
                               {inf_f - 1, half_pi_f, ok, inexact},
                               {inf_f, half_pi_f, ok, inexact},
                               {minus_f | inf_f, minus_f | half_pi_f, ok, inexact},
                               {nan_f, nan_f, ok, 0},
                               {minus_f | nan_f, nan_f, ok, 0},
                               {minus_f | (inf_f + 1), 0x7fc00001, ok, invalid}});
}

// Results closer than 2^-54 ulp to the middle of two doubles.
TEST(Atan, HardCases) {
  expect_cases<double>("Atan", {{0x420a90614216a467, 0x3ff921fb543f5b8c, ok, inexact},
                                {0x401724a8c0967cf5, 0x3ff664f79da54c87, ok, inexact},
                                {0x42259121e248098a, 0x3ff921fb5442b141, ok, inexact},
                                {0x3fcd768804487b07, 0x3fccf5676f373ec1, ok, inexact}});
}

TEST(Atan, IsOdd) {
  for (const uint64_t x : mixed_words<double>(5000, 0, 30, 0.2, 1))
    if (!is_nan<double>(x)) {
      ASSERT_EQ(evaluate_one<double>(atan64(), x ^ minus).result[0],
                evaluate_one<double>(atan64(), x).result[0] ^ minus);
    }
  for (const uint32_t x : mixed_words<float>(5000, 0, 30, 0.2, 2))
    if (!is_nan<float>(x)) {
      ASSERT_EQ(evaluate_one<float>(atan32(), x ^ minus_f).result[0],
                evaluate_one<float>(atan32(), x).result[0] ^ minus_f);
    }
}

// Across every change of row, and with it at the first, results grow with the argument; angles in
// the left half of the plane fall.
TEST(Atan, GrowsAcrossRows) {
  for (uint64_t seam = eighth; seam <= 0x4350000000000000; seam += 1ull << 51) {
    uint64_t last = 0, last_right = 0, last_left = pi;
    for (int step = -20; step <= 20; ++step) {
      const uint64_t x = seam + static_cast<uint64_t>(step);
      const uint64_t angle = evaluate_one<double>(atan64(), x).result[0];
      const uint64_t right = evaluate_one<double>(atan2_64(), x, one).result[0];
      const uint64_t left = evaluate_one<double>(atan2_64(), x, one | minus).result[0];
      ASSERT_TRUE(angle >= last && right >= last_right && left <= last_left) << std::hex << x;
      last = angle, last_right = right, last_left = left;
    }
  }
}

// A bound of the four intervals belongs to the one below it. The results differ beyond the bits of
// a float: seen in double, where the scalar entry's value is rounded once.
TEST(ScalarAtan, BoundsOfTheIntervals) {
  const std::pair<uint32_t, uint64_t> cases[] = {
      {0x3ec00000, 0x3fd6f6194503c2e7}, {0x3ec00001, 0x3fd6f6195db9afe9},
      {0x3f800000, 0x3fe921fb550c2722}, {0x3f800001, 0x3fe921fb74fdd4e2},
      {0x402c0000, 0x3ff36ee7f242ad6f}, {0x402c0001, 0x3ff36ee7fa2727d1}};
  for (const auto& [x, angle] : cases)
    EXPECT_EQ(word_of(static_cast<double>(gaxsatan_scalar(*numbers<float>(&x)))), angle);
  EXPECT_TRUE(stack_is_empty());
}

TEST(ScalarAtan, IsTheVectorFunctionUnrounded) {
  for (const uint32_t x : mixed_words<float>(5000, -30, 30, 0.3, 3)) {
    if (x << 1 > inf_f << 1) continue;
    const long double angle = gaxsatan_scalar(*numbers<float>(&x));
    ASSERT_EQ(word_of(static_cast<float>(angle)), evaluate_one<float>(atan32(), x).result[0]) << x;
  }
  EXPECT_NE(gaxsatan_scalar(2.0f),
            static_cast<long double>(static_cast<double>(gaxsatan_scalar(2.0f))));
  EXPECT_EQ(word_of(static_cast<float>(gaxsatan_scalar(*numbers<float>(&nan_f)))), nan_f);
}

TEST(Atan2, SpecialPairs) {
  expect_cases<double>("Atan2", {{0, 0, ok, 0, 0},
                                 {minus, minus, ok, 0, 0},
                                 {0, pi, ok, inexact, minus},
                                 {minus, minus | pi, ok, inexact, minus},
                                 {0, 0, ok, 0, one},
                                 {minus, minus, ok, 0, inf},
                                 {0, pi, ok, inexact, minus | 1},
                                 {minus, minus | pi, ok, inexact, minus | inf},
                                 {1, half_pi, ok, inexact, 0},
                                 {minus | one, minus | half_pi, ok, inexact, minus},
                                 {one, 0, ok, 0, inf},
                                 {minus | one, minus | pi, ok, inexact, minus | inf},
                                 {inf, half_pi, ok, inexact, minus | one},
                                 {minus | inf, minus | half_pi, ok, inexact, 0},
                                 {inf, quarter_pi, ok, inexact, inf},
                                 {minus | inf, minus | quarter_pi, ok, inexact, inf},
                                 {inf, three_quarters_pi, ok, inexact, minus | inf},
                                 {minus | inf, minus | three_quarters_pi, ok, inexact, minus | inf},
                                 {nan, nan, ok, 0, inf},
                                 {0, minus | nan, ok, 0, minus | nan},
                                 {nan, nan + 1, ok, 0, nan + 1},
                                 {inf + 1, 0x7ff8000000000001, ok, invalid, one}});
  expect_cases<float>("Atan2", {{minus_f, minus_f, ok, 0, 0},
                                {0, pi_f, ok, inexact, minus_f},
                                {1, half_pi_f, ok, inexact, minus_f},
                                {one_f, 0, ok, 0, inf_f},
                                {minus_f | inf_f, minus_f | half_pi_f, ok, inexact, one_f},
                                {inf_f, quarter_pi_f, ok, inexact, inf_f},
                                {inf_f, three_quarters_pi_f, ok, inexact, minus_f | inf_f},
                                {nan_f, nan_f, ok, 0, 0},
                                {inf_f, nan_f, ok, 0, nan_f}});
}

// Exponents apart by the borders of the shortcuts, subnormal operands, the ends of the range.
TEST(Atan2, FarQuadrants) {
  const auto power = [](int e) { return static_cast<uint64_t>(1023 + e) << 52; };
  constexpr uint64_t ones = (1ull << 52) - 1;
  expect_cases<double>("Atan2",
                       {{power(-54), power(-54), ok, inexact, one},
                        {power(-54) | ones, power(-54), ok, inexact, one | ones},
                        {power(-54), pi, ok, inexact, one | minus},
                        {power(-53), power(-53), ok, inexact, one},
                        {power(-53), power(-54) | (1ull << 51), ok, inexact, 0x3ff5555555555555},
                        {power(53), half_pi + 1, ok, inexact, one | minus},
                        {power(53), half_pi - 1, ok, inexact, one | ones},
                        {power(54), half_pi, ok, inexact, one | ones},
                        {power(54), half_pi + 1, ok, inexact, minus | one | ones},
                        {power(73), half_pi, ok, inexact, minus | one | ones},
                        {power(74), half_pi, ok, inexact, minus | one | ones},
                        {1, quarter_pi, ok, inexact, 1},
                        {1, three_quarters_pi, ok, inexact, minus | 1},
                        {3, 0x3ff3fc176b7a8560, ok, inexact, 1},
                        {inf - 1, quarter_pi, ok, inexact, inf - 1},
                        {inf - 1, half_pi, ok, inexact, minus | 1},
                        {1, 0, ok, under, inf - 1},
                        {1, pi, ok, inexact, minus | (inf - 1)},
                        {least_normal, least_normal >> 1, ok, under, one + (1ull << 52)},
                        // Quotients of 2^54 and more, exponent fields less than 54 apart.
                        {power(-970), half_pi, ok, inexact, 1},
                        {power(-970), half_pi, ok, inexact, minus | 1},
                        {power(-985), half_pi, ok, inexact, 1ull << 36},
                        {power(-985), half_pi + 1, ok, inexact, minus | 1ull << 36}});
}

// Doubles within 2^-95 ulp of the middle of two, and floats.
TEST(Atan2, HardCases) {
  expect_cases<double>("Atan2",
                       {{0x4332981ce8381491, 0x3fe73d17a08509c6, ok, inexact, 0x4334efd17defb8d1},
                        {0x433bb8fea8f7fdc9, 0x3fe8772aed7d0c44, ok, inexact, 0x433ce74e40c96844}});
  expect_cases<float>("Atan2", {{0x40e17170, 0x4010895e, ok, inexact, 0xc0b9276c},
                                {0x404ccc80, 0x3f0137ff, ok, inexact, 0x40b95698},
                                {0xc01b84d0, 0xc0376184, ok, inexact, 0xc109225d},
                                {0xbf800000, 0x80200000, ok, under, 0x7f7fffff}});
}

TEST(Atan2, SinglePrecisionRoundsTheDoubleResult) {
  const auto a = mixed_words<float>(20000, -30, 30, 0.3, 4);
  const auto b = mixed_words<float>(20000, -30, 30, 0.3, 5);
  for (size_t i = 0; i < a.size(); ++i) {
    const uint64_t wide_a = word_of(static_cast<double>(*numbers<float>(&a[i])));
    const uint64_t wide_b = word_of(static_cast<double>(*numbers<float>(&b[i])));
    const uint64_t angle = evaluate_one<double>(atan2_64(), wide_a, wide_b).result[0];
    const uint32_t single = evaluate_one<float>(atan2_32(), a[i], b[i]).result[0];
    if (is_nan<double>(angle)) {
      ASSERT_TRUE(is_nan<float>(single));
    } else {
      ASSERT_EQ(single, word_of(static_cast<float>(*numbers<double>(&angle))))
          << a[i] << ' ' << b[i];
    }
  }
}

// Special pairs as the vector functions have them; elsewhere at most a neighbour, for floats the
// same number.
TEST(ScalarAtan2, AgreesWithTheVectorFunctions) {
  const auto compare = [](const auto& function, auto entry, auto type, double special) {
    using T = decltype(type);
    const auto a = mixed_words<T>(5000, -5, 5, special, 6);
    const auto b = mixed_words<T>(5000, -5, 5, special, 7);
    for (size_t i = 0; i < a.size(); ++i) {
      if (is_nan<T>(a[i]) || is_nan<T>(b[i])) continue;
      const auto vector = evaluate_one<T>(function, a[i], b[i]).result[0];
      const auto scalar = word_of(static_cast<T>(entry(*numbers<T>(&a[i]), *numbers<T>(&b[i]))));
      ASSERT_LE(scalar - vector + 1, sizeof(T) / 4) << std::hex << a[i] << ' ' << b[i];
    }
  };
  for (const double special : {0.0, 1.0}) {
    compare(atan2_64(), gaxdatan2_scalar, double{}, special);
    compare(atan2_32(), gaxsatan2_scalar, float{}, special);
  }
  const uint64_t kinds[] = {0, minus, one, minus | one, inf, minus | inf, nan, minus | nan};
  const uint32_t kinds_f[] = {0, minus_f, one_f, minus_f | one_f, inf_f, minus_f | inf_f, nan_f};
  for (const uint64_t a : kinds)
    for (const uint64_t b : kinds)
      EXPECT_EQ(word_of(gaxdatan2_scalar(*numbers<double>(&a), *numbers<double>(&b))),
                evaluate_one<double>(atan2_64(), a, b).result[0])
          << std::hex << a << ' ' << b;
  for (const uint32_t a : kinds_f)
    for (const uint32_t b : kinds_f)
      EXPECT_EQ(
          word_of(static_cast<float>(gaxsatan2_scalar(*numbers<float>(&a), *numbers<float>(&b)))),
          evaluate_one<float>(atan2_32(), a, b).result[0])
          << std::hex << a << ' ' << b;
  EXPECT_TRUE(stack_is_empty());
}

// A quotient between two subnormal floats: the arc tangent lies below the middle.
TEST(ScalarAtan2, SubnormalTies) {
  const uint32_t a = 0x0b7f7f46, b = 0x4b000000;
  EXPECT_EQ(word_of(static_cast<float>(gaxsatan2_scalar(*numbers<float>(&a), *numbers<float>(&b)))),
            0x003fdfd1u);
}

}  // namespace
}  // namespace dakvm::test
