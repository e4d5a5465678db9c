#include "bench/workload.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace dakvm::bench {
namespace {

// Spread evenly, or over many binades with evenly spread logarithms. The standard's distributions
// are not used: they differ from library to library.
template <class T>
T argument(std::mt19937_64& random, const Workload& w) {
  const double part = static_cast<double>(random() >> 11) * 0x1p-53;
  if (w.range == "main") return static_cast<T>(w.low + (w.high - w.low) * part);
  return static_cast<T>(w.low * std::exp2(part * std::log2(w.high / w.low)));
}

template <class T>
constexpr T special_arguments[] = {std::numeric_limits<T>::quiet_NaN(),
                                   std::numeric_limits<T>::infinity(),
                                   -std::numeric_limits<T>::infinity(),
                                   T{0},
                                   -T{0},
                                   std::numeric_limits<T>::denorm_min(),
                                   -std::numeric_limits<T>::max(),
                                   std::numeric_limits<T>::max()};

}  // namespace

Workload main_workload(const registry::Family& family) {
  Workload w;
  w.low = family.low;
  w.high = family.high;
  return w;
}

bool wide_workload(const registry::Family& family, Workload& workload) {
  constexpr std::string_view periodic[] = {"Sin", "Cos", "SinCos", "Tan"};
  if (std::ranges::find(periodic, family.name) == std::end(periodic)) return false;
  workload.range = "wide";
  workload.low = 0x1p17;
  workload.high = 0x1p60;
  return true;
}

template <class T>
Arrays<T>::Arrays(const registry::Family& family, const Workload& w, int32_t least_elements)
    : length_(w.length),
      elements_(std::max(least_elements / w.length, 1) * w.length),
      in_place_(w.in_place),
      src1_(elements_),
      src2_(elements_),
      dst1_(elements_),
      dst2_(elements_) {
  std::mt19937_64 random(20011);
  for (T& x : src1_) x = argument<T>(random, w);
  for (T& x : src2_) x = argument<T>(random, w);
  exponent_ = argument<T>(random, main_workload(family));
  size_t kind = 0;
  for (T& x : src1_)
    if (static_cast<int>((random() >> 11) % 100) < w.exceptional)
      x = special_arguments<T>[kind++ % std::size(special_arguments<T>)];
}

template class Arrays<double>;
template class Arrays<float>;

}  // namespace dakvm::bench
