#include "decimal.hpp"

#include <dragonbox/dragonbox.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>

namespace dakvm::tool {
namespace {

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

template char* format_shortest_decimal(const double&, char*);
template char* format_shortest_decimal(const float&, char*);

}  // namespace dakvm::tool
