// Hyperbolic tangent: special arguments, both sides of every bound, symmetry.
#include "arrays.hpp"
#include "properties.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK;
constexpr uint64_t one = 0x3ff0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>;
constexpr uint64_t saturation = 0x40330fc1931f09cb, eighth = 0x3fc0000000000000;
constexpr uint32_t one_f = 0x3f800000, inf_f = 0x7f800000, minus_f = sign_mask<float>;

TEST(Tanh, SpecialArguments) {
  expect_cases<double>(
      "Tanh", {{0, 0, ok, 0},
               {minus, minus, ok, 0},
               {1, 1, ok, underflow | inexact},
               {minus | 0x000fffffffffffff, minus | 0x000fffffffffffff, ok, underflow | inexact},
               {0x0010000000000000, 0x0010000000000000, ok, inexact},
               {minus | 0x3c9fffffffffffff, minus | 0x3c9fffffffffffff, ok, inexact},
               {eighth - 1, 0x3fbfd5992bc4b834, ok, inexact},
               {eighth, 0x3fbfd5992bc4b835, ok, inexact},
               {saturation, one, ok, inexact},
               {saturation | minus, one | minus, ok, inexact},
               {inf - 1, one, ok, inexact},
               {inf, one, ok, 0},
               {inf | minus, one | minus, ok, 0},
               {0xfff8000000000123, 0xfff8000000000123, ok, 0},
               {inf + 1, 0x7ff8000000000001, ok, invalid}});
  expect_cases<float>("Tanh", {{minus_f, minus_f, ok, 0},
                               {minus_f | 1, minus_f | 1, ok, inexact},
                               {0x24ffffff, 0x24ffffff, ok, inexact},
                               {0x41987e0c, one_f, ok, inexact},
                               {0x41987e0d, one_f, ok, inexact},
                               {inf_f, one_f, ok, 0},
                               {inf_f | minus_f, one_f | minus_f, ok, 0},
                               {0x7fc00123, 0x7fc00123, ok, 0},
                               {inf_f + 1, 0x7fc00001, ok, invalid}});
}

// Every change of row, the end of the series near zero, of the tiny arguments, and saturation.
TEST(Tanh, PathsMeet) {
  const auto& wide = function_named("Tanh", registry::Type::f64, "A53");
  const auto& single = function_named("Tanh", registry::Type::f32, "A24");
  for (uint32_t row = 0; row <= 28; ++row) {
    expect_no_fall<double>(wide, eighth + (uint64_t{row} << 50));
    expect_no_fall<float>(single, 0x3e000000 + (row << 21));
  }
  expect_no_fall<double>(wide, 0x3ca0000000000000);
  expect_no_fall<double>(wide, saturation);
  expect_no_fall<float>(single, 0x41987e0c);
}

TEST(Tanh, Symmetry) {
  expect_symmetry<double>(function_named("Tanh", registry::Type::f64, "A53"),
                          mixed_words<double>(5000, 0, 25, 0.1, 7), minus);
  expect_symmetry<float>(function_named("Tanh", registry::Type::f32, "A24"),
                         mixed_words<float>(5000, 0, 25, 0.1, 7), minus_f);
}

TEST(Tanh, GradesThatShareCodeAgree) {
  expect_grades_agree<double>("Tanh", mixed_words<double>(20000, -20, 20, 0.01, 5));
  expect_grades_agree<float>("Tanh", mixed_words<float>(20000, -20, 20, 0.01, 5));
}

}  // namespace
}  // namespace dakvm::test
