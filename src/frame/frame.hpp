// What every exported vector function shares: argument checks, the walk, the status, notification.
//
// Method     A kernel is one of two things. A direct kernel handles one element in one go:
//                Status apply(context, const T* src..., T* dst...)
//            stores the results and returns the element's status. A staged kernel adds
//                Element, Stages          one element on its way, and its chain
//                bool is_ordinary(context, Bits<T>...)   from integers alone
//                void Element::start(context, const T* src...)
//            for the elements that the chain can take; its apply is asked for all others.
//            A kernel whose arguments take different ways has several chains, and in place of
//            Element, Stages and is_ordinary
//                Chains                   a Chains<Chain<Element, Stages>...>
//                int32_t chain_of(context, Bits<T>...)   a chain's number, or Chains::count
//            A mixed array costs no mispredicted branch if chain_of has none.
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
// Chains share a block; the loops of its stages end at unforeseeable counts, each at the cost of a
// misprediction. More elements make that rare.
constexpr int32_t longest_forked_block = 128;

template <class Kernel>
concept Staged = requires {
  typename Kernel::Element;
  typename Kernel::Stages;
};

template <class ElementType, class StagesType>
struct Chain {
  using Element = ElementType;
  using Stages = StagesType;
};
template <class... Chain>
struct Chains {
  static constexpr int32_t count = sizeof...(Chain);
};
template <class Kernel>
concept Forked = requires {
  typename Kernel::Chains;
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
  DAKVM_INLINE int32_t block_length(int32_t longest) const {
    for (const T* s : src)
      for (const T* d : dst) {
        const auto ahead = reinterpret_cast<uintptr_t>(d) - reinterpret_cast<uintptr_t>(s);
        if (ahead != 0 && ahead < static_cast<uintptr_t>(longest) * sizeof(T)) return 1;
      }
    return longest;
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

// The stores and special elements of a block in index order; `store(i)` stores an ordinary one.
template <class Kernel, class Context, class Arrays, class Report, class Store>
DAKVM_INLINE void complete(const Context& context, const Arrays& arrays, int32_t first,
                           int32_t length, const int32_t* special_places, int32_t special,
                           Report& report, Store&& store) {
  int32_t i = first;
  for (int32_t s = 0; s < special; ++s, ++i) {
    for (; i < special_places[s]; ++i) store(i);
    report.note(i, arrays.at(i, [&](auto*... p) { return Kernel::apply(context, p...); }));
  }
#pragma GCC unroll 2
  for (; i < first + length; ++i) store(i);
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

  int32_t taken = 0;
  complete<Kernel>(context, arrays, first, length, special_places, special, report,
                   [&](int32_t i) { arrays.store(i, Stages::finish(elements[taken++], context)); });
}

template <Staged Kernel, class Context, class Arrays, class Report>
DAKVM_INLINE void walk(const Context& context, const Arrays& arrays, int32_t len, Report& report) {
  const int32_t block = arrays.block_length(longest_block);
  for (int32_t i = 0; i < len; i += block)
    run_block<Kernel>(context, arrays, i, len - i < block ? len - i : block, report);
}

// The elements of a block that take one chain, by their places; results[i] is for place first + i.
template <class Chain, class Context, class Arrays, class T>
DAKVM_INLINE void run_chain(const Context& context, const Arrays& arrays, const int32_t* places,
                            int32_t count, int32_t first, T* results) {
  typename Chain::Element elements[longest_forked_block];
  for (int32_t k = 0; k < count; ++k)
    arrays.sources_at(places[k], [&](auto*... src) { elements[k].start(context, src...); });
  x87::settle(elements);
  Chain::Stages::advance(elements, count, context);
#pragma GCC unroll 2
  for (int32_t k = 0; k < count; ++k)
    results[places[k] - first] = x87::narrow<T>(Chain::Stages::finish(elements[k], context));
}

template <class Kernel, class... Chain, class Context, class T, int sources, class Report>
DAKVM_INLINE void run_forked_block(Chains<Chain...>, const Context& context,
                                   const Arrays<T, sources, 1>& arrays, int32_t first,
                                   int32_t length, Report& report) {
  constexpr int32_t ways = sizeof...(Chain) + 1;
  int32_t places[ways][longest_forked_block];
  int32_t counts[ways] = {};
  T results[longest_forked_block];

  for (int32_t i = first; i < first + length; ++i) {
    const int32_t taken = arrays.sources_at(
        i, [&](auto*... src) { return Kernel::chain_of(context, Bits<T>::read(src)...); });
    [&]<int32_t... way>(std::integer_sequence<int32_t, way...>) {
      ((places[way][counts[way]] = i, counts[way] += taken == way), ...);
    }
    (std::make_integer_sequence<int32_t, ways>{});
  }
  int32_t way = 0;
  ((run_chain<Chain>(context, arrays, places[way], counts[way], first, results), ++way), ...);
  complete<Kernel>(context, arrays, first, length, places[way], counts[way], report,
                   [&](int32_t i) { arrays.store(i, Ext{results[i - first]}); });
}

template <Forked Kernel, class Context, class Arrays, class Report>
DAKVM_INLINE void walk(const Context& context, const Arrays& arrays, int32_t len, Report& report) {
  const int32_t block = arrays.block_length(longest_forked_block);
  for (int32_t i = 0; i < len; i += block)
    run_forked_block<Kernel>(typename Kernel::Chains{}, context, arrays, i,
                             len - i < block ? len - i : block, report);
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
