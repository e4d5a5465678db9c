// Text that is a number has the value that strtod and strtof read, and formatted numbers read back.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "number_format.hpp"

namespace {

using namespace dakvm::tool;

float c_library(const char* text, char** end, float) { return std::strtof(text, end); }
double c_library(const char* text, char** end, double) { return std::strtod(text, end); }

template <class T>
void check(const std::string& text) {
  T value;
  if (!parse<T>(text, value)) return;
  char* end = nullptr;
  const T expected = c_library(text.c_str(), &end, T{});
  if (value != value) {
    if (expected == expected) std::abort();
    return;
  }
  if (word_of(value) != word_of(expected)) std::abort();
  for (const Notation notation : {Notation::decimal, Notation::hex}) {
    char buffer[longest_number];
    const char* const last = format(value, notation, buffer);
    T again;
    if (!parse<T>({buffer, static_cast<size_t>(last - buffer)}, again) ||
        word_of(again) != word_of(value))
      std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  check<double>(text);
  check<float>(text);
  return 0;
}
