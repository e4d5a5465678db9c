// Errors over given inputs, and over all floats.
#pragma once

#include <string>
#include <vector>

#include "sample.hpp"
#include "tally.hpp"
#include "worker_process.hpp"

namespace dakvm::accuracy {

struct Setting {
  std::string library;  // empty: the one of the build
  int jobs = 1;
  bool quiet = false;        // no progress line
  std::string state_folder;  // of exhaustive runs; empty: none is kept
};

// At most this many functions are measured side by side on the same inputs.
constexpr size_t longest_group = 5;

struct Measurement {
  const Function* function;
  // An earlier one of the group that gave the same results, statuses and flags on every input.
  const Function* same_as = nullptr;
  Tally tally;
};

template <class T>
std::vector<Measurement> measure(const std::vector<const Function*>& group, const Inputs<T>& inputs,
                                 Modes modes, const Setting& setting);

// Every float, of 32f functions of one argument; of its 1024 parts every `stride`-th. Interrupted,
// it goes on where it was.
std::vector<Measurement> measure_exhaustively(const std::vector<const Function*>& group,
                                              const Setting& setting, uint32_t stride = 1);

}  // namespace dakvm::accuracy
