// Evaluates one function of the library over raw numbers: worker FUNCTION < arguments > results.
// The oracle runs it as a process of its own, so that a 64-bit oracle can measure a 32-bit library.
#include <cstdio>
#include <string_view>
#include <vector>

#include "registry/registry.hpp"

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

}  // namespace

int main(int argc, char** argv) {
  const std::string_view name = argc == 2 ? argv[1] : "";
  if (name == "gaxdsqrt_scalar") return run(gaxdsqrt_scalar) ? 0 : 1;
  if (name == "gaxssqrt_scalar") return run(gaxssqrt_scalar) ? 0 : 1;
  if (name == "gaxsatan_scalar") return run(gaxsatan_scalar) ? 0 : 1;
  if (name == "gaxsatan2_scalar") return run(gaxsatan2_scalar) ? 0 : 1;
  if (name == "gaxdatan2_scalar") return run(gaxdatan2_scalar) ? 0 : 1;
  for (const Function& function : functions)
    if (function.name == name)
      return (function.type == Type::f64 ? run<double>(function) : run<float>(function)) ? 0 : 1;
  std::fprintf(stderr, "usage: worker FUNCTION < arguments > results\n");
  return 2;
}
