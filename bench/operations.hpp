// Counts the x87 operations that a call executes, by single-stepping it in a child process.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace dakvm::bench {

struct Operations {
  uint64_t add_multiply = 0;  // additions, subtractions, multiplications
  uint64_t divide = 0;
  uint64_t all = 0;  // instructions of every kind
};

// Nothing where a process may not be traced.
std::optional<Operations> count_operations(const std::function<void()>& call);

}  // namespace dakvm::bench
