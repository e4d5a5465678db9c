// What the library gives at special arguments, found by calling it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pages.hpp"
#include "registry/registry.hpp"

namespace dakvm::manual {

// Tables of arguments, results, statuses and flags of a family.
std::vector<Table> special_arguments(const registry::Family& family);

// The shortest decimal number that is x; "NaN", "+Inf" and the like.
std::string decimal(double x);
std::string status_name(int32_t status);

}  // namespace dakvm::manual
