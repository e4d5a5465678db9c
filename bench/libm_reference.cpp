// Compiled once for each way of passing arguments, DAKVM_PASSING.
#include "bench/libm_reference.hpp"

#include <math.h>

#include <type_traits>

namespace dakvm::bench::DAKVM_PASSING {
namespace {

// The libm function `name` of the argument's type.
#define DAKVM_LIBM(name)                                \
  [](auto x, auto... more) {                            \
    if constexpr (std::is_same_v<decltype(x), float>) { \
      return ::name##f(x, more...);                     \
    } else {                                            \
      return ::name(x, more...);                        \
    }                                                   \
  }

// One row for each family. A function of two outputs takes pointers to them behind its argument.
constexpr auto Div = [](auto a, auto b) { return a / b; };
constexpr auto Inv = [](auto x) { return 1 / x; };
constexpr auto Sqrt = DAKVM_LIBM(sqrt);
constexpr auto InvSqrt = [](auto x) { return 1 / Sqrt(x); };
constexpr auto Cbrt = DAKVM_LIBM(cbrt);
constexpr auto InvCbrt = [](auto x) { return 1 / Cbrt(x); };
constexpr auto Exp = DAKVM_LIBM(exp);
constexpr auto Ln = DAKVM_LIBM(log);
constexpr auto Log10 = DAKVM_LIBM(log10);
constexpr auto Pow = DAKVM_LIBM(pow);
constexpr auto Powx = Pow;
constexpr auto Sinh = DAKVM_LIBM(sinh);
constexpr auto Cosh = DAKVM_LIBM(cosh);
constexpr auto Tanh = DAKVM_LIBM(tanh);
constexpr auto Erf = DAKVM_LIBM(erf);
constexpr auto Erfc = DAKVM_LIBM(erfc);
constexpr auto Atan = DAKVM_LIBM(atan);
constexpr auto Atan2 = DAKVM_LIBM(atan2);
constexpr auto Asin = DAKVM_LIBM(asin);
constexpr auto Acos = DAKVM_LIBM(acos);
constexpr auto Atanh = DAKVM_LIBM(atanh);
constexpr auto Asinh = DAKVM_LIBM(asinh);
constexpr auto Acosh = DAKVM_LIBM(acosh);
constexpr auto Sin = DAKVM_LIBM(sin);
constexpr auto Cos = DAKVM_LIBM(cos);
constexpr auto SinCos = DAKVM_LIBM(sincos);
constexpr auto Tan = DAKVM_LIBM(tan);

template <class F, registry::Form form, class T>
void loop(const registry::Operands<T>& o, int32_t len) {
  using enum registry::Form;
  for (int32_t i = 0; i < len; ++i) {
    if constexpr (form == one_input) o.dst1[i] = F{}(o.src1[i]);
    if constexpr (form == two_inputs) o.dst1[i] = F{}(o.src1[i], o.src2[i]);
    if constexpr (form == scalar_exponent) o.dst1[i] = F{}(o.src1[i], o.exponent);
    if constexpr (form == two_outputs) F{}(o.src1[i], o.dst1 + i, o.dst2 + i);
  }
}

constexpr Reference table[] = {
#define DAKVM_FAMILY(name, form, ...)                         \
  {#name, loop<decltype(name), registry::Form::form, double>, \
   loop<decltype(name), registry::Form::form, float>},
#include "registry/families.def"
#undef DAKVM_FAMILY
};

}  // namespace

std::span<const Reference> references() { return table; }

}  // namespace dakvm::bench::DAKVM_PASSING
