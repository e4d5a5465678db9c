// One vector function over a whole input.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "block.hpp"
#include "registry/registry.hpp"

namespace dakvm::tool {

enum class Layout { text, csv, raw };

struct EvalOptions {
  std::string input = "-", output = "-";
  bool force = false;
  Layout layout = Layout::text;
  CsvOptions csv{};
  Notation notation = Notation::decimal;
  OnError on_error = OnError::stop;
  std::string exponent{};  // empty: not given
};

// The elements that had one status.
struct Tally {
  int32_t status = 0;
  uint64_t count = 0;
  uint64_t first_index = 0;
  std::vector<std::string> first_input{};
};

struct Summary {
  std::string function;
  uint64_t elements = 0;
  std::vector<Tally> tallies;  // in the order of their first elements
  int32_t last_status = 0;     // of the exceptional element with the highest index
  int flags = 0;               // FE_..., raised by the function alone
  BadCells bad;
  double seconds = 0;
};

Summary evaluate(const registry::Function& function, const EvalOptions& options);

}  // namespace dakvm::tool
