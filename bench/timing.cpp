#include "bench/timing.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace dakvm::bench {
namespace {

// Collects the repetitions.
class Collector : public benchmark::BenchmarkReporter {
 public:
  Collector(size_t expected, bool progress) : expected_(expected), progress_(progress) {}

  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      times_[run.run_name.function_name].push_back(1e9 * run.cpu_accumulated_time /
                                                   static_cast<double>(run.iterations));
      if (progress_) std::fprintf(stderr, "\r%zu of %zu measurements", ++done_, expected_);
    }
  }
  void Finalize() override {
    if (progress_) std::fprintf(stderr, "\r%*s\r", 50, "");
  }

  std::map<std::string, std::vector<double>>& times() { return times_; }

 private:
  size_t expected_, done_ = 0;
  bool progress_;
  std::map<std::string, std::vector<double>> times_;
};

}  // namespace

void Session::add(const std::string& name, int elements, std::function<void()> run) {
  tasks_.insert({name, {elements, std::move(run)}});
}

std::map<std::string, Timing> Session::measure(int repetitions, bool progress) {
  for (const auto& [name, task] : tasks_)
    benchmark::RegisterBenchmark(name.c_str(), [&task = task](benchmark::State& state) {
      for (auto _ : state) task.run();
    });
  std::vector<std::string> arguments = {
      "dakvm bench", "--benchmark_repetitions=" + std::to_string(repetitions),
      "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.01"};
  std::vector<char*> pointers;
  for (std::string& a : arguments) pointers.push_back(a.data());
  int count = static_cast<int>(pointers.size());
  benchmark::Initialize(&count, pointers.data());
  Collector collector(tasks_.size() * static_cast<size_t>(repetitions), progress);
  benchmark::RunSpecifiedBenchmarks(&collector);
  benchmark::Shutdown();

  std::map<std::string, Timing> result;
  for (auto& [name, times] : collector.times()) {
    std::ranges::sort(times);
    const auto quantile = [&times = times](double part) {
      return times[static_cast<size_t>(part * static_cast<double>(times.size() - 1) + 0.5)];
    };
    const double median = quantile(0.5);
    result[name] = {median / tasks_.at(name).elements, (quantile(0.75) - quantile(0.25)) / median};
  }
  return result;
}

Clock measure_clock() {
  using Steady = std::chrono::steady_clock;
  const auto start = Steady::now();
  const auto first = __builtin_ia32_rdtsc();
  double fastest = 0;
  while (Steady::now() - start < std::chrono::milliseconds(50)) {
    // Each subtraction waits for the one before it: one a core cycle. Short runs, of which the
    // fastest counts, because others share the processor.
    constexpr unsigned steps = 200000;
    unsigned left = steps;
    const auto begin = Steady::now();
    do {
      asm volatile("sub $1, %0" : "+r"(left));
    } while (left != 0);
    fastest = std::max(
        fastest, steps / std::chrono::duration<double, std::nano>(Steady::now() - begin).count());
  }
  const auto last = __builtin_ia32_rdtsc();
  const double ns = std::chrono::duration<double, std::nano>(Steady::now() - start).count();
  return {static_cast<double>(last - first) / ns, fastest};
}

}  // namespace dakvm::bench
