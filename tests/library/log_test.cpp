// Logarithms: special arguments, both sides of every bound, exact results.
#include "properties.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, pole = DAKVM_STATUS_SINGULARITY,
                  domain = DAKVM_STATUS_DOMAIN;
constexpr uint64_t one = 0x3ff0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>,
                   invalid_nan = 0xfff8000000000000;
constexpr uint32_t one_f = 0x3f800000, inf_f = 0x7f800000, minus_f = sign_mask<float>,
                   invalid_nan_f = 0xffc00000;

TEST(Log, SpecialArguments) {
  for (const char* family : {"Ln", "Log10"}) {
    expect_cases<double>(family, {{one, 0, ok, 0},
                                  {0, inf | minus, pole, divide_by_zero},
                                  {minus, inf | minus, pole, divide_by_zero},
                                  {minus | 1, invalid_nan, domain, invalid},
                                  {minus | one, invalid_nan, domain, invalid},
                                  {(inf - 1) | minus, invalid_nan, domain, invalid},
                                  {inf | minus, invalid_nan, domain, invalid},
                                  {inf, inf, ok, 0},
                                  {0x7ff8000000000123, 0x7ff8000000000123, ok, 0},
                                  {0xfff8000000000123, 0xfff8000000000123, ok, 0},
                                  {inf + 1, 0x7ff8000000000001, ok, invalid}});
    expect_cases<float>(family, {{one_f, 0, ok, 0},
                                 {0, inf_f | minus_f, pole, divide_by_zero},
                                 {minus_f, inf_f | minus_f, pole, divide_by_zero},
                                 {minus_f | 1, invalid_nan_f, domain, invalid},
                                 {minus_f | one_f, invalid_nan_f, domain, invalid},
                                 {inf_f | minus_f, invalid_nan_f, domain, invalid},
                                 {inf_f, inf_f, ok, 0},
                                 {0xffc00123, 0xffc00123, ok, 0},
                                 {inf_f + 1, 0x7fc00001, ok, invalid}});
  }
}

// The ends of the range, powers of ten, the bounds between the paths.
TEST(Log, KnownResults) {
  expect_cases<double>("Ln", {{1, 0xc0874385446d71c3, ok, inexact},
                              {inf - 1, 0x40862e42fefa39ef, ok, inexact},
                              {one + 1, 0x3cafffffffffffff, ok, inexact},
                              {one - 1, 0xbca0000000000000, ok, inexact},
                              {0x3ff6a09e667f3bcd, 0x3fd62e42fefa39f0, ok, inexact},
                              {0x3fefb00000000000, 0xbf841929f96832f0, ok, inexact},
                              {0x3ff0280000000000, 0x3f83e7295d25a7d9, ok, inexact}});
  expect_cases<double>("Log10", {{1, 0xc07434e6420f4374, ok, inexact},
                                 {inf - 1, 0x40734413509f79ff, ok, inexact},
                                 {0x3ff6a09e667f3bcd, 0x3fc34413509f7a00, ok, inexact},
                                 {0x3fefd00000000000, 0xbf64e84e793a474a, ok, inexact},
                                 {0x3ff0180000000000, 0x3f64c9096b94befd, ok, inexact},
                                 {0x4024000000000000, one, ok, inexact},                   // 10
                                 {0x44b52d02c7e14af6, 0x4037000000000000, ok, inexact},    // 10^23
                                 {0x3f50624dd2f1a9fc, 0xc008000000000000, ok, inexact}});  // 1/1000
  expect_cases<float>("Ln", {{1, 0xc2ce8ed0, ok, inexact}, {inf_f - 1, 0x42b17218, ok, inexact}});
  expect_cases<float>("Log10",
                      {{1, 0xc23369f4, ok, inexact}, {inf_f - 1, 0x421a209b, ok, inexact}});
}

// Around one, at sqrt(2), at the ends of a row, at the least normal number.
TEST(Log, PathsMeet) {
  for (const auto& function : registry::functions) {
    if (function.family.name != "Ln" && function.family.name != "Log10") continue;
    if (function.type == registry::Type::f64) {
      for (const uint64_t around :
           {0x0010000000000000ull, 0x3fefb00000000000ull, 0x3fefd00000000000ull,
            0x3ff0180000000000ull, 0x3ff0280000000000ull, 0x3ff6a09e667f3bcdull,
            0x3ff0a00000000000ull, 0x4000000000000000ull})
        expect_no_fall<double>(function, around);
    } else {
      for (const uint32_t around : {0x00800000u, 0x3f7d8000u, 0x3f7e8000u, 0x3f80c000u, 0x3f814000u,
                                    0x3f850000u, 0x40000000u})
        expect_no_fall<float>(function, around);
    }
  }
}

// Single precision carries the double algorithm: its grades agree.
TEST(Log, GradesThatShareCodeAgree) {
  const auto words = mixed_words<float>(20000, 0.9, 1.1, 0.3, 5);
  for (const char* family : {"Ln", "Log10"}) expect_grades_agree<float>(family, words);
}

}  // namespace
}  // namespace dakvm::test
