#include "progress.hpp"

#include <unistd.h>

#include <cstdio>

namespace dakvm::tool {

using namespace std::chrono_literals;

Progress::Progress(bool quiet)
    : enabled_(!quiet && isatty(STDERR_FILENO)), start_(Clock::now()), next_(start_ + 1s) {}

Progress::~Progress() {
  if (drawn_) std::fputs("\r\x1b[K", stderr);
}

void Progress::update(uint64_t done, std::optional<uint64_t> total, const std::string& text) {
  if (!first_) first_ = done;
  const auto now = Clock::now();
  if (!enabled_ || now < next_) return;
  next_ = now + 200ms;
  drawn_ = true;
  if (total && *total > 0) {
    constexpr int width = 40;
    const double share = static_cast<double>(done) / static_cast<double>(*total);
    const int full = static_cast<int>(width * (share < 1 ? share : 1));
    const std::string bar = std::string(full, '#') + std::string(width - full, '.');
    std::fprintf(stderr, "\r[%s] %3d %%", bar.c_str(), full * 100 / width);
    if (done > *first_ && done < *total) {
      const double elapsed = std::chrono::duration<double>(now - start_).count();
      std::fprintf(
          stderr, ", %.0f s left",
          elapsed * static_cast<double>(*total - done) / static_cast<double>(done - *first_));
    }
    std::fputs("  ", stderr);
  } else {
    std::fputc('\r', stderr);
  }
  std::fprintf(stderr, "%s\x1b[K", text.c_str());
  std::fflush(stderr);
}

}  // namespace dakvm::tool
