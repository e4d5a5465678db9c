// Sine, cosine and tangent of doubles: special arguments, zeros and poles, the switches of method.
#include "arrays.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, domain = DAKVM_STATUS_DOMAIN;
constexpr uint64_t one = 0x3ff0000000000000, inf = 0x7ff0000000000000, minus = sign_mask<double>,
                   invalid_nan = 0xfff8000000000000;

uint64_t result(const char* family, uint64_t x, int which = 0) {
  return evaluate_one<double>(function_named(family, registry::Type::f64, "A53"), x).result[which];
}

TEST(SinCosTan, SpecialArguments) {
  for (const char* family : {"Sin", "Cos", "SinCos", "Tan"})
    expect_cases<double>(family, {{inf, invalid_nan, domain, invalid},
                                  {inf | minus, invalid_nan, domain, invalid},
                                  {0x7ff8000000000123, 0x7ff8000000000123, ok, 0},
                                  {0xfff8000000000123, 0xfff8000000000123, ok, 0},
                                  {inf + 1, 0x7ff8000000000001, ok, invalid}});
  for (const char* family : {"Sin", "SinCos", "Tan"})
    expect_cases<double>(family,
                         {{0, 0, ok, 0},
                          {minus, minus, ok, 0},
                          {1, 1, ok, static_cast<uint16_t>(underflow | inexact)},
                          {minus | 0x000fffffffffffff, minus | 0x000fffffffffffff, ok,
                           static_cast<uint16_t>(underflow | inexact)},
                          {0x302fffffffffffff, 0x302fffffffffffff, ok, inexact},  // below 2^-252
                          {0x3030000000000000, 0x3030000000000000, ok, inexact}});
  expect_cases<double>("Cos", {{0, one, ok, 0},
                               {minus, one, ok, 0},
                               {minus | 1, one, ok, inexact},
                               {0x302fffffffffffff, one, ok, inexact},
                               {0x3030000000000000, one, ok, inexact}});
  for (const uint64_t x : {uint64_t{0}, minus, minus | 1, inf, inf | 77})
    EXPECT_EQ(result("SinCos", x, 1), result("Cos", x));
}

struct Known {
  uint64_t x, sine, cosine, tangent;
};

// Correctly rounded: next to zeros and poles in all ranges of the reduction, and on both sides of
// its switches.
constexpr Known known[] = {
    {0x3fe921fb54442d18, 0x3fe6a09e667f3bcc, 0x3fe6a09e667f3bcd, 0x3fefffffffffffff},  // pi/4
    {0x3ff921fb54442d18, 0x3ff0000000000000, 0x3c91a62633145c07, 0x434d02967c31cdb5},  // pi/2
    {0x400921fb54442d18, 0x3ca1a62633145c07, 0xbff0000000000000, 0xbca1a62633145c07},  // pi
    {0x4046c6cbc45dc8de, 0x3ff0000000000000, 0xbc26d61b58c99c43, 0xc3b66b9ebc4850c6},
    {0x40c8ffffffffffff, 0x3fed3a788da12a1b, 0x3fda0dc7d0850a09, 0x4001f31577f0d5f5},  // 12800
    {0x40c9000000000000, 0x3fed3a788da14429, 0x3fda0dc7d084951f, 0x4001f31577f13681},
    {0x40fffffffffffff0, 0xbfeff8bd7b122f7f, 0x3fa58ced63ecff78, 0xc037bcb26f920e1b},
    {0x4100000000000000, 0xbfeff8bd7b10d6b0, 0x3fa58ced65ec8b50, 0xc037bcb26d5d9af5},  // 2^17
    {0x416b951f1572eba5, 0xbff0000000000000, 0xbc3f54f5227a4e84, 0x43a057584c429b3a},
    {0x41d0000000000000, 0xbfe3c12353728caf, 0x3fe92cb46a920144, 0xbfe91c3c126f9d13},  // 2^30
    {0x482504cac51f1eaf, 0xbff0000000000000, 0xbc40cb604d34f341, 0x439e7c7d0f43f81e},
    {0x7506ac5b262ca1ff, 0x3ff0000000000000, 0xbc214ae72e6ba22f, 0xc3bd9ba9a7975636},
    {0x7fefffffffffffff, 0x3f7452fc98b34e97, 0xbfefffe62ecfab75, 0xbf74530cfe729484},  // largest
};

// With the known results, f(-x) = -f(x) for sine and tangent, f(x) for the cosine.
TEST(SinCosTan, KnownResults) {
  for (const auto& k : known) {
    SCOPED_TRACE(::testing::PrintToString(k.x));
    for (const uint64_t sign : {uint64_t{0}, minus}) {
      EXPECT_EQ(result("Sin", k.x | sign), k.sine ^ sign);
      EXPECT_EQ(result("Cos", k.x | sign), k.cosine);
      EXPECT_EQ(result("Tan", k.x | sign), k.tangent ^ sign);
    }
  }
}

// The number below 2^17 that is nearest to an odd multiple of pi/2 is the one whose cosine suffers
// from the length of the three pieces of pi/32: one unit off.
TEST(SinCosTan, WorstCosine) {
  EXPECT_EQ(result("Cos", 0x40f65a1dd290660f), 0x3cb049c6e4971285u - 1);
}

TEST(SinCosTan, TwoOutputsAreThoseOfTheSingleFunctions) {
  for (const double high : {1.0, 100.0, 0x1p+17, 0x1p+70})
    for (const uint64_t x : mixed_words<double>(5000, -high, high, 0.1, 9)) {
      const auto both =
          evaluate_one<double>(function_named("SinCos", registry::Type::f64, "A50"), x);
      ASSERT_EQ(both.result[0], result("Sin", x)) << x;
      ASSERT_EQ(both.result[1], result("Cos", x)) << x;
    }
}

// In one block the elements go several ways through the reduction, or none.
TEST(SinCosTan, NeighboursOfOtherMagnitudes) {
  std::mt19937 random(13);
  std::vector<std::vector<uint64_t>> ranges;
  for (const double high : {1.0, 0x1p+14, 0x1p+20, 0x1p+25, 0x1p+40, 0x1p+900})
    ranges.push_back(mixed_words<double>(3000, -high, high, 0.1, random()));
  std::vector<uint64_t> x(3000), first(x.size()), second(x.size());
  for (size_t i = 0; i < x.size(); ++i) x[i] = ranges[random() % ranges.size()][i];
  for (const char* family : {"Sin", "Cos", "SinCos", "Tan"}) {
    const auto& function = function_named(family, registry::Type::f64, "A53");
    function(registry::Operands<double>{numbers<double>(x.data()), nullptr,
                                        numbers<double>(first.data()),
                                        numbers<double>(second.data()), 0.0},
             static_cast<int32_t>(x.size()));
    for (size_t i = 0; i < x.size(); ++i) {
      const auto alone = evaluate_one<double>(function, x[i]);
      ASSERT_EQ(first[i], alone.result[0]) << family << " at " << x[i];
      ASSERT_EQ(second[i],
                function.family.form == registry::Form::two_outputs ? alone.result[1] : 0);
    }
    std::fill(second.begin(), second.end(), 0);
  }
}

// Directed rounding may take the next row of the table. Where that makes terms cancel, or precision
// is 53 bits, last places are lost, and no more.
TEST(SinCosTan, OtherModesOfTheUnit) {
  for (const char* family : {"Sin", "Cos", "Tan"})
    for (const uint64_t x : mixed_words<double>(2000, -0x1p+18, 0x1p+18, 0, 11)) {
      const uint64_t usual = result(family, x);
      for (const int precision : {2, 3})
        for (const int rounding : {0, 1, 2, 3}) {
          ScopedModes modes(precision, rounding);
          const auto distance = static_cast<int64_t>(result(family, x) - usual);
          ASSERT_LE(std::abs(distance), 1 << 14) << family << x << " " << precision << rounding;
        }
    }
}

}  // namespace
}  // namespace dakvm::test
