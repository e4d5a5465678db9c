// Error notification, the version record and the bit-level helpers.
#include <gtest/gtest.h>

#include <string>

#include "arrays.hpp"
#include "frame/_gax_abs_scalar.hpp"
#include "frame/gax_errors.hpp"

namespace dakvm::test {
namespace {

TEST(Notification, RaisesTheFlagsOfItsCodeBesideThoseThatAreSet) {
  const std::pair<int32_t, int> expected[] = {{DAKVM_STATUS_DOMAIN, invalid},
                                              {DAKVM_STATUS_SINGULARITY, divide_by_zero},
                                              {DAKVM_STATUS_OVERFLOW, overflow | inexact},
                                              {DAKVM_STATUS_UNDERFLOW, underflow | inexact},
                                              {0, 0},
                                              {-8, 0},
                                              {13, 0}};
  for (const auto& [code, flags] : expected) {
    SCOPED_TRACE(code);
    clear_flags();
    gaxdError(code, 3, nullptr, nullptr, nullptr, nullptr, "");
    EXPECT_EQ(raised_flags(), flags);
    clear_flags();
    gaxsError(code, 3, nullptr, nullptr, nullptr, nullptr, "any name at all");
    EXPECT_EQ(raised_flags(), flags);
    for (uint16_t before = 0; before <= ieee_flags; ++before) {
      set_flags(before & ieee_flags);
      gaxdError(code, 3, nullptr, nullptr, nullptr, nullptr, "");
      EXPECT_EQ(raised_flags(), (before & ieee_flags) | flags) << before;
    }
    EXPECT_TRUE(stack_is_empty());
  }
}

TEST(Notification, NamesAreCutToTheirLimits) {
  char buffer[8 + 64 + 8 + 1];
  const std::string letters(100, 'n');
  const auto compose = [&](const std::string& prefix, const std::string& name,
                           const std::string& suffix) {
    std::memset(buffer, '?', sizeof buffer);
    const uint32_t length =
        _gaxCreateFuncNameStr(prefix.c_str(), name.c_str(), suffix.c_str(), buffer);
    EXPECT_EQ(buffer[length], '\0');
    EXPECT_EQ(std::string(buffer).size(), length);
    return std::string(buffer);
  };
  EXPECT_EQ(compose("", "", ""), "");
  EXPECT_EQ(compose("", "abc", ""), "abc");
  EXPECT_EQ(compose("", letters.substr(0, 70), ""), letters.substr(0, 64));
  EXPECT_EQ(compose("prefixes!", "abc", "suffixes!"), "prefixesabcsuffixes");
  EXPECT_EQ(compose(letters, letters, letters), letters.substr(0, 80));
}

// The terminator of the longest name falls on the length behind it; the notification survives that.
TEST(Notification, TakesNamesOfAnyLength) {
  const std::string name(300, 'x');
  clear_flags();
  gaxdError(DAKVM_STATUS_DOMAIN, 0, nullptr, nullptr, nullptr, nullptr, name.c_str());
  EXPECT_EQ(raised_flags(), invalid);
}

TEST(Version, RecordIsOneConstant) {
  const LibraryVersion* version = dakvmGetLibVersion();
  EXPECT_EQ(version, dakvmGetLibVersion());
  EXPECT_EQ(version->major, 4);
  EXPECT_EQ(version->minor, 1);
  EXPECT_EQ(version->build, 7);
  EXPECT_EQ(version->revision, 25);
  EXPECT_EQ(std::string(version->target, 4), std::string("px\0", 4));
  EXPECT_STREQ(version->name, "libdakvmpx.so");
  EXPECT_STREQ(version->version, "v4.1");
  EXPECT_STREQ(version->build_date, "Jul 26 2004");
  EXPECT_EQ(dll_cpu_version(), 0);
}

// Calls with the argument's bits and stores what is returned without rounding it.
template <class T, class F>
uint64_t absolute_bits(F function, Word<T> word, uint16_t& flags) {
  T (*volatile opaque_function)(T) = function;
#ifdef __i386__
  // The argument by its bits on the stack; the result as the 80-bit image in st(0).
  struct [[gnu::packed]] {
    uint64_t significand;
    uint16_t sign_exponent;
  } image;
  using ByBits = long double (*)(Word<T>);  // the register of a double or float, unrounded
  const auto by_bits = reinterpret_cast<ByBits>(reinterpret_cast<void*>(opaque_function));
  clear_flags();
  const long double result = by_bits(word);
  asm volatile("fstpt %0" : "=m"(image) : "t"(result) : "st");
  flags = raised_flags();
  constexpr int fraction = sizeof(T) == 8 ? 52 : 23;
  constexpr int bias = sizeof(T) == 8 ? 1023 : 127;
  EXPECT_EQ(image.sign_exponent >> 15, 0);
  if (image.significand == 0) return 0;
  EXPECT_EQ(image.significand >> 63, 1u);
  const int exponent =
      image.sign_exponent == 0x7fff ? 2 * bias + 1 : image.sign_exponent - 0x3fff + bias;
  const uint64_t significand = image.significand >> (63 - fraction);
  if (exponent <= 0) return significand >> (1 - exponent);
  return (static_cast<uint64_t>(exponent) << fraction) + significand - (uint64_t{1} << fraction);
#else
  T argument;
  std::memcpy(&argument, &word, sizeof argument);
  clear_flags();
  const T result = opaque_function(argument);
  flags = raised_flags();
  return word_of(result);
#endif
}

TEST(AbsoluteValue, KeepsEveryBitAndRaisesNothing) {
#ifdef __SANITIZE_ADDRESS__
  // Its copies of parameters go through a register, where a signalling NaN becomes quiet.
  GTEST_SKIP();
#endif
  uint16_t flags;
  for (const uint64_t x :
       {0x0ull, 0x1ull, 0x000fffffffffffffull, 0x0010000000000000ull, 0x3ff8000000000001ull,
        0x7fefffffffffffffull, 0x7ff0000000000000ull, 0x7ff0000000000001ull, 0x7ff8000000abcdefull})
    for (const uint64_t sign : {uint64_t{0}, sign_mask<double>}) {
      EXPECT_EQ(absolute_bits<double>(gax_dabs_scalar, x | sign, flags), x);
      EXPECT_EQ(flags, 0);
    }
  for (const uint32_t x : {0x0u, 0x1u, 0x007fffffu, 0x00800000u, 0x3fc00001u, 0x7f7fffffu,
                           0x7f800000u, 0x7f800001u, 0x7fc0abcdu})
    for (const uint32_t sign : {uint32_t{0}, sign_mask<float>}) {
      EXPECT_EQ(absolute_bits<float>(gax_sabs_scalar, x | sign, flags), x);
      EXPECT_EQ(flags, 0);
    }
}

TEST(NanTest, SeesEveryNanAndNothingElse) {
  const auto nan = [](uint64_t word) {
    const auto function = reinterpret_cast<int32_t (*)(double)>(_gax_disnan_scalar);
    double x;
    std::memcpy(&x, &word, sizeof x);
    return function(x);
  };
  for (const uint64_t sign : {uint64_t{0}, sign_mask<double>}) {
    for (const uint64_t x : {0x7ff8000000000000ull, 0x7ff8000000000001ull, 0x7fffffffffffffffull})
      EXPECT_EQ(nan(x | sign), 1);
    for (const uint64_t x : {0x0ull, 0x1ull, 0x7fefffffffffffffull, 0x7ff0000000000000ull})
      EXPECT_EQ(nan(x | sign), 0);
  }
}

TEST(Strict, ReturnsItsArgument) {
  EXPECT_TRUE(STRICT_DOUBLE(0x1.0000000000001p+0) == 0x1.0000000000001p+0);
  EXPECT_TRUE(STRICT_FLOAT(0x1.000002p+0f) == 0x1.000002p+0f);
}

}  // namespace
}  // namespace dakvm::test
