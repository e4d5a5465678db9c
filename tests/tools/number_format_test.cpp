#include "number_format.hpp"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <random>

namespace dakvm::tool {
namespace {

template <class T>
Word<T> parsed(const std::string& text) {
  T value = 0;
  EXPECT_TRUE(parse(text, value)) << text;
  return word_of(value);
}

TEST(Parse, AcceptsWhatStrtodDoes) {
  const struct {
    const char* text;
    uint64_t bits;
  } cases[] = {
      {"+2", 0x4000000000000000},
      {"-0", 0x8000000000000000},
      {"1e400", 0x7ff0000000000000},
      {"-1e400", 0xfff0000000000000},
      {"1e-330", 0},
      {"-1e-330", 0x8000000000000000},
      {"3e-324", 1},
      {"2.4e-324", 0},
      {"0x1.8p+3", 0x4028000000000000},
      {"-0X.8p1", 0xbff0000000000000},
      {"+0x1p-1074", 1},
      {"0x1p1024", 0x7ff0000000000000},
      {"Inf", 0x7ff0000000000000},
      {"-infinity", 0xfff0000000000000},
      {"nan", 0x7ff8000000000000},
      {"-NaN", 0xfff8000000000000},
      {"0x1p-1076", 0},
      {"1.", 0x3ff0000000000000},
  };
  for (const auto& c : cases) EXPECT_EQ(parsed<double>(c.text), c.bits) << c.text;
}

TEST(Parse, RejectsEverythingElse) {
  double value;
  for (const char* text : {"", "+", "-", "+-1", "--1", "-+1", "1x", "1 ", " 1", "0x", "0x-1",
                           "0xinf", "1,5", "e5", "1e", "abc"})
    EXPECT_FALSE(parse(text, value)) << "'" << text << "'";
}

TEST(Parse, RoundsCorrectlyToEachType) {
  // Above a midpoint of floats by less than double can hold: by way of double it would round down.
  EXPECT_EQ(parsed<float>("1.00000005960464477539062500000000001"), 0x3f800001u);
  EXPECT_EQ(parsed<float>("1e39"), 0x7f800000u);
  EXPECT_EQ(parsed<float>("1e-45"), 1u);

  std::mt19937_64 random(1);
  for (int i = 0; i < 20000; ++i) {
    char text[64];
    std::snprintf(text, sizeof text, "%llu.%llue%d", static_cast<unsigned long long>(random()),
                  static_cast<unsigned long long>(random()),
                  static_cast<int>(random() % 700) - 365);
    const double wide = std::strtod(text, nullptr);
    const float narrow = std::strtof(text, nullptr);
    EXPECT_EQ(parsed<double>(text), word_of(wide)) << text;
    EXPECT_EQ(parsed<float>(text), word_of(narrow)) << text;
  }
}

template <class T>
void expect_round_trip() {
  std::mt19937_64 random(2);
  for (int i = 0; i < 20000; ++i) {
    const auto word = static_cast<Word<T>>(random());
    T value;
    std::memcpy(&value, &word, sizeof value);
    if (value != value) continue;
    for (const Notation notation : {Notation::decimal, Notation::hex}) {
      char buffer[longest_number];
      const std::string text(buffer, format(value, notation, buffer));
      EXPECT_EQ(parsed<T>(text), word) << text;
    }
  }
}

TEST(Format, ReadsBackAsTheSameNumber) {
  expect_round_trip<double>();
  expect_round_trip<float>();
}

template <class T>
void expect_text_of_charconv(const T& value) {
  char ours[longest_number], theirs[64];
  char* const end = format(value, Notation::decimal, ours);
  EXPECT_EQ(std::string(ours, end),
            std::string(theirs, std::to_chars(theirs, std::end(theirs), value).ptr));
}

// The shortest digits, the notation that <charconv> chooses, exact digits in large integers.
TEST(Format, ShortestAsCharconvDoes) {
  char text[32];
  for (int exponent = -326; exponent <= 308; ++exponent)
    for (const char* digits : {"1", "7", "12", "95", "1234567", "314159265358979",
                               "9007199254740993", "17976931348623157"}) {
      std::snprintf(text, sizeof text, "%se%d", digits, exponent);
      expect_text_of_charconv(std::strtod(text, nullptr));
      expect_text_of_charconv(std::strtof(text, nullptr));
    }
  for (int exponent = -1074; exponent < 1024; ++exponent)
    for (const double power = std::ldexp(1.0, exponent);
         const double neighbour :
         {power, std::nextafter(power, 0.0), std::nextafter(-power, -HUGE_VAL)})
      expect_text_of_charconv(neighbour);
  for (int exponent = -149; exponent < 128; ++exponent)
    for (const float power = std::ldexp(1.0f, exponent);
         const float neighbour :
         {power, std::nextafter(power, 0.0f), std::nextafter(-power, -HUGE_VALF)})
      expect_text_of_charconv(neighbour);
}

TEST(Format, Notations) {
  const auto text = [](auto value, Notation notation) {
    char buffer[longest_number];
    return std::string(buffer, format(value, notation, buffer));
  };
  EXPECT_EQ(text(0.1, Notation::decimal), "0.1");
  EXPECT_EQ(text(0.1f, Notation::decimal), "0.1");
  EXPECT_EQ(text(-12.0, Notation::hex), "-0x1.8p+3");
  EXPECT_EQ(text(-HUGE_VAL, Notation::hex), "-inf");
  EXPECT_EQ(text(-2.0, Notation::bits), "0xc000000000000000");
  EXPECT_EQ(text(1.0f, Notation::bits), "0x3f800000");
}

}  // namespace
}  // namespace dakvm::tool
