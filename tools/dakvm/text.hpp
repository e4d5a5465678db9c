// Pieces of messages and of JSON.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dakvm::tool {

std::string joined(const std::vector<std::string>& parts, std::string_view separator);
// "1 column", "2 columns".
std::string counted(uint64_t count, std::string_view thing);
// `text` as a JSON string, and `strings` as an array of them.
std::string json_string(std::string_view text);
std::string json_array(std::vector<std::string> strings);

}  // namespace dakvm::tool
