// An application that spreads one array over the cores: the library has no state, so each thread
// calls it for a part of its own. Shown with std::thread and with OpenMP; prints how both scale.
#include <dakvmpx.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <thread>
#include <vector>

namespace {

constexpr int32_t length = 1 << 20;

// Parts are multiples of 8 doubles: no two threads write to one cache line.
int32_t part_begin(int part, int parts) {
  return static_cast<int32_t>(int64_t{length} * part / parts) & ~7;
}
int32_t part_length(int part, int parts) {
  return (part + 1 == parts ? length : part_begin(part + 1, parts)) - part_begin(part, parts);
}

// The statuses of the parts, put together as one call would: the last exceptional part counts.
int32_t last_status(const std::vector<int32_t>& statuses) {
  int32_t last = DAKVM_STATUS_OK;
  for (const int32_t status : statuses)
    if (status != DAKVM_STATUS_OK) last = status;
  return last;
}

int32_t with_threads(const double* x, double* y, int threads) {
  std::vector<int32_t> statuses(static_cast<size_t>(threads));
  std::vector<std::thread> running;
  for (int part = 0; part < threads; ++part)
    running.emplace_back([=, &statuses] {
      const int32_t begin = part_begin(part, threads);
      statuses[static_cast<size_t>(part)] =
          daksExp_64f_A53(x + begin, y + begin, part_length(part, threads));
    });
  for (std::thread& thread : running) thread.join();
  return last_status(statuses);
}

#ifdef _OPENMP
int32_t with_openmp(const double* x, double* y, int threads) {
  std::vector<int32_t> statuses(static_cast<size_t>(threads));
#pragma omp parallel for num_threads(threads) schedule(static, 1)
  for (int part = 0; part < threads; ++part) {
    const int32_t begin = part_begin(part, threads);
    statuses[static_cast<size_t>(part)] =
        daksExp_64f_A53(x + begin, y + begin, part_length(part, threads));
  }
  return last_status(statuses);
}
#endif

// The fastest of some runs, in milliseconds.
template <class F>
double fastest(F&& run) {
  using Clock = std::chrono::steady_clock;
  double best = 1e9;
  for (int k = 0; k < 15; ++k) {
    const auto start = Clock::now();
    run();
    best = std::min(best, std::chrono::duration<double, std::milli>(Clock::now() - start).count());
  }
  return best;
}

}  // namespace

int main() {
  std::vector<double> x(length), expected(length), y(length);
  for (int32_t i = 0; i < length; ++i) x[static_cast<size_t>(i)] = i * (40.0 / length) - 20;
  const int32_t status = daksExp_64f_A53(x.data(), expected.data(), length);
  const double one = fastest([&] { daksExp_64f_A53(x.data(), y.data(), length); });
  const int cores = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  std::printf("%d elements, %d cores, one thread %.2f ms\n", length, cores, one);

  bool right = true;
  for (int threads = 1; threads <= cores; threads *= 2)
    for (const auto& [name, run] : {
             std::pair{"std::thread", &with_threads},
#ifdef _OPENMP
             std::pair{"OpenMP", &with_openmp},
#endif
         }) {
      std::fill(y.begin(), y.end(), 0.0);
      int32_t got = 0;
      const double time = fastest([&, call = run] { got = call(x.data(), y.data(), threads); });
      const bool same =
          got == status && std::memcmp(y.data(), expected.data(), sizeof(double) * length) == 0;
      std::printf("%-12s %d threads  %.2f ms, %.2f times one thread%s\n", name, threads, time,
                  one / time, same ? "" : "  WRONG RESULTS");
      right = right && same;
    }
  return right ? 0 : 1;
}
