// What a measurement runs over: the arrays, and how they are walked.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "registry/registry.hpp"

namespace dakvm::bench {

struct Workload {
  std::string_view range = "main";  // a name; "wide" is the far arguments of trigonometry
  double low = 0, high = 1;
  int32_t length = 1024;  // of one call
  int exceptional = 0;    // percent of the elements
  bool in_place = false;
};

// The interval of registry/families.def.
Workload main_workload(const registry::Family& family);
// Arguments that need reduction by the long pi; false for families without any.
bool wide_workload(const registry::Family& family, Workload& workload);

// Arrays of at least `least_elements`, so that short calls walk through different arguments.
template <class T>
class Arrays {
 public:
  Arrays(const registry::Family& family, const Workload& workload, int32_t least_elements = 1024);

  // Calls `f(operands, length)` over all elements. In place, the first source is copied to the
  // destination anew for each call, since results would not stay arguments for long.
  template <class F>
  void walk(F&& f) {
    for (int32_t first = 0; first < elements_; first += length_) {
      registry::Operands<T> o = {&src1_[first], &src2_[first], &dst1_[first], &dst2_[first],
                                 exponent_};
      if (in_place_) {
        __builtin_memcpy(o.dst1, o.src1, sizeof(T) * static_cast<size_t>(length_));
        o.src1 = o.dst1;
      }
      f(o, length_);
    }
  }
  int32_t elements() const { return elements_; }
  const std::vector<T>& first_results() const { return dst1_; }
  const std::vector<T>& second_results() const { return dst2_; }

 private:
  int32_t length_, elements_;
  bool in_place_;
  std::vector<T> src1_, src2_, dst1_, dst2_;
  T exponent_;
};

}  // namespace dakvm::bench
