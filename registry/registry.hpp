// All vector functions of the library as one table, with one way to call each of them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <variant>

#include "dakvmpx.h"
#include "registry/families.hpp"

namespace dakvm::registry {

// What a call needs; members that the form does not have are ignored.
template <class T>
struct Operands {
  const T* src1 = nullptr;
  const T* src2 = nullptr;
  T* dst1 = nullptr;
  T* dst2 = nullptr;
  T exponent = 0;
};

template <class T>
using OneInput = int32_t (*)(const T*, T*, int32_t);
template <class T>
using TwoInputs = int32_t (*)(const T*, const T*, T*, int32_t);
template <class T>
using ScalarExponent = int32_t (*)(const T*, T, T*, int32_t);
template <class T>
using TwoOutputs = int32_t (*)(const T*, T*, T*, int32_t);

template <class T>
int32_t invoke(OneInput<T> f, const Operands<T>& o, int32_t len) {
  return f(o.src1, o.dst1, len);
}
template <class T>
int32_t invoke(TwoInputs<T> f, const Operands<T>& o, int32_t len) {
  return f(o.src1, o.src2, o.dst1, len);
}
template <class T>
int32_t invoke(ScalarExponent<T> f, const Operands<T>& o, int32_t len) {
  return f(o.src1, o.exponent, o.dst1, len);
}
template <class T>
int32_t invoke(TwoOutputs<T> f, const Operands<T>& o, int32_t len) {
  return f(o.src1, o.dst1, o.dst2, len);
}

template <class T>
using Entry = std::variant<OneInput<T>, TwoInputs<T>, ScalarExponent<T>, TwoOutputs<T>>;

// One exported vector function.
struct Function {
  Family family;
  Type type;
  std::string_view grade;  // "A53"
  std::string_view name;   // "daksExp_64f_A53"
  std::variant<Entry<double>, Entry<float>> entry;

  constexpr std::string_view type_name() const { return type == Type::f64 ? "64f" : "32f"; }

  // T is the element type of `type`; another one throws std::bad_variant_access.
  template <class T>
  int32_t operator()(const Operands<T>& operands, int32_t len) const {
    return std::visit([&](auto f) { return invoke<T>(f, operands, len); },
                      std::get<Entry<T>>(entry));
  }
};

// The five functions of each family, in the order of the families.
inline const auto functions = std::to_array<Function>({
#define DAKVM_FUNCTION(fam, form, formula, domain, low, high, type, T, suffix, grade) \
  {{#fam, Form::form, formula, domain, low, high},                                    \
   Type::type,                                                                        \
   #grade,                                                                            \
   "daks" #fam "_" #suffix "_" #grade,                                                \
   Entry<T>{&daks##fam##_##suffix##_##grade}},
#define DAKVM_FAMILY(fam, form, formula, domain, low, high)                    \
  DAKVM_FUNCTION(fam, form, formula, domain, low, high, f64, double, 64f, A50) \
  DAKVM_FUNCTION(fam, form, formula, domain, low, high, f64, double, 64f, A53) \
  DAKVM_FUNCTION(fam, form, formula, domain, low, high, f32, float, 32f, A11)  \
  DAKVM_FUNCTION(fam, form, formula, domain, low, high, f32, float, 32f, A21)  \
  DAKVM_FUNCTION(fam, form, formula, domain, low, high, f32, float, 32f, A24)
#include "registry/families.def"
#undef DAKVM_FAMILY
#undef DAKVM_FUNCTION
});

// The function of that family, type and grade, or null.
inline const Function* find(std::string_view family, Type type, std::string_view grade) {
  for (const Function& f : functions)
    if (f.family.name == family && f.type == type && f.grade == grade) return &f;
  return nullptr;
}

}  // namespace dakvm::registry
