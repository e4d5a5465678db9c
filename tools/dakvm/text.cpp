#include "text.hpp"

#include <cstdio>

namespace dakvm::tool {

std::string joined(const std::vector<std::string>& parts, std::string_view separator) {
  std::string result;
  for (size_t k = 0; k < parts.size(); ++k) {
    if (k > 0) result += separator;
    result += parts[k];
  }
  return result;
}

std::string counted(uint64_t count, std::string_view thing) {
  return std::to_string(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

std::string json_string(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      result += {'\\', c};
    } else if (static_cast<unsigned char>(c) < 0x20) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
      result += escape;
    } else {
      result += c;
    }
  }
  return result + '"';
}

std::string json_array(std::vector<std::string> strings) {
  for (std::string& s : strings) s = json_string(s);
  return "[" + joined(strings, ",") + "]";
}

}  // namespace dakvm::tool
