#include "progress.hpp"

#include <unistd.h>

#include <cstdio>
#include <string>

namespace dakvm::tool {

using namespace std::chrono_literals;

Progress::Progress(const InputFile& file, bool results_on_stdout)
    : file_(file),
      enabled_(isatty(STDERR_FILENO) && !(results_on_stdout && isatty(STDOUT_FILENO))),
      next_(Clock::now() + 1s) {}

Progress::~Progress() {
  if (drawn_) std::fputs("\r\x1b[K", stderr);
}

void Progress::update(uint64_t elements) {
  if (!enabled_ || Clock::now() < next_) return;
  next_ = Clock::now() + 200ms;
  drawn_ = true;
  if (file_.size() && *file_.size() > 0) {
    constexpr int width = 40;
    const double share = static_cast<double>(file_.position()) / static_cast<double>(*file_.size());
    const int full = static_cast<int>(width * (share < 1 ? share : 1));
    const std::string bar = std::string(full, '#') + std::string(width - full, '.');
    std::fprintf(stderr, "\r[%s] %3d %%  %llu elements\x1b[K", bar.c_str(), full * 100 / width,
                 static_cast<unsigned long long>(elements));
  } else {
    std::fprintf(stderr, "\r%llu elements\x1b[K", static_cast<unsigned long long>(elements));
  }
  std::fflush(stderr);
}

}  // namespace dakvm::tool
