// Division and reciprocal: zero divisors, and what is seen of them when arrays are shared.
#include "arrays.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, pole = DAKVM_STATUS_SINGULARITY;
constexpr uint64_t one = 0x3ff0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>;
constexpr uint64_t default_nan = 0xfff8000000000000, nan = 0x7ff8000000000123;
constexpr uint32_t one_f = 0x3f800000, inf_f = 0x7f800000, minus_f = sign_mask<float>;
constexpr uint32_t default_nan_f = 0xffc00000, nan_f = 0x7fc00123;

TEST(Div, SpecialOperands) {
  expect_cases<double>("Div", {{one, inf, pole, divide_by_zero, 0},
                               {one, inf | minus, pole, divide_by_zero, minus},
                               {1, inf, pole, divide_by_zero, 0},
                               {0, default_nan, pole, invalid | divide_by_zero, minus},
                               {inf, inf, ok, 0, 0},
                               {inf, default_nan, ok, invalid, inf},
                               {nan, nan, ok, 0, 0},
                               {one, nan, ok, 0, nan},
                               {one, 0, ok, 0, inf},
                               {0, 0, ok, 0, one},
                               {inf - 1, inf, ok, overflow | inexact, one >> 1},
                               {1, 0, ok, underflow | inexact, inf - 1}});
  expect_cases<float>("Div", {{one_f, inf_f, pole, divide_by_zero, 0},
                              {one_f, inf_f | minus_f, pole, divide_by_zero, minus_f},
                              {0, default_nan_f, pole, invalid | divide_by_zero, 0},
                              {inf_f, inf_f, ok, 0, 0},
                              {nan_f, nan_f, ok, 0, 0},
                              {one_f, 0, ok, 0, inf_f},
                              {inf_f - 1, inf_f, ok, overflow | inexact, one_f >> 1}});
}

TEST(Inv, SpecialArguments) {
  expect_cases<double>("Inv", {{0, inf, pole, divide_by_zero},
                               {minus, inf | minus, pole, divide_by_zero},
                               {1, inf, ok, overflow | inexact},
                               {inf | minus, minus, ok, 0},
                               {nan, nan, ok, 0},
                               {one, one, ok, 0}});
  expect_cases<float>("Inv", {{0, inf_f, pole, divide_by_zero},
                              {minus_f, inf_f | minus_f, pole, divide_by_zero},
                              {1, inf_f, ok, overflow | inexact},
                              {inf_f, 0, ok, 0},
                              {nan_f, nan_f, ok, 0}});
}

// In double precision the divisor is looked at after the store.
TEST(Div, DestinationOnTheDivisor) {
  const auto divide_onto_divisor = [](uint64_t a, uint64_t b) {
    const auto& div = function_named("Div", registry::Type::f64, "A53");
    return div(
        registry::Operands<double>{numbers<double>(&a), numbers<double>(&b), numbers<double>(&b)},
        1);
  };
  EXPECT_EQ(divide_onto_divisor(one, 0), ok);    // 1/0: finds the infinity
  EXPECT_EQ(divide_onto_divisor(0, 0), pole);    // 0/0: finds the NaN
  EXPECT_EQ(divide_onto_divisor(0, one), pole);  // 0/1: finds the quotient zero
  EXPECT_EQ(divide_onto_divisor(inf, inf), ok);  // operands that are not finite never count
  uint32_t a = one_f, b = 0;
  const auto& div = function_named("Div", registry::Type::f32, "A24");
  EXPECT_EQ(
      div(registry::Operands<float>{numbers<float>(&a), numbers<float>(&b), numbers<float>(&b)}, 1),
      pole);
}

}  // namespace
}  // namespace dakvm::test
