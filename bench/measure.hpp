// One row for each function and workload: the library against the loops over libm, or against
// another build of the library.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "bench/timing.hpp"
#include "bench/workload.hpp"

namespace dakvm::bench {

struct Row {
  const registry::Function* function = nullptr;
  Workload workload;
  Timing own;
  std::optional<Timing> plain, stored;  // the two loops over libm
  std::optional<Timing> single;         // calls with one element
  std::optional<Timing> single_libm;    // calls of the libm function, plain
  std::optional<Timing> baseline;       // the other build
  std::optional<double> operations;     // x87 additions and multiplications an element, P
};

struct Request {
  std::vector<const registry::Function*> functions;
  bool wide = true;  // further rows for the wide ranges of trigonometry
  int exceptional = 0;
  bool in_place = false;
  std::vector<int32_t> lengths = {1024};
  std::string baseline;  // path of another build; empty: the loops over libm
  std::string library;   // path of the build to time; empty: the one that is linked
  int repetitions = 15;
  bool progress = false;
};

std::vector<Row> measure(const Request& request);

}  // namespace dakvm::bench
