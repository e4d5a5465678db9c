// libdakvmpx for C++20: each function family as one overload set over std::span.
//
//   std::vector<double> x = ..., y(x.size());
//   const dakvmpx::Status status = dakvmpx::Exp(std::span<const double>(x), std::span(y));
//   dakvmpx::Exp<dakvmpx::Grade::A50>(std::span<const double>(x), std::span(y));
//
// A function returns what its C namesake in dakvmpx.h returns, which also documents domain, flags,
// overlap and accuracy. Without a grade it is the most accurate one of the element type: A53 for
// double, A24 for float; a grade of the other type does not compile. Spans of different lengths, or
// of length 0, give Status::size_error, and nothing is read or written. Spans longer than 2^31 - 1
// elements are done in parts. No exceptions, no allocation, no state.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

#include "dakvmpx.h"

namespace dakvmpx {

enum class Status : std::int32_t {
  ok = DAKVM_STATUS_OK,
  size_error = DAKVM_STATUS_SIZE_ERR,
  null_pointer = DAKVM_STATUS_NULL_PTR_ERR,
  overflow = DAKVM_STATUS_OVERFLOW,
  underflow = DAKVM_STATUS_UNDERFLOW,
  singularity = DAKVM_STATUS_SINGULARITY,
  domain = DAKVM_STATUS_DOMAIN,
};

enum class Grade { best, A11, A21, A24, A50, A53 };

template <Grade grade>
inline constexpr bool is_double_grade =
    grade == Grade::best || grade == Grade::A50 || grade == Grade::A53;
template <Grade grade>
inline constexpr bool is_float_grade =
    grade == Grade::best || grade == Grade::A11 || grade == Grade::A21 || grade == Grade::A24;

namespace detail {

// Calls `part(first, length)` for parts that an int32_t can count; the last exceptional status is
// that of the whole, as it is within one part.
template <class Part>
Status in_parts(std::size_t length, Part part) noexcept {
  constexpr std::size_t longest = std::numeric_limits<std::int32_t>::max();
  Status last = Status::ok;
  std::size_t first = 0;
  do {
    const std::size_t rest = length - first;
    const std::size_t taken = rest < longest ? rest : longest;
    const auto status = static_cast<Status>(part(first, static_cast<std::int32_t>(taken)));
    if (status != Status::ok) last = status;
    first += taken;
  } while (first < length);
  return last;
}

}  // namespace detail

// The overload set of one family: `parameters` as they are declared, `sizes` whether they agree,
// `arguments` what the C function takes for the part [i, i + n).
#define DAKVMPX_OVERLOADS(Func, T, is_grade, choose, parameters, sizes, ...)                      \
  template <Grade grade = Grade::best>                                                            \
  requires(is_grade<grade>) [[nodiscard]] Status Func parameters noexcept {                       \
    if (!(sizes)) return Status::size_error;                                                      \
    return detail::in_parts(                                                                      \
        dst.size(), [&](std::size_t i, std::int32_t n) { return choose(Func)(__VA_ARGS__, n); }); \
  }

#define DAKVMPX_64F(Func) (grade == Grade::A50 ? daks##Func##_64f_A50 : daks##Func##_64f_A53)
#define DAKVMPX_32F(Func)                       \
  (grade == Grade::A11   ? daks##Func##_32f_A11 \
   : grade == Grade::A21 ? daks##Func##_32f_A21 \
                         : daks##Func##_32f_A24)

#define DAKVMPX_BOTH_TYPES(form, Func) \
  form(Func, double, is_double_grade, DAKVMPX_64F) form(Func, float, is_float_grade, DAKVMPX_32F)

#define DAKVMPX_ONE_INPUT(Func, T, is_grade, choose)                                       \
  DAKVMPX_OVERLOADS(Func, T, is_grade, choose, (std::span<const T> src, std::span<T> dst), \
                    src.size() == dst.size(), src.data() + i, dst.data() + i)
#define DAKVMPX_TWO_INPUTS(Func, T, is_grade, choose)                                        \
  DAKVMPX_OVERLOADS(Func, T, is_grade, choose,                                               \
                    (std::span<const T> src1, std::span<const T> src2, std::span<T> dst),    \
                    src1.size() == dst.size() && src2.size() == dst.size(), src1.data() + i, \
                    src2.data() + i, dst.data() + i)
#define DAKVMPX_SCALAR_EXPONENT(Func, T, is_grade, choose)                  \
  DAKVMPX_OVERLOADS(Func, T, is_grade, choose,                              \
                    (std::span<const T> src, T exponent, std::span<T> dst), \
                    src.size() == dst.size(), src.data() + i, exponent, dst.data() + i)
#define DAKVMPX_TWO_OUTPUTS(Func, T, is_grade, choose)                                     \
  DAKVMPX_OVERLOADS(Func, T, is_grade, choose,                                             \
                    (std::span<const T> src, std::span<T> dst, std::span<T> dst2),         \
                    src.size() == dst.size() && dst2.size() == dst.size(), src.data() + i, \
                    dst.data() + i, dst2.data() + i)

DAKVMPX_BOTH_TYPES(DAKVMPX_TWO_INPUTS, Div)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Inv)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Sqrt)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, InvSqrt)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Cbrt)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, InvCbrt)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Exp)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Ln)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Log10)
DAKVMPX_BOTH_TYPES(DAKVMPX_TWO_INPUTS, Pow)
DAKVMPX_BOTH_TYPES(DAKVMPX_SCALAR_EXPONENT, Powx)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Sinh)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Cosh)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Tanh)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Erf)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Erfc)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Atan)
DAKVMPX_BOTH_TYPES(DAKVMPX_TWO_INPUTS, Atan2)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Asin)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Acos)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Atanh)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Asinh)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Acosh)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Sin)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Cos)
DAKVMPX_BOTH_TYPES(DAKVMPX_TWO_OUTPUTS, SinCos)
DAKVMPX_BOTH_TYPES(DAKVMPX_ONE_INPUT, Tan)

#undef DAKVMPX_TWO_OUTPUTS
#undef DAKVMPX_SCALAR_EXPONENT
#undef DAKVMPX_TWO_INPUTS
#undef DAKVMPX_ONE_INPUT
#undef DAKVMPX_BOTH_TYPES
#undef DAKVMPX_32F
#undef DAKVMPX_64F
#undef DAKVMPX_OVERLOADS

}  // namespace dakvmpx
