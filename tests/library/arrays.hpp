// Numbers as bits: test data are integers, and no x87 register stands between them and an array.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "registry/registry.hpp"
#include "x87_state.hpp"

namespace dakvm::test {

template <class T>
using Word = std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t>;

template <class T>
Word<T> word_of(T x) {
  Word<T> word;
  std::memcpy(&word, &x, sizeof word);
  return word;
}

// Reads words as numbers, and numbers as words; both live in memory.
template <class T>
const T* numbers(const Word<T>* words) {
  return reinterpret_cast<const T*>(words);
}
template <class T>
T* numbers(Word<T>* words) {
  return reinterpret_cast<T*>(words);
}

template <class T>
constexpr Word<T> exponent_mask = sizeof(T) == 8 ? Word<T>(0x7ff0000000000000)
                                                 : Word<T>(0x7f800000);
template <class T>
constexpr Word<T> quiet_bit = sizeof(T) == 8 ? Word<T>(0x0008000000000000) : Word<T>(0x00400000);
template <class T>
constexpr Word<T> sign_mask = Word<T>(1) << (8 * sizeof(T) - 1);

template <class T>
bool is_nan(Word<T> word) {
  return (word & ~sign_mask<T>) > exponent_mask<T>;
}

// Ordinary numbers of [low, high] with every kind of special one between them, in random order.
template <class T>
std::vector<Word<T>> mixed_words(size_t count, double low, double high, double special,
                                 uint32_t seed) {
  std::mt19937 random(seed);
  // In long double, rounded once: the same numbers from every compiler.
  const auto ordinary = [&] {
    return static_cast<T>(low + (static_cast<long double>(high) - low) * random() * 0x1p-32L);
  };
  const Word<T> top = exponent_mask<T>;
  const Word<T> kinds[] = {0,       1,           2,       top >> 1,
                           top - 1, top,         top + 1, top | (top / 2 + top / 4) | 1,
                           top / 2, top / 2 + 1, top / 4};
  std::vector<Word<T>> words;
  for (size_t i = 0; i < count; ++i) {
    if (random() % 1000 >= special * 1000) {
      words.push_back(word_of(ordinary()));
    } else {
      const uint64_t high = random(), low_half = random();
      const auto magnitude = high % 4 == 0
                                 ? static_cast<Word<T>>(high << 32 | low_half) & ~sign_mask<T>
                                 : kinds[low_half % std::size(kinds)];
      words.push_back(magnitude | (random() % 2 ? sign_mask<T> : 0));
    }
  }
  return words;
}

// One element by itself: result words, status and flags. `b` is the second source or the exponent;
// an exponent is passed by value, where compilers differ about a signalling NaN: it is made quiet.
template <class T>
struct Single {
  Word<T> result[2] = {};
  int32_t status = 0;
  uint16_t flags = 0;
};

template <class T>
Single<T> evaluate_one(const registry::Function& function, const Word<T>& a, const Word<T>& b = 0) {
  Single<T> single;
  const Word<T> exponent = is_nan<T>(b) ? b | quiet_bit<T> : b;
  clear_flags();
  single.status =
      function(registry::Operands<T>{numbers<T>(&a), numbers<T>(&b), numbers<T>(&single.result[0]),
                                     numbers<T>(&single.result[1]), *numbers<T>(&exponent)},
               1);
  single.flags = raised_flags();
  return single;
}

inline const registry::Function& function_named(std::string_view family, registry::Type type,
                                                std::string_view grade) {
  const auto* function = registry::find(family, type, grade);
  if (function == nullptr) throw std::invalid_argument("no such function");
  return *function;
}

// A special input with what it must give, for every grade of the type.
template <class T>
struct Case {
  Word<T> a;
  Word<T> result;
  int32_t status;
  uint16_t flags;
  Word<T> b = 0;
};

template <class T>
void expect_cases(std::string_view family, const std::vector<Case<T>>& cases) {
  for (const auto& function : registry::functions) {
    if (function.family.name != family ||
        function.type != (sizeof(T) == 8 ? registry::Type::f64 : registry::Type::f32))
      continue;
    for (const auto& expected : cases) {
      SCOPED_TRACE(std::string(function.name) + " at " + ::testing::PrintToString(expected.a));
      const auto got = evaluate_one<T>(function, expected.a, expected.b);
      EXPECT_EQ(got.result[0], expected.result);
      EXPECT_EQ(got.status, expected.status);
      EXPECT_EQ(got.flags, expected.flags);
    }
  }
}

}  // namespace dakvm::test
