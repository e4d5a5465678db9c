// What every exported vector function shares: argument checks, the walk, the status, notification.
//
// Method     A kernel is one of two things. A direct kernel handles one element in one go:
//                Status apply(context, const T* src..., T* dst...)
//            stores the results and returns the element's status. A staged kernel adds
//                Element, Stages          one element on its way, and its chain
//                bool is_ordinary(context, Bits<T>...)   from integers alone
//                void Element::start(context, const T* src...)
//            for the elements that the chain can take; its apply is asked for all others.
// Exactness  An observer sees elements done one by one in index order. The chain of a block runs
//            first and touches nothing that is the caller's; then results are stored, and special
//            elements handled, in index order. That is the same thing unless a store reaches a
//            source element that the block has read already: block_length decides that once a call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>

#include "frame/gax_errors.hpp"
#include "frame/pipeline.hpp"
#include "frame/status.hpp"
#include "x87/bits.hpp"
#include "x87/x87.hpp"

namespace dakvm::frame {

using x87::Bits;
using x87::Ext;

constexpr int32_t longest_block = 32;

template <class Kernel>
concept Staged = requires {
  typename Kernel::Element;
  typename Kernel::Stages;
};

// The caller's arrays, in argument order.
template <class T, int sources, int destinations>
struct Arrays {
  const T* src[sources];
  T* dst[destinations];

  DAKVM_INLINE bool any_null() const {
    for (const T* s : src)
      if (s == nullptr) return true;
    for (const T* d : dst)
      if (d == nullptr) return true;
    return false;
  }

  // f(src..., dst...) with pointers to element i.
  template <class F>
  DAKVM_INLINE decltype(auto) at(int32_t i, F&& f) const {
    return [&]<int... s, int... d>(std::integer_sequence<int, s...>,
                                   std::integer_sequence<int, d...>)
        ->decltype(auto) {
      return f(src[s] + i..., dst[d] + i...);
    }
    (std::make_integer_sequence<int, sources>{}, std::make_integer_sequence<int, destinations>{});
  }

  template <class F>
  DAKVM_INLINE decltype(auto) sources_at(int32_t i, F&& f) const {
    return [&]<int... s>(std::integer_sequence<int, s...>)->decltype(auto) {
      return f(src[s] + i...);
    }
    (std::make_integer_sequence<int, sources>{});
  }

  DAKVM_INLINE void store(int32_t i, Ext result) const { dst[0][i] = x87::narrow<T>(result); }
  DAKVM_INLINE void store(int32_t i, const std::pair<Ext, Ext>& results) const {
    dst[0][i] = x87::narrow<T>(results.first);
    dst[1][i] = x87::narrow<T>(results.second);
  }

  // Results that store themselves: bits of theirs are settled behind the rounding.
  template <class Results>
  DAKVM_INLINE void store(int32_t i, const Results& results) const {
    if constexpr (destinations == 1)
      results.store_to(dst[0] + i);
    else
      results.store_to(dst[0] + i, dst[1] + i);
  }

  // A destination that starts less than a block behind a source receives results where elements of
  // the same block are still to be read. One that starts at the source or before it does not.
  DAKVM_INLINE int32_t block_length() const {
    for (const T* s : src)
      for (const T* d : dst) {
        const auto ahead = reinterpret_cast<uintptr_t>(d) - reinterpret_cast<uintptr_t>(s);
        if (ahead != 0 && ahead < longest_block * sizeof(T)) return 1;
      }
    return longest_block;
  }
};

// The status of a call while it runs, and the notification of each exceptional element.
template <class T, class Arrays>
class Report {
 public:
  Report(const Arrays& arrays, const char* name) : arrays_(arrays), name_(name) {}

  [[gnu::cold, gnu::noinline]] void exceptional(int32_t index, Status status) {
    last_ = status;
    gax_error(static_cast<int32_t>(status), index, arrays_.src[0],
              arrays_.src[std::size(arrays_.src) - 1], arrays_.dst[0],
              arrays_.dst[std::size(arrays_.dst) - 1], name_);
  }
  DAKVM_INLINE void note(int32_t index, Status status) {
    if (status != Status::ok) [[unlikely]]
      exceptional(index, status);
  }
  Status last() const { return last_; }

 private:
  const Arrays arrays_;  // a copy, so that the walk's own pointers can live in registers
  const char* name_;
  Status last_ = Status::ok;
};

template <class Kernel, class Context, class Arrays, class Report>
DAKVM_INLINE void walk(const Context& context, const Arrays& arrays, int32_t len, Report& report) {
  for (int32_t i = 0; i < len; ++i)
    report.note(i, arrays.at(i, [&](auto*... p) { return Kernel::apply(context, p...); }));
}

// A block: ordinary elements gathered side by side, special ones remembered by their place.
template <class Kernel, class Context, class Arrays, class Report>
DAKVM_INLINE void run_block(const Context& context, const Arrays& arrays, int32_t first,
                            int32_t length, Report& report) {
  using Stages = typename Kernel::Stages;
  typename Kernel::Element elements[longest_block];
  int32_t special_places[longest_block];
  int32_t ordinary = 0, special = 0;

  for (int32_t i = first; i < first + length; ++i)
    arrays.sources_at(i, [&](auto*... src) {
      if (Kernel::is_ordinary(context, Bits<std::remove_cvref_t<decltype(*src)>>::read(src)...))
          [[likely]]
        elements[ordinary++].start(context, src...);
      else
        special_places[special++] = i;
    });
  x87::settle(elements);
  Stages::advance(elements, ordinary, context);

  int32_t i = first, taken = 0;
  for (int32_t s = 0; s < special; ++s, ++i) {
    for (; i < special_places[s]; ++i) arrays.store(i, Stages::finish(elements[taken++], context));
    report.note(i, arrays.at(i, [&](auto*... p) { return Kernel::apply(context, p...); }));
  }
#pragma GCC unroll 2
  for (; i < first + length; ++i) arrays.store(i, Stages::finish(elements[taken++], context));
}

template <Staged Kernel, class Context, class Arrays, class Report>
DAKVM_INLINE void walk(const Context& context, const Arrays& arrays, int32_t len, Report& report) {
  const int32_t block = arrays.block_length();
  for (int32_t i = 0; i < len; i += block)
    run_block<Kernel>(context, arrays, i, len - i < block ? len - i : block, report);
}

// The grades that share a kernel share its one machine code.
template <class Kernel, class T, int sources, int destinations, class Context>
DAKVM_WHOLE int32_t run(Arrays<T, sources, destinations> arrays, int32_t len,
                        const Context& context, const char* name) {
  if (len < 1) return DAKVM_STATUS_SIZE_ERR;
  if (arrays.any_null()) return DAKVM_STATUS_NULL_PTR_ERR;
  Report<T, Arrays<T, sources, destinations>> report(arrays, name);
  walk<Kernel>(context, arrays, len, report);
  return static_cast<int32_t>(report.last());
}

// The signature forms. A function with a scalar exponent is map with the exponent in the context.
template <class Kernel, class T, class Context>
DAKVM_INLINE int32_t map(const T* src, T* dst, int32_t len, const Context& context,
                         const char* name) {
  return run<Kernel>(Arrays<T, 1, 1>{{src}, {dst}}, len, context, name);
}

template <class Kernel, class T, class Context>
DAKVM_INLINE int32_t map(const T* src1, const T* src2, T* dst, int32_t len, const Context& context,
                         const char* name) {
  return run<Kernel>(Arrays<T, 2, 1>{{src1, src2}, {dst}}, len, context, name);
}

template <class Kernel, class T, class Context>
DAKVM_INLINE int32_t map(const T* src, T* dst1, T* dst2, int32_t len, const Context& context,
                         const char* name) {
  return run<Kernel>(Arrays<T, 1, 2>{{src}, {dst1, dst2}}, len, context, name);
}

}  // namespace dakvm::frame
