// The search for the worst inputs of 64f functions.
#pragma once

#include <optional>
#include <string>

#include "measure.hpp"

namespace dakvm::accuracy {

// Random starts in the published intervals, and for functions of an angle the numbers nearest to
// multiples of pi/2; from the worst of them, steps to neighbours of every distance as long as they
// find larger errors. Ends after `seconds`.
Witness search(const Function& function, uint64_t seconds, uint64_t seed, const Setting& setting);

// Adds the input to the rows of worst.inc at `path`, if it has a larger error than the function's
// row there or the function has none; says so.
bool keep(const std::string& path, const Function& function, const Witness& witness);

}  // namespace dakvm::accuracy
