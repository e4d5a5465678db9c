// Arguments to measure with.
#pragma once

#include <string>

#include "worker_process.hpp"

namespace dakvm::accuracy {

// Half of the numbers are spread evenly over the numbers of [low, high], half over its values; the
// 4001 numbers around each end are added. Of two arguments the second comes from the same interval.
template <class T>
Inputs<T> sample(const Function& function, double low, double high, uint64_t samples, uint64_t seed,
                 bool ends = true);

// The numbers of a text file, an element a line; lines that start with # are passed over.
template <class T>
Inputs<T> read_inputs(const Function& function, const std::string& path);

// The project's own hard inputs: those of the family and type in hard.inc, then the worst ones that
// searches have found for a function of that family and type, worst.inc.
template <class T>
Inputs<T> hard_inputs(const Function& function);

}  // namespace dakvm::accuracy
