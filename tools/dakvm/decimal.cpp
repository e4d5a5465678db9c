#include "decimal.hpp"

#include <dragonbox/dragonbox.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>

namespace dakvm::tool {
namespace {

static_assert(std::numeric_limits<long double>::digits == 64);

constexpr int most_digits = 18;  // an integer of so many is below 2^63
constexpr int most_power = 27;   // 5^27 < 2^64: so many powers of ten have no rounding error
constexpr auto powers_of_ten = [] {
  std::array<long double, most_power + 1> powers{1};
  for (int k = 1; k <= most_power; ++k) powers[k] = 10 * powers[k - 1];
  return powers;
}();

bool is_digit(char c) { return '0' <= c && c <= '9'; }

// Appends the digits from `text` on to those of `integer`; returns where they end. In groups: words
// of 32 bits multiply faster.
const char* take_digits(const char* text, const char* end, uint64_t& integer) {
  constexpr uint32_t full = 1000000000;
  for (;;) {
    uint32_t group = 0, scale = 1;
    for (; scale < full && text != end && is_digit(*text); ++text, scale *= 10)
      group = 10 * group + static_cast<uint32_t>(*text - '0');
    integer = integer * scale + group;
    if (scale < full) return text;
  }
}

const char* skip_zeros(const char* text, const char* end) {
  while (text != end && *text == '0') ++text;
  return text;
}

// What follows the digits, such as "e-12", up to `end`. False: something else.
bool take_exponent(const char* text, const char* end, int& exponent) {
  if (*text != 'e' && *text != 'E') return false;
  if (++text == end) return false;
  const bool negative = *text == '-';
  text += negative || *text == '+';
  if (text == end || end - text > 4) return false;
  uint64_t size = 0;
  if (take_digits(text, end, size) != end) return false;
  exponent = negative ? -static_cast<int>(size) : static_cast<int>(size);
  return true;
}

// "00" to "99": a division for two digits.
constexpr auto digit_pairs = [] {
  std::array<char, 200> pairs{};
  for (int k = 0; k < 100; ++k) {
    pairs[2 * k] = static_cast<char>('0' + k / 10);
    pairs[2 * k + 1] = static_cast<char>('0' + k % 10);
  }
  return pairs;
}();

// Writes the last `count` digits of `integer` so that they end at `end`; returns their begin.
char* put_last_digits(uint32_t integer, int count, char* end) {
  for (; count >= 2; count -= 2, integer /= 100)
    std::memcpy(end -= 2, &digit_pairs[2 * (integer % 100)], 2);
  if (count != 0) *--end = static_cast<char>('0' + integer % 10);
  return end;
}

// Writes `integer`, of at most 17 digits; returns the end of what was written.
char* put_integer(uint64_t integer, char* out) {
  constexpr uint32_t group = 100000000;
  char digits[18];
  char* begin = std::end(digits);
  if (integer >= group) {
    const uint64_t front = integer / group;
    begin = put_last_digits(static_cast<uint32_t>(integer - front * group), 8, begin);
    integer = front;
  }
  auto front = static_cast<uint32_t>(integer);
  for (; front >= 100; front /= 100) std::memcpy(begin -= 2, &digit_pairs[2 * (front % 100)], 2);
  begin = put_last_digits(front, front >= 10 ? 2 : 1, begin);
  return std::copy(begin, std::end(digits), out);
}

}  // namespace

template <class T>
bool parse_plain_decimal(const char* text, const char* end, T& value) {
  uint64_t integer = 0;
  int power = 0;
  const char* at = skip_zeros(text, end);
  const char* stop = take_digits(at, end, integer);
  ptrdiff_t digits = stop - at;
  bool has_digits = stop != text;
  if (stop != end && *stop == '.') {
    const char* const fraction = stop + 1;
    at = integer == 0 ? skip_zeros(fraction, end) : fraction;
    stop = take_digits(at, end, integer);
    digits += stop - at;
    has_digits |= stop != fraction;
    if (stop - fraction > most_power) return false;
    power = -static_cast<int>(stop - fraction);
  }
  if (!has_digits || digits > most_digits) return false;
  if (int exponent; stop != end) {
    if (!take_exponent(stop, end, exponent)) return false;
    power += exponent;
  }
  if (power < -most_power || power > most_power) return false;

  // Rounded once, to 64 bits. Unless that is the middle of two numbers of type T, the second
  // rounding goes where one alone would have gone.
  const auto exact = static_cast<long double>(static_cast<int64_t>(integer));
  const long double nearest =
      power < 0 ? exact / powers_of_ten[-power] : exact * powers_of_ten[power];
  uint64_t significand;
  std::memcpy(&significand, &nearest, sizeof significand);
  constexpr uint64_t half = uint64_t{1} << (63 - std::numeric_limits<T>::digits);
  if ((significand & (2 * half - 1)) == half) return false;
  value = static_cast<T>(nearest);
  return true;
}

template <class T>
char* format_shortest_decimal(const T& value, char* out) {
  if (std::signbit(value)) *out++ = '-';
  if (value == 0) {
    *out++ = '0';
    return out;
  }
  const T size = std::abs(value);
  const auto [significand, exponent] =
      jkj::dragonbox::to_decimal(size, jkj::dragonbox::policy::sign::ignore);

  char* const start = out;
  out = put_integer(significand, out);
  const int digits = static_cast<int>(out - start);

  // Fixed notation is longer by the zeros, scientific notation by "e+12" and the point.
  const int most_zeros = digits == 1 ? 4 : 5;
  if (exponent >= 0 && exponent <= most_zeros) {
    // The zeros stand for digits of the value, which are zeros in short integers only.
    if (exponent > 0 && digits + exponent > std::numeric_limits<T>::digits10)
      return std::to_chars(start, start + 24, size).ptr;
    std::memset(out, '0', exponent);
    return out + exponent;
  }
  if (exponent < 0 && exponent >= -digits - (digits == 1 ? 2 : 3)) {
    const int whole = digits + exponent;
    if (whole > 0) {
      std::memmove(start + whole + 1, start + whole, digits - whole);
      start[whole] = '.';
      return out + 1;
    }
    std::memmove(start + 2 - whole, start, digits);
    std::memset(start, '0', 2 - whole);
    start[1] = '.';
    return out + 2 - whole;
  }
  if (digits > 1) {
    std::memmove(start + 2, start + 1, digits - 1);
    start[1] = '.';
    ++out;
  }
  int power = exponent + digits - 1;
  *out++ = 'e';
  *out++ = power < 0 ? '-' : '+';
  power = std::abs(power);
  const int power_digits = power < 100 ? 2 : 3;
  put_last_digits(static_cast<uint32_t>(power), power_digits, out + power_digits);
  return out + power_digits;
}

template bool parse_plain_decimal(const char*, const char*, double&);
template bool parse_plain_decimal(const char*, const char*, float&);
template char* format_shortest_decimal(const double&, char*);
template char* format_shortest_decimal(const float&, char*);

}  // namespace dakvm::tool
