// Evaluates one function of the library over raw numbers: worker FUNCTION < arguments > results.
// The oracle runs it as a process of its own, so that a 64-bit oracle can measure a 32-bit library.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

#include "registry/registry.hpp"
#include "tests/library/x87_state.hpp"

namespace {

using namespace dakvm::registry;

template <class T>
bool read_all(std::vector<T>& numbers) {
  T block[4096];
  while (const size_t count = std::fread(block, sizeof(T), std::size(block), stdin))
    numbers.insert(numbers.end(), block, block + count);
  return std::ferror(stdin) == 0;
}

template <class T>
bool write_all(const std::vector<T>& numbers) {
  return std::fwrite(numbers.data(), sizeof(T), numbers.size(), stdout) == numbers.size() &&
         std::fflush(stdout) == 0;
}

// Arguments of two-input functions stand one array behind the other; so do results of two-output
// functions.
template <class T>
bool run(const Function& function) {
  std::vector<T> in;
  if (!read_all(in)) return false;
  const size_t len = in.size() / function.family.sources();
  std::vector<T> out(len * function.family.destinations());
  function(Operands<T>{in.data(), in.data() + in.size() - len, out.data(),
                       out.data() + out.size() - len},
           static_cast<int32_t>(len));
  return write_all(out);
}

template <class T>
bool run(long double (*function)(T)) {
  std::vector<T> numbers;
  if (!read_all(numbers)) return false;
  for (T& x : numbers) x = static_cast<T>(function(x));
  return write_all(numbers);
}

template <class T>
bool run(double (*function)(T, T)) {
  std::vector<T> numbers;
  if (!read_all(numbers)) return false;
  const size_t len = numbers.size() / 2;
  for (size_t i = 0; i < len; ++i)
    numbers[i] = static_cast<T>(function(numbers[i], numbers[len + i]));
  numbers.resize(len);
  return write_all(numbers);
}

// The scalar entries, applied to every index in turn.
template <class T>
bool run(void (*entry)(int32_t, const T*, T*, int32_t*)) {
  std::vector<T> in;
  if (!read_all(in)) return false;
  std::vector<T> out(in.size());
  int32_t status = 0;
  for (size_t i = 0; i < in.size(); ++i)
    entry(static_cast<int32_t>(i), in.data(), out.data(), &status);
  return write_all(out);
}
template <class T>
bool run(void (*entry)(int32_t, const T*, T*, T*, int32_t*)) {
  std::vector<T> in;
  if (!read_all(in)) return false;
  std::vector<T> out(2 * in.size());
  int32_t status = 0;
  for (size_t i = 0; i < in.size(); ++i)
    entry(static_cast<int32_t>(i), in.data(), out.data(), out.data() + in.size(), &status);
  return write_all(out);
}

// Quadrant, hi and lo of every argument; with `precision` 2 as the scalar entries ask for them.
bool run_reduction(int precision) {
  std::vector<double> in, out;
  if (!read_all(in)) return false;
  for (const double& x : in) {
    uint32_t words[2];
    std::memcpy(words, &x, sizeof words);
    ReducedArg reduced;
    int32_t quadrant;
    {
      const dakvm::test::ScopedModes modes(precision, 0);
      quadrant = gaxreduce_pio2d(words[0], words[1], &reduced);
    }
    out.insert(out.end(), {static_cast<double>(quadrant), reduced.hi, reduced.lo});
  }
  return write_all(out);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view name = argc == 2 ? argv[1] : "";
  if (name == "gaxdsqrt_scalar") return run(gaxdsqrt_scalar) ? 0 : 1;
  if (name == "gaxssqrt_scalar") return run(gaxssqrt_scalar) ? 0 : 1;
  if (name == "gaxsatan_scalar") return run(gaxsatan_scalar) ? 0 : 1;
  if (name == "gaxsatan2_scalar") return run(gaxsatan2_scalar) ? 0 : 1;
  if (name == "gaxdatan2_scalar") return run(gaxdatan2_scalar) ? 0 : 1;
  if (name == "gaxdSin_SC_HA") return run(gaxdSin_SC_HA) ? 0 : 1;
  if (name == "gaxdCos_SC_HA") return run(gaxdCos_SC_HA) ? 0 : 1;
  if (name == "gaxdSinCos_SC_HA") return run(gaxdSinCos_SC_HA) ? 0 : 1;
  if (name == "gaxdTan_SC_HA") return run(gaxdTan_SC_HA) ? 0 : 1;
  if (name == "gaxsSin_SC_HA") return run(gaxsSin_SC_HA) ? 0 : 1;
  if (name == "gaxsCos_SC_HA") return run(gaxsCos_SC_HA) ? 0 : 1;
  if (name == "gaxsSinCos_SC_HA") return run(gaxsSinCos_SC_HA) ? 0 : 1;
  if (name == "gaxsTan_SC_HA") return run(gaxsTan_SC_HA) ? 0 : 1;
  if (name == "gaxreduce_pio2d") return run_reduction(3) ? 0 : 1;
  if (name == "gaxreduce_pio2d/53") return run_reduction(2) ? 0 : 1;
  for (const Function& function : functions)
    if (function.name == name)
      return (function.type == Type::f64 ? run<double>(function) : run<float>(function)) ? 0 : 1;
  std::fprintf(stderr, "usage: worker FUNCTION < arguments > results\n");
  return 2;
}
