// 1 / x for one element: one division.
//
// Special    Zero is a singularity; the division gives its infinity. Everything else is ordinary.
#pragma once

#include "frame/frame.hpp"

namespace dakvm::inv {
using namespace x87;

template <class T>
struct Table {
  T one;
};

template <class T>
struct Kernel {
  DAKVM_INLINE static Status apply(const Table<T>& t, const T* x, T* r) {
    const bool singular = Bits<T>::read(x).is_zero();
    *r = narrow<T>(Ext{t.one} / *x);
    return singular ? Status::singularity : Status::ok;
  }
};

}  // namespace dakvm::inv
