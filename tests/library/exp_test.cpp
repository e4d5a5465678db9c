// Exponential: special arguments and both sides of every bound.
#include "arrays.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, over = DAKVM_STATUS_OVERFLOW,
                  under = DAKVM_STATUS_UNDERFLOW;
constexpr uint64_t one = 0x3ff0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>;
constexpr uint64_t overflow_bound = 0x40862e42fefa39ef, underflow_bound = 0xc0874910d52d3052;
constexpr uint32_t one_f = 0x3f800000, inf_f = 0x7f800000, minus_f = sign_mask<float>;
constexpr uint32_t overflow_bound_f = 0x42b17217, underflow_bound_f = 0xc2cff1b4;

TEST(Exp, SpecialArguments) {
  expect_cases<double>("Exp", {{0, one, ok, 0},
                               {minus, one, ok, 0},
                               {1, one, ok, inexact},
                               {0x3ca0000000000000, one, ok, inexact},  // 2^-53
                               {inf, inf, ok, 0},
                               {inf | minus, 0, ok, 0},
                               {0x7ff8000000000123, 0x7ff8000000000123, ok, 0},
                               {inf + 1, 0x7ff8000000000001, ok, invalid},
                               {overflow_bound + 1, inf, over, overflow | inexact},
                               {inf - 1, inf, over, overflow | inexact},
                               {underflow_bound, 0, ok, underflow | inexact},
                               {underflow_bound + 1, 0, under, underflow | inexact},
                               {(inf - 1) | minus, 0, under, underflow | inexact}});
  expect_cases<float>("Exp", {{0, one_f, ok, 0},
                              {minus_f, one_f, ok, 0},
                              {0x25000000, one_f, ok, inexact},  // 2^-53
                              {inf_f, inf_f, ok, 0},
                              {inf_f | minus_f, 0, ok, 0},
                              {0x7fc00123, 0x7fc00123, ok, 0},
                              {overflow_bound_f + 1, inf_f, over, overflow | inexact},
                              {inf_f - 1, inf_f, over, overflow | inexact},
                              {underflow_bound_f + 1, 0, under, underflow | inexact}});
}

// At the bounds themselves results are computed, and inside them they grow with the argument.
TEST(Exp, BoundsAreOrdinaryArguments) {
  for (const auto& function : registry::functions) {
    if (function.family.name != "Exp") continue;
    SCOPED_TRACE(function.name);
    if (function.type == registry::Type::f64) {
      // ln(largest), ln(least normal), 708: the last binade, the subnormal path, the common path.
      for (const uint64_t bound :
           {overflow_bound, uint64_t{0xc086232bdd7abcd2}, uint64_t{0x4086200000000000}}) {
        const bool negative = bound >> 63 != 0;
        uint64_t last = 0;
        for (int step = -100; step <= 0; ++step) {
          const auto got = evaluate_one<double>(
              function, bound + static_cast<uint64_t>(negative ? -step : step));
          EXPECT_EQ(got.status, ok);
          EXPECT_LT(got.result[0], inf);
          EXPECT_GE(got.result[0], last);
          last = got.result[0];
        }
      }
    } else {
      EXPECT_EQ(evaluate_one<float>(function, overflow_bound_f).result[0], 0x7f7fff84u);
      EXPECT_EQ(evaluate_one<float>(function, underflow_bound_f).status, ok);
    }
  }
}

// Single precision carries the double algorithm: its grades agree, and with the double result.
TEST(Exp, GradesThatShareCodeAgree) {
  const auto words = mixed_words<float>(20000, -100, 90, 0.01, 5);
  const auto& exact = function_named("Exp", registry::Type::f32, "A24");
  for (const uint32_t word : words)
    for (const char* grade : {"A11", "A21"})
      ASSERT_EQ(
          evaluate_one<float>(function_named("Exp", registry::Type::f32, grade), word).result[0],
          evaluate_one<float>(exact, word).result[0]);
}

}  // namespace
}  // namespace dakvm::test
