// The account of a run, for people or for programs.
#pragma once

#include <string>

#include "evaluate.hpp"

namespace dakvm::tool {

std::string summary_text(const Summary& summary);
// One line.
std::string summary_json(const Summary& summary);

}  // namespace dakvm::tool
