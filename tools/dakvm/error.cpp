#include "error.hpp"

#include <cstdio>

namespace dakvm::tool {

std::string excerpt(std::string_view text) {
  constexpr size_t longest = 60;
  std::string result = "'";
  for (const char c : text.substr(0, longest)) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\x%02x", static_cast<unsigned>(c));
      result += escape;
    } else {
      result += c;
    }
  }
  return result + (text.size() > longest ? "...'" : "'");
}

}  // namespace dakvm::tool
