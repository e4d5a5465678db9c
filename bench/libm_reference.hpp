// Scalar loops over the system's libm, what an application without the library would run.
#pragma once

#include <span>
#include <string_view>

#include "registry/registry.hpp"

namespace dakvm::bench {

template <class T>
using Loop = void (*)(const registry::Operands<T>&, int32_t len);

struct Reference {
  std::string_view family;
  Loop<double> f64;
  Loop<float> f32;
};

// In the order of the families.
namespace plain {
std::span<const Reference> references();
}
namespace stored {  // arguments reach the functions by one store
std::span<const Reference> references();
}

}  // namespace dakvm::bench
