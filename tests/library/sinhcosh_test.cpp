// Hyperbolic sine and cosine: special arguments, both sides of every bound, symmetry.
#include "arrays.hpp"
#include "properties.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, over = DAKVM_STATUS_OVERFLOW;
constexpr uint64_t one = 0x3ff0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>;
constexpr uint64_t bound = 0x408633ce8fb9f87e;
constexpr uint32_t one_f = 0x3f800000, inf_f = 0x7f800000, minus_f = sign_mask<float>;
constexpr uint32_t bound_f = 0x42b2d4fd;

TEST(SinhCosh, SpecialArgumentsOfSinh) {
  expect_cases<double>(
      "Sinh", {{0, 0, ok, 0},
               {minus, minus, ok, 0},
               {1, 1, ok, underflow | inexact},
               {minus | 0x000fffffffffffff, minus | 0x000fffffffffffff, ok, underflow | inexact},
               {0x0010000000000000, 0x0010000000000000, ok, inexact},
               {0x3c9fffffffffffff, 0x3c9fffffffffffff, ok, inexact},
               {minus | 0x3ca0000000000000, minus | 0x3ca0000000000000, ok, inexact},
               {inf, inf, ok, 0},
               {inf | minus, inf | minus, ok, 0},
               {0xfff8000000000123, 0xfff8000000000123, ok, 0},
               {inf + 1, 0x7ff8000000000001, ok, invalid},
               {bound - 1, 0x7feffffffffffd3b, ok, inexact},
               {bound, inf, over, overflow | inexact},
               {bound | minus, inf | minus, over, overflow | inexact},
               {(inf - 1) | minus, inf | minus, over, overflow | inexact}});
  expect_cases<float>("Sinh", {{0, 0, ok, 0},
                               {minus_f, minus_f, ok, 0},
                               {1, 1, ok, underflow | inexact},
                               {minus_f | 0x00800000, minus_f | 0x00800000, ok, inexact},
                               {inf_f, inf_f, ok, 0},
                               {inf_f | minus_f, inf_f | minus_f, ok, 0},
                               {0x7fc00123, 0x7fc00123, ok, 0},
                               {inf_f + 1, 0x7fc00001, ok, invalid},
                               {bound_f - 1, 0x7f7fffec, ok, inexact},
                               {bound_f, inf_f, over, overflow | inexact},
                               {bound_f | minus_f, inf_f | minus_f, over, overflow | inexact}});
}

TEST(SinhCosh, SpecialArgumentsOfCosh) {
  expect_cases<double>("Cosh", {{0, one, ok, 0},
                                {minus, one, ok, 0},
                                {1, one, ok, inexact},
                                {0x3c9fffffffffffff, one, ok, inexact},
                                {minus | 0x3ca0000000000000, one, ok, inexact},
                                {inf, inf, ok, 0},
                                {inf | minus, inf, ok, 0},
                                {0xfff8000000000123, 0xfff8000000000123, ok, 0},
                                {inf + 1, 0x7ff8000000000001, ok, invalid},
                                {bound - 1, 0x7feffffffffffd3b, ok, inexact},
                                {bound, inf, over, overflow | inexact},
                                {bound | minus, inf, over, overflow | inexact},
                                {(inf - 1) | minus, inf, over, overflow | inexact}});
  expect_cases<float>("Cosh", {{0, one_f, ok, inexact},
                               {minus_f | 1, one_f, ok, inexact},
                               {inf_f | minus_f, inf_f, ok, 0},
                               {0xffc00123, 0xffc00123, ok, 0},
                               {inf_f + 1, 0x7fc00001, ok, invalid},
                               {bound_f - 1, 0x7f7fffec, ok, inexact},
                               {bound_f | minus_f, inf_f, over, overflow | inexact}});
}

// The ends of the series, of the tiny arguments and of the two exponentials, the last binade, a
// change of table row.
TEST(SinhCosh, PathsMeet) {
  for (const auto& function : registry::functions) {
    if (function.family.name != "Sinh" && function.family.name != "Cosh") continue;
    if (function.type == registry::Type::f64) {
      for (const uint64_t around :
           {0x3ca0000000000000ull, 0x3f9bdb8cdadbe120ull, 0x3faeb851eb851eb8ull,
            0x40357cd0e7026820ull, 0x408633c378987900ull, 0x3fefb623c889bed4ull})
        expect_no_fall<double>(function, around);
    } else {
      for (const uint32_t around : {0x3bb17218u, 0x3f7db11eu, bound_f - 60})
        expect_no_fall<float>(function, around);
    }
  }
}

TEST(SinhCosh, Symmetry) {
  for (const auto& function : registry::functions) {
    const bool is_sinh = function.family.name == "Sinh";
    if (!is_sinh && function.family.name != "Cosh") continue;
    if (function.type == registry::Type::f64) {
      expect_symmetry<double>(function, mixed_words<double>(5000, 0, 40, 0.1, 7),
                              is_sinh ? minus : 0);
    } else {
      expect_symmetry<float>(function, mixed_words<float>(5000, 0, 95, 0.1, 7),
                             is_sinh ? minus_f : 0);
    }
  }
}

TEST(SinhCosh, GradesThatShareCodeAgree) {
  for (const char* family : {"Sinh", "Cosh"})
    expect_grades_agree<float>(family, mixed_words<float>(20000, -95, 95, 0.01, 5));
}

}  // namespace
}  // namespace dakvm::test
