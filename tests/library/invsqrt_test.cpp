// Inverse square root: special arguments, both halves of the table, subnormal numbers.
#include "arrays.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, domain = DAKVM_STATUS_DOMAIN;
constexpr int32_t pole = DAKVM_STATUS_SINGULARITY;
constexpr uint64_t one = 0x3ff0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>;
constexpr uint32_t inf_f = 0x7f800000, minus_f = sign_mask<float>;

TEST(InvSqrt, SpecialArguments) {
  expect_cases<double>("InvSqrt", {{0, inf, pole, divide_by_zero},
                                   {minus, inf | minus, pole, divide_by_zero},
                                   {inf, 0, ok, 0},
                                   {inf | minus, 0xfff8000000000000, domain, invalid},
                                   {minus | 1, 0xfff8000000000000, domain, invalid},
                                   {minus | one, 0xfff8000000000000, domain, invalid},
                                   {0x7ff8000000000123, 0x7ff8000000000123, ok, 0},
                                   {0xfff8000000000123, 0xfff8000000000123, ok, 0}});
  expect_cases<float>("InvSqrt", {{0, inf_f, pole, divide_by_zero},
                                  {minus_f, inf_f | minus_f, pole, divide_by_zero},
                                  {inf_f, 0, ok, 0},
                                  {inf_f | minus_f, 0xffc00000, domain, invalid},
                                  {minus_f | 1, 0xffc00000, domain, invalid},
                                  {0x7fc00123, 0x7fc00123, ok, 0}});
}

// Powers of four over the whole range, subnormal ones too, have exact results.
TEST(InvSqrt, PowersOfFour) {
  for (const char* grade : {"A50", "A53"})
    for (int e = -537; e <= 511; ++e)
      ASSERT_EQ(evaluate_one<double>(function_named("InvSqrt", registry::Type::f64, grade),
                                     word_of(__builtin_ldexp(1.0, 2 * e)))
                    .result[0],
                word_of(__builtin_ldexp(1.0, -e)));
  for (int e = -74; e <= 63; ++e)
    ASSERT_EQ(evaluate_one<float>(function_named("InvSqrt", registry::Type::f32, "A24"),
                                  word_of(__builtin_ldexpf(1.0f, 2 * e)))
                  .result[0],
              word_of(__builtin_ldexpf(1.0f, -e)));
}

// Results fall as arguments grow, across every change of row (and of binade).
TEST(InvSqrt, FallsAcrossRows) {
  const auto& function = function_named("InvSqrt", registry::Type::f64, "A53");
  for (int row = 1; row < 128; row += 2) {  // odd multiples of 1/64 of the binade: rows change here
    const uint64_t seam = one + (static_cast<uint64_t>(row) << 46);
    uint64_t last = inf;
    for (int step = -50; step <= 50; ++step) {
      const auto got = evaluate_one<double>(function, seam + static_cast<uint64_t>(step)).result[0];
      ASSERT_LE(got, last) << row << ' ' << step;
      last = got;
    }
  }
}

}  // namespace
}  // namespace dakvm::test
