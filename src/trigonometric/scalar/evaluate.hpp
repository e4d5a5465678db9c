// A kernel of doubles applied to one element, and the entries around it.
#pragma once

#include <utility>

#include "frame/frame.hpp"
#include "trigonometric/scalar/scalar.hpp"
#include "x87/control_word.hpp"

namespace dakvm::scalar {
using namespace x87;

template <class T>
DAKVM_INLINE void store(Ext result, T* dst) {
  *dst = narrow<T>(result);
}
template <class T>
DAKVM_INLINE void store(const std::pair<Ext, Ext>& results, T* dst1, T* dst2) {
  store(results.first, dst1);
  store(results.second, dst2);
}

// The kernel's own way with x, in the modes in force. Floats are computed as doubles.
template <class Kernel, class Table, class T, class... Destinations>
DAKVM_WHOLE void run_kernel(const Table& t, const T* src, Destinations*... dst) {
  const double x = narrow<double>(load(src));
  if (Kernel::is_ordinary(t, Bits<double>::read(&x))) {
    typename Kernel::Element element;
    element.start(t, &x);
    store(Kernel::Stages::run(element, t), dst...);
  } else {
    [&]<size_t... k>(std::index_sequence<k...>) {
      double results[sizeof...(k)];
      Kernel::apply(t, &x, results + k...);
      (store(load(results + k), dst), ...);
    }
    (std::index_sequence_for<Destinations...>{});
  }
}

DAKVM_INLINE void put_default_nan(double* number) { put_words(*number, 0xfff80000, 0); }
DAKVM_INLINE void put_default_nan(float* number) { put_word(*number, 0xffc00000); }

template <class Kernel, class Table, class T, class... Destinations>
DAKVM_INLINE Status evaluate(const Table& t, const T* src, Destinations*... dst) {
  if (Bits<T>::read(src).is_infinity()) {
    (put_default_nan(dst), ...);
    return Status::domain;
  }
  const DoublePrecision scope;
  run_kernel<Kernel>(t, src, dst...);
  return Status::ok;
}

// What an entry reports of element i.
template <class T>
DAKVM_INLINE void report(Status element, int32_t i, const T* src, T* dst1, T* dst2, int32_t* status,
                         const char* name) {
  if (element == Status::ok) return;
  frame::gax_error(static_cast<int32_t>(element), i, src, src, dst1, dst2, name);
  *status = static_cast<int32_t>(element);
}

}  // namespace dakvm::scalar

// An entry that applies `kernel` to element i, and the three forms that hand it their own name.
#define DAKVM_SCALAR_ENTRY(linkage, T, entry, form, name, kernel)                         \
  linkage void entry(int32_t i, const T* src, T* dst, int32_t* status, const char* who) { \
    dakvm::scalar::report(kernel(src + i, dst + i), i, src, dst, dst, status, who);       \
  }                                                                                       \
  DAKVM_EXPORT void form##_A11(int32_t i, const T* src, T* dst, int32_t* status) {        \
    entry(i, src, dst, status, name "_A11");                                              \
  }                                                                                       \
  DAKVM_EXPORT void form##_LA(int32_t i, const T* src, T* dst, int32_t* status) {         \
    entry(i, src, dst, status, name "_LA");                                               \
  }                                                                                       \
  DAKVM_EXPORT void form##_HA(int32_t i, const T* src, T* dst, int32_t* status) {         \
    entry(i, src, dst, status, name "_HA");                                               \
  }
