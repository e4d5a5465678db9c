// Reduces the doubles of standard input, in the library's word size: reduction_worker BITS, the
// precision of the unit, 64 or 53.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

#include "dakvmpx.h"
#include "tests/library/x87_state.hpp"

namespace {

bool read_all(std::vector<double>& numbers) {
  double block[4096];
  while (const size_t count = std::fread(block, sizeof(double), std::size(block), stdin))
    numbers.insert(numbers.end(), block, block + count);
  return std::ferror(stdin) == 0;
}

bool write_all(const std::vector<double>& numbers) {
  return std::fwrite(numbers.data(), sizeof(double), numbers.size(), stdout) == numbers.size() &&
         std::fflush(stdout) == 0;
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
  const std::string_view bits = argc == 2 ? argv[1] : "";
  if (bits == "64") return run_reduction(3) ? 0 : 1;
  if (bits == "53") return run_reduction(2) ? 0 : 1;
  return 2;
}
