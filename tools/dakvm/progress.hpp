// A progress line on a terminal, for runs that last.
#pragma once

#include <chrono>
#include <cstdint>

#include "file_io.hpp"

namespace dakvm::tool {

class Progress {
 public:
  // Silent when standard error is no terminal, or results go to the terminal too.
  Progress(const InputFile& file, bool results_on_stdout);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void update(uint64_t elements);

 private:
  using Clock = std::chrono::steady_clock;

  const InputFile& file_;
  bool enabled_, drawn_ = false;
  Clock::time_point next_;
};

}  // namespace dakvm::tool
