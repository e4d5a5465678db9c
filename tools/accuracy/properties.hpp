// What must hold whatever the error: symmetry, range, order, independence of the neighbours.
#pragma once

#include <string>

#include "measure.hpp"

namespace dakvm::accuracy {

struct Property {
  std::string name;
  uint64_t checked = 0, violations = 0;
  std::string first;  // the first violation
};

// The properties that the function has, checked over dense runs of numbers across every k 2^e and
// k/512 where kernels have the seams of their tables, over random runs and over random words.
std::vector<Property> check_properties(const Function& function, const Setting& setting);

}  // namespace dakvm::accuracy
