// Properties that functions of several families have.
#pragma once

#include "arrays.hpp"

namespace dakvm::test {

// A whole number for each word, in the order of the numbers.
template <class T>
int64_t place_of(Word<T> word) {
  const auto magnitude = static_cast<int64_t>(word & ~sign_mask<T>);
  return word & sign_mask<T> ? -magnitude : magnitude;
}

// Where the path changes, results do not fall as the argument's word grows, and no status is set;
// with the direction -1 they do not rise.
template <class T>
void expect_no_fall(const registry::Function& function, Word<T> around, int64_t direction = 1) {
  SCOPED_TRACE(std::string(function.name) + " at " + ::testing::PrintToString(around));
  int64_t last = INT64_MIN;
  for (Word<T> x = around - 60; x != around + 60; ++x) {
    const auto got = evaluate_one<T>(function, x);
    EXPECT_EQ(got.status, DAKVM_STATUS_OK);
    EXPECT_GE(direction * place_of<T>(got.result[0]), last);
    last = direction * place_of<T>(got.result[0]);
  }
}

// f(-x) is f(x) with the bits of `change` turned over.
template <class T>
void expect_symmetry(const registry::Function& function, const std::vector<Word<T>>& words,
                     Word<T> change) {
  for (const Word<T> word : words) {
    if (is_nan<T>(word)) continue;
    const auto plus = evaluate_one<T>(function, word);
    const auto minus = evaluate_one<T>(function, word ^ sign_mask<T>);
    ASSERT_EQ(minus.result[0], plus.result[0] ^ change) << function.name << ' ' << word;
    ASSERT_EQ(minus.status, plus.status) << function.name << ' ' << word;
  }
}

// The grades of a type share one algorithm.
template <class T>
void expect_grades_agree(std::string_view family, const std::vector<Word<T>>& words) {
  const bool is_double = sizeof(T) == sizeof(double);
  const auto type = is_double ? registry::Type::f64 : registry::Type::f32;
  const auto& exact = function_named(family, type, is_double ? "A53" : "A24");
  for (const auto& function : registry::functions) {
    if (function.family.name != family || function.type != type) continue;
    for (const Word<T> word : words)
      ASSERT_EQ(evaluate_one<T>(function, word).result[0], evaluate_one<T>(exact, word).result[0])
          << function.name << ' ' << word;
  }
}

}  // namespace dakvm::test
