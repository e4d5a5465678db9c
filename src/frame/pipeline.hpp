// A kernel as a chain of stages, run over many elements stage by stage.
//
// An x87 kernel is one long chain of dependent operations, and the processor's window is too short
// to overlap the chains of neighbouring elements by itself. Run over a block, each stage is a short
// loop of independent operations, and a value rounded to memory in one stage is loaded in the next,
// long after its store. Measured: bench/README.md.
#pragma once

#include <type_traits>

#include "x87/x87.hpp"

namespace dakvm::frame {

// A stage that the element's base class has is called on that base: a pointer to a member of a base
// applied to the element itself makes g++ 12 warn of aliasing that is not there.
template <class Base, class Result, class Context>
DAKVM_INLINE Result call(Result (Base::*stage)(const Context&), std::type_identity_t<Base>& element,
                         const Context& context) {
  return (element.*stage)(context);
}
template <class Base, class Result, class Context>
DAKVM_INLINE Result call(Result (Base::*stage)(const Context&) const,
                         const std::type_identity_t<Base>& element, const Context& context) {
  return (element.*stage)(context);
}

// Each stage is a member function of the element type, taking the kernel's context. The last one
// is const and returns what the caller stores: Ext, or a pair of them. A step that few elements
// need may be a function of the whole block, f(Element*, int32_t count), in the place of a stage.
template <auto... stages>
struct Pipeline;

template <auto last>
struct Pipeline<last> {
  template <class Element, class Context>
  DAKVM_INLINE static void advance(Element*, int32_t, const Context&) {}

  template <class Element, class Context>
  DAKVM_INLINE static auto finish(const Element& element, const Context& context) {
    return call(last, element, context);
  }
};

template <auto stage, auto next, auto... rest>
struct Pipeline<stage, next, rest...> {
  // Every stage but the last, over `count` elements.
  template <class Element, class Context>
  DAKVM_INLINE static void advance(Element* elements, int32_t count, const Context& context) {
    if constexpr (std::is_member_function_pointer_v<decltype(stage)>) {
#pragma GCC unroll 2
      for (int32_t k = 0; k < count; ++k) call(stage, elements[k], context);
    } else {
      stage(elements, count);
    }
    x87::settle(elements);
    Pipeline<next, rest...>::advance(elements, count, context);
  }

  template <class Element, class Context>
  DAKVM_INLINE static auto finish(const Element& element, const Context& context) {
    return Pipeline<next, rest...>::finish(element, context);
  }

  // The whole chain for one element that is not in a block.
  template <class Element, class Context>
  DAKVM_INLINE static auto run(Element& element, const Context& context) {
    x87::settle(&element);
    advance(&element, 1, context);
    return finish(element, context);
  }
};

}  // namespace dakvm::frame
