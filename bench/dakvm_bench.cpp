// Times every function of the library against the libm loops, and prints one table.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "bench/libm_reference.hpp"
#include "registry/registry.hpp"

namespace dakvm::bench {
namespace {

using registry::Family;
using registry::Function;
using registry::Operands;
using registry::Type;

constexpr int32_t elements = 1024;

// A function over its family's interval, or a periodic one over wide arguments, which it has to
// reduce: from 2^17 to 2^60, their logarithms spread evenly.
struct Workload {
  const Function& function;
  bool wide;
};

std::vector<Workload> workloads() {
  std::vector<Workload> all;
  for (const Function& f : registry::functions) all.push_back({f, false});
  for (const Function& f : registry::functions)
    for (const std::string_view periodic : {"Sin", "Cos", "SinCos", "Tan"})
      if (f.family.name == periodic && f.type == Type::f64) all.push_back({f, true});
  return all;
}

// Arrays in the first-level cache, arguments spread evenly over the interval.
template <class T>
struct Arrays {
  std::vector<T> src1, src2, dst1, dst2;
  T exponent;

  explicit Arrays(const Workload& workload)
      : src1(elements), src2(elements), dst1(elements), dst2(elements) {
    std::mt19937_64 random(20011);
    const Family& family = workload.function.family;
    std::uniform_real_distribution<T> ordinary(static_cast<T>(family.low),
                                               static_cast<T>(family.high));
    std::uniform_real_distribution<T> logarithm(17, 60);
    const auto argument = [&] {
      return workload.wide ? std::exp2(logarithm(random)) : ordinary(random);
    };
    for (T& x : src1) x = argument();
    for (T& x : src2) x = argument();
    exponent = argument();
  }
  Operands<T> operands(int32_t first = 0) {
    return {&src1[first], &src2[first], &dst1[first], &dst2[first], exponent};
  }
};

// One call for all elements, or as many calls of one element.
template <class T>
void time_library(benchmark::State& state, const Workload& workload, bool one_element_calls) {
  Arrays<T> arrays(workload);
  std::visit(
      [&](auto entry) {
        if (one_element_calls) {
          for (auto _ : state)
            for (int32_t i = 0; i < elements; ++i)
              registry::invoke<T>(entry, arrays.operands(i), 1);
        } else {
          for (auto _ : state) registry::invoke<T>(entry, arrays.operands(), elements);
        }
      },
      std::get<registry::Entry<T>>(workload.function.entry));
  state.SetItemsProcessed(state.iterations() * elements);
}

template <class T>
void time_loop(benchmark::State& state, const Workload& workload, Loop<T> loop) {
  Arrays<T> arrays(workload);
  for (auto _ : state) loop(arrays.operands(), elements);
  state.SetItemsProcessed(state.iterations() * elements);
}

template <class T>
Loop<T> loop_of(const Reference& reference) {
  if constexpr (std::is_same_v<T, double>)
    return reference.f64;
  else
    return reference.f32;
}

const Reference& reference_of(std::span<const Reference> references, const Family& family) {
  return *std::ranges::find(references, family.name, &Reference::family);
}

// Whether the loop computes what the function does, up to the errors of the coarsest grade.
template <class T>
bool same_function(const Workload& workload, Loop<T> loop) {
  Arrays<T> ours(workload), theirs(workload);
  workload.function(ours.operands(), elements);
  loop(theirs.operands(), elements);
  const auto close = [](T a, T b) { return std::abs(a - b) <= std::abs(b) / 256 + T{1} / 65536; };
  return std::ranges::equal(ours.dst1, theirs.dst1, close) &&
         std::ranges::equal(ours.dst2, theirs.dst2, close);
}

// Names are <Family>_<type>/<what>, so that a filter on the first part keeps a table row whole.
std::string group_name(const Workload& w) {
  return std::string(w.function.family.name) + "_" + std::string(w.function.type_name()) +
         (w.wide ? "_wide" : "");
}
std::string row_name(const Workload& w) {
  return std::string(w.function.name) + (w.wide ? " wide" : "");
}
std::string long_call_name(const Workload& w) {
  return group_name(w) + "/" + std::string(w.function.name);
}
std::string one_element_name(const Workload& w) { return long_call_name(w) + "/one_element_calls"; }
std::string plain_name(const Workload& w) { return group_name(w) + "/libm"; }
std::string stored_name(const Workload& w) { return group_name(w) + "/libm_stored"; }

template <class T>
void register_workload(const Workload& workload, bool with_references) {
  const auto add = [](const std::string& name, auto run) {
    benchmark::RegisterBenchmark(name.c_str(), run);
  };
  const Family& family = workload.function.family;
  const Loop<T> plain = loop_of<T>(reference_of(plain::references(), family));
  const Loop<T> stored = loop_of<T>(reference_of(stored::references(), family));
  if (!same_function(workload, plain) || !same_function(workload, stored)) {
    std::fprintf(stderr, "dakvm_bench: %s and its loop in bench/libm_reference.cpp disagree\n",
                 row_name(workload).c_str());
    std::exit(1);
  }
  if (with_references) {
    add(plain_name(workload), [=](auto& state) { time_loop<T>(state, workload, plain); });
    add(stored_name(workload), [=](auto& state) { time_loop<T>(state, workload, stored); });
  }
  add(long_call_name(workload), [=](auto& state) { time_library<T>(state, workload, false); });
  add(one_element_name(workload), [=](auto& state) { time_library<T>(state, workload, true); });
}

// Time-stamp cycles in a nanosecond.
double time_stamp_rate() {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  const auto first = __builtin_ia32_rdtsc();
  while (Clock::now() - start < std::chrono::milliseconds(50)) {
  }
  const auto last = __builtin_ia32_rdtsc();
  return static_cast<double>(last - first) /
         std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

// Keeps all repetitions and prints the table at the end.
class Table : public benchmark::BenchmarkReporter {
 public:
  explicit Table(double cycles_per_ns) : cycles_per_ns_(cycles_per_ns) {}

  bool ReportContext(const Context& context) override {
    PrintBasicContext(&GetErrorStream(), context);
    return true;
  }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      times_[run.run_name.function_name].push_back(1e9 * run.cpu_accumulated_time /
                                                   static_cast<double>(run.iterations) / elements);
    }
  }

  void Finalize() override {
    std::printf("%-23s %8s %9s %8s %7s %9s %9s %9s %8s %8s %8s\n", "function", "ns/elem", "Melem/s",
                "TSC/elem", "spread", "libm ns", "stored ns", "ns/call", "x libm", "x stored",
                "call/el");
    for (const Workload& w : workloads()) {
      const auto own = median(long_call_name(w));
      if (!own) continue;
      const auto plain = median(plain_name(w)), stored = median(stored_name(w));
      const auto call = median(one_element_name(w));
      std::printf("%-23s %8.2f %9.1f %8.1f %6.1f%%", row_name(w).c_str(), *own, 1e3 / *own,
                  *own * cycles_per_ns_, 100 * quartile_range(long_call_name(w)) / *own);
      for (const auto& time : {plain, stored, call}) print(time, 9, 2);
      print(plain, 8, 2, *own);
      print(stored, 8, 2, *own);
      print(call, 8, 2, *own);
      std::printf("\n");
    }
  }

 private:
  static void print(std::optional<double> value, int width, int digits, double divisor = 1) {
    if (value)
      std::printf(" %*.*f", width, digits, *value / divisor);
    else
      std::printf(" %*s", width, "-");
  }

  // The value below which `part` of the repetitions lie.
  std::optional<double> quantile(const std::string& name, double part) const {
    const auto found = times_.find(name);
    if (found == times_.end()) return std::nullopt;
    std::vector<double> sorted = found->second;
    std::ranges::sort(sorted);
    return sorted[static_cast<size_t>(part * static_cast<double>(sorted.size() - 1) + 0.5)];
  }
  std::optional<double> median(const std::string& name) const { return quantile(name, 0.5); }
  double quartile_range(const std::string& name) const {
    return *quantile(name, 0.75) - *quantile(name, 0.25);
  }

  double cycles_per_ns_;
  std::map<std::string, std::vector<double>> times_;
};

}  // namespace
}  // namespace dakvm::bench

int main(int argc, char** argv) {
  using namespace dakvm::bench;

  // Flags of the command line come last and so win.
  std::vector<std::string> arguments = {argv[0], "--benchmark_repetitions=15",
                                        "--benchmark_enable_random_interleaving=true",
                                        "--benchmark_min_time=0.01"};
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  const bool other_format = std::ranges::any_of(
      arguments, [](const auto& a) { return a.starts_with("--benchmark_format="); });
  std::vector<char*> pointers;
  for (std::string& a : arguments) pointers.push_back(a.data());
  int count = static_cast<int>(pointers.size());
  pointers.push_back(nullptr);
  benchmark::Initialize(&count, pointers.data());
  if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) return 1;

  std::string last_group;
  for (const Workload& w : workloads()) {
    const bool new_group = group_name(w) != last_group;
    last_group = group_name(w);
    if (w.function.type == Type::f64)
      register_workload<double>(w, new_group);
    else
      register_workload<float>(w, new_group);
  }

  const double cycles_per_ns = time_stamp_rate();
  benchmark::AddCustomContext("time_stamp_cycles_per_ns", std::to_string(cycles_per_ns));
  Table table(cycles_per_ns);
  const size_t run = other_format ? benchmark::RunSpecifiedBenchmarks()
                                  : benchmark::RunSpecifiedBenchmarks(&table);
  benchmark::Shutdown();
  return run > 0 ? 0 : 1;
}
