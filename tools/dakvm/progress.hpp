// A progress line on a terminal, for runs that last.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace dakvm::tool {

class Progress {
 public:
  // Silent too when standard error is no terminal.
  explicit Progress(bool quiet);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // A bar and the time left where the total is known, and the text.
  void update(uint64_t done, std::optional<uint64_t> total, const std::string& text);

 private:
  using Clock = std::chrono::steady_clock;

  bool enabled_, drawn_ = false;
  Clock::time_point start_, next_;
  std::optional<uint64_t> first_;  // done before this run began to count
};

}  // namespace dakvm::tool
