#include "numbers.hpp"

#include <cstdio>
#include <stdexcept>

namespace dakvm::accuracy {

std::string hex_number(double x) {
  char text[40];
  std::snprintf(text, sizeof text, "%a", x);
  return text;
}

std::string hex_word(uint64_t word, int bytes) {
  char text[24];
  std::snprintf(text, sizeof text, "0x%0*llx", 2 * bytes, static_cast<unsigned long long>(word));
  return text;
}

double parse_number(std::string_view text) {
  const std::string copy(text);
  char* end = nullptr;
  const double value = std::strtod(copy.c_str(), &end);
  if (copy.empty() || *end != '\0') throw std::runtime_error("'" + copy + "' is not a number");
  return value;
}

}  // namespace dakvm::accuracy
