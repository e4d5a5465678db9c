// Numbers to text and back. Values are passed by reference and read as integers where their bits
// count: an x87 load would quiet a signalling NaN.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

namespace dakvm::tool {

template <class T>
using Word = std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t>;

template <class T>
Word<T> word_of(const T& value) {
  Word<T> word;
  std::memcpy(&word, &value, sizeof word);
  return word;
}

// What strtod and strtof accept, and no more text around it: decimal and hexadecimal numbers, inf,
// nan. Correctly rounded to T; too large becomes infinity, too small zero. False: not a number.
template <class T>
bool parse(std::string_view text, T& value);

enum class Notation {
  decimal,  // the shortest decimal that reads back as the same number
  hex,      // 0x1.8p+3
  bits,     // the bit pattern, 0x4028000000000000
};

inline constexpr size_t longest_number = 32;

// Writes at most longest_number characters to `out`; returns the end of what was written.
template <class T>
char* format(const T& value, Notation notation, char* out);

template <class T>
std::string to_text(const T& value) {
  char buffer[longest_number];
  return std::string(buffer, format(value, Notation::decimal, buffer));
}

}  // namespace dakvm::tool
