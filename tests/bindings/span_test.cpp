// The C++ header against the C functions, for every family, type and grade.
#include <gtest/gtest.h>

#include <cstring>
#include <dakvmpx.hpp>
#include <functional>
#include <vector>

#include "registry/registry.hpp"

namespace {

using dakvmpx::Grade;
using dakvmpx::Status;

template <class T>
struct Buffers {
  std::vector<T> src1{T(0.25), T(0.5), T(-0.75), T(1)};
  std::vector<T> src2{T(0.5), T(2), T(1), T(0)};
  std::vector<T> dst1 = std::vector<T>(4), dst2 = std::vector<T>(4);
};

template <class T>
using Call = std::function<Status(Buffers<T>&, size_t)>;

// Calls of `length` elements of the overload that the form has.
#define DAKVM_ARGUMENTS_one_input std::span<const T>(b.src1), std::span<T>(b.dst1).first(length)
#define DAKVM_ARGUMENTS_two_inputs \
  std::span<const T>(b.src1), std::span<const T>(b.src2), std::span<T>(b.dst1).first(length)
#define DAKVM_ARGUMENTS_scalar_exponent \
  std::span<const T>(b.src1), T(0.75), std::span<T>(b.dst1).first(length)
#define DAKVM_ARGUMENTS_two_outputs \
  std::span<const T>(b.src1), std::span<T>(b.dst1).first(length), std::span<T>(b.dst2).first(length)

template <class T, Grade grade>
Call<T> overload(std::string_view family) {
#define DAKVM_FAMILY(name, form, ...) \
  if (family == #name)                \
    return                            \
        [](Buffers<T>& b, size_t length) { return dakvmpx::name<grade>(DAKVM_ARGUMENTS_##form); };
#include "registry/families.def"
#undef DAKVM_FAMILY
  return {};
}

template <class T>
Call<T> overload(std::string_view family, std::string_view grade) {
  if constexpr (std::is_same_v<T, double>) {
    return grade == "A50" ? overload<T, Grade::A50>(family) : overload<T, Grade::A53>(family);
  } else {
    if (grade == "A11") return overload<T, Grade::A11>(family);
    return grade == "A21" ? overload<T, Grade::A21>(family) : overload<T, Grade::A24>(family);
  }
}

template <class T>
void expect_same_as_c(const dakvm::registry::Function& function) {
  const Call<T> call = overload<T>(function.family.name, function.grade);
  Buffers<T> ours, expected;
  const Status status = call(ours, 4);
  EXPECT_EQ(
      static_cast<int32_t>(status),
      function(dakvm::registry::Operands<T>{expected.src1.data(), expected.src2.data(),
                                            expected.dst1.data(), expected.dst2.data(), T(0.75)},
               4));
  EXPECT_EQ(std::memcmp(ours.dst1.data(), expected.dst1.data(), 4 * sizeof(T)), 0);
  EXPECT_EQ(std::memcmp(ours.dst2.data(), expected.dst2.data(), 4 * sizeof(T)), 0);

  Buffers<T> untouched;
  EXPECT_EQ(call(untouched, 3), Status::size_error);
  EXPECT_EQ(untouched.dst1, std::vector<T>(4));
}

TEST(Span, EveryOverloadIsItsCFunction) {
  for (const auto& function : dakvm::registry::functions) {
    SCOPED_TRACE(function.name);
    if (function.type == dakvm::registry::Type::f64)
      expect_same_as_c<double>(function);
    else
      expect_same_as_c<float>(function);
  }
}

TEST(Span, EmptySpansAreASizeError) {
  EXPECT_EQ(dakvmpx::Exp(std::span<const double>(), std::span<double>()), Status::size_error);
}

TEST(Span, LongSpansAreDoneInParts) {
  constexpr size_t longest = 0x7fffffff;
  if constexpr (sizeof(size_t) == 8) {
    std::vector<std::pair<size_t, int32_t>> parts;
    const Status status = dakvmpx::detail::in_parts(2 * longest + 5, [&](size_t i, int32_t n) {
      parts.emplace_back(i, n);
      return i == longest ? 19 : 0;
    });
    EXPECT_EQ(status, Status::domain);
    const std::vector<std::pair<size_t, int32_t>> expected = {
        {0, longest}, {longest, longest}, {2 * longest, 5}};
    EXPECT_EQ(parts, expected);
  }
}

}  // namespace
