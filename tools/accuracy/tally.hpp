// What a measurement counts. Tallies of parts are added up in the order of the parts, so that the
// figures do not depend on how many processes worked.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace dakvm::accuracy {

// The ends of the histogram's bins in ulp, none of them within its bin; the last bin has no end.
constexpr std::array<double, 12> histogram_ends = {0.1,  0.2, 0.3,  0.4, 0.5, 0.501,
                                                   0.51, 0.6, 0.75, 1,   2,   10};

// One result that is worth telling: an error, or a status or flags that should be others.
struct Witness {
  double ulp = -1;
  uint64_t in[2] = {}, got = 0, expected = 0;
  uint32_t output = 0;
};

struct Tally {
  uint64_t results = 0, correct = 0;  // correct: correctly rounded
  double sum = 0;                     // of the errors in ulp
  std::array<uint64_t, histogram_ends.size() + 1> histogram = {};
  Witness worst;
  uint64_t wrong_statuses = 0, wrong_flags = 0;
  Witness wrong_status, wrong_flag;  // the first ones
  uint64_t not_monotone = 0, out_of_range = 0;
  uint64_t exact_values = 0;  // asked of MPFR

  void count(double ulp, bool is_correct) {
    ++results;
    correct += is_correct;
    sum += ulp;
    ++histogram[bin_of(ulp)];
  }
  void add(const Tally& later);

  uint64_t misrounded() const { return results - correct; }
  double mean() const { return results == 0 ? 0 : sum / static_cast<double>(results); }
  double percent() const {
    return results == 0 ? 0 : 100 * static_cast<double>(correct) / static_cast<double>(results);
  }

 private:
  static size_t bin_of(double ulp) {
    if (ulp < 0.5) return static_cast<size_t>(ulp * 10);
    size_t bin = 5;
    while (bin < histogram_ends.size() && !(ulp < histogram_ends[bin])) ++bin;
    return bin;
  }
};
static_assert(std::is_trivially_copyable_v<Tally>);

}  // namespace dakvm::accuracy
