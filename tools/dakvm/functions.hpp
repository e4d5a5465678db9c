// Which function the user means, and the list of all of them.
#pragma once

#include <string>

#include "registry/registry.hpp"

namespace dakvm::tool {

// `name` is a family ("Exp") or an exported name ("daksExp_64f_A53"), in any case; `type` and
// `grade` may be empty.
const registry::Function& find_function(const std::string& name, const std::string& type,
                                        const std::string& grade);

std::string list_text();
std::string list_json();

}  // namespace dakvm::tool
