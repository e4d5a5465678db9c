// One vector function over a whole input, and the account of it.
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
  bool quiet = false;      // no progress line
};

// The elements that had one status.
struct Tally {
  int32_t status = 0;
  uint64_t count = 0;
  uint64_t first_index = 0;
  std::vector<std::string> first_input{};
};

// What became of a column of arguments, or of a pair of columns.
struct Account {
  std::vector<std::string> columns{};  // what they are called; empty if the input is not CSV
  std::vector<Tally> tallies{};        // in the order of their first elements
  int32_t last_status = 0;             // of the exceptional element with the highest index
  uint64_t last_index = 0;             // where that is
  int flags = 0;                       // FE_..., raised by the function alone
};

struct Summary {
  std::string function;
  uint64_t rows = 0;
  std::vector<Account> accounts;
  BadCells bad;
  double seconds = 0;

  uint64_t elements() const { return rows * accounts.size(); }
};

Summary evaluate(const registry::Function& function, const EvalOptions& options);

}  // namespace dakvm::tool
