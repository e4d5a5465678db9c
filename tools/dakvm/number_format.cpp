#include "number_format.hpp"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <system_error>

#include "decimal.hpp"

namespace dakvm::tool {
namespace {

// from_chars says only that the number is out of range; the C library says which end of it.
void parse_out_of_range(std::string_view text, double& value) {
  value = std::strtod(std::string(text).c_str(), nullptr);
}
void parse_out_of_range(std::string_view text, float& value) {
  value = std::strtof(std::string(text).c_str(), nullptr);
}

}  // namespace

template <class T>
bool parse(std::string_view text, T& value) {
  const std::string_view whole = text;
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  if (text.starts_with('-')) return false;
  auto style = std::chars_format::general;
  if (text.starts_with("0x") || text.starts_with("0X")) {
    text.remove_prefix(2);
    style = std::chars_format::hex;
    if (text.find_first_of("0123456789abcdefABCDEF.") != 0) return false;
  }
  const char* const end = text.data() + text.size();
  const auto [stop, problem] = std::from_chars(text.data(), end, value, style);
  if (stop != end || problem == std::errc::invalid_argument) return false;
  if (problem == std::errc::result_out_of_range) {
    parse_out_of_range(whole, value);
  } else if (negative) {
    const Word<T> word = word_of(value) | Word<T>{1} << (8 * sizeof(T) - 1);
    std::memcpy(&value, &word, sizeof word);
  }
  return true;
}

template <class T>
char* format(const T& value, Notation notation, char* out) {
  char* const end = out + longest_number;
  const Word<T> word = word_of(value);
  if (notation == Notation::bits) {
    *out++ = '0';
    *out++ = 'x';
    for (int shift = 8 * sizeof(T) - 4; shift >= 0; shift -= 4)
      *out++ = "0123456789abcdef"[word >> shift & 15];
    return out;
  }
  if (!std::isfinite(value)) return std::to_chars(out, end, value).ptr;
  if (notation == Notation::decimal) return format_shortest_decimal(value, out);
  if (std::signbit(value)) *out++ = '-';
  *out++ = '0';
  *out++ = 'x';
  return std::to_chars(out, end, std::abs(value), std::chars_format::hex).ptr;
}

template bool parse(std::string_view, double&);
template bool parse(std::string_view, float&);
template char* format(const double&, Notation, char*);
template char* format(const float&, Notation, char*);

}  // namespace dakvm::tool
