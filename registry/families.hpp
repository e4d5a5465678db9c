// The function families as a table, for programs that list functions without calling them.
#pragma once

#include <string_view>

namespace dakvm::registry {

enum class Form { one_input, two_inputs, scalar_exponent, two_outputs };
enum class Type { f64, f32 };

struct Family {
  std::string_view name;
  Form form;
  std::string_view formula;
  std::string_view domain;
  double low, high;  // ordinary arguments

  constexpr int sources() const { return form == Form::two_inputs ? 2 : 1; }
  constexpr int destinations() const { return form == Form::two_outputs ? 2 : 1; }
};

inline const Family families[] = {
#define DAKVM_FAMILY(name, form, formula, domain, low, high) \
  {#name, Form::form, formula, domain, low, high},
#include "registry/families.def"
#undef DAKVM_FAMILY
};

}  // namespace dakvm::registry
