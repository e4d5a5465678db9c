// Numbers as words, in the order of the numbers.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <type_traits>

namespace dakvm::accuracy {

template <class T>
using Word = std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t>;

template <class T>
Word<T> word_of(T x) {
  return std::bit_cast<Word<T>>(x);
}
template <class T>
T number_of(uint64_t word) {
  return std::bit_cast<T>(static_cast<Word<T>>(word));
}

template <class T>
constexpr Word<T> sign_bit = Word<T>{1} << (8 * sizeof(T) - 1);
template <class T>
constexpr Word<T> quiet_bit = Word<T>{1} << (sizeof(T) == 8 ? 51 : 22);

template <class T>
bool is_signalling(Word<T> word) {
  return std::isnan(number_of<T>(word)) && (word & quiet_bit<T>) == 0;
}

// A whole number for each T, in the order of the numbers.
template <class T>
int64_t place(T x) {
  const auto magnitude = static_cast<int64_t>(word_of(x) & ~sign_bit<T>);
  return std::signbit(x) ? -magnitude : magnitude;
}

template <class T>
T number_at(int64_t place) {
  const T x = number_of<T>(static_cast<Word<T>>(std::abs(place)));
  return place < 0 ? -x : x;
}

// 0x1.8p+3
std::string hex_number(double x);
// 0x4028000000000000
std::string hex_word(uint64_t word, int bytes);
// Any form strtod takes; throws std::runtime_error with the text if it is no number.
double parse_number(std::string_view text);

}  // namespace dakvm::accuracy
