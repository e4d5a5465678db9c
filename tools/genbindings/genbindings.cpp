// Prints what the bindings to other languages say about each function, from the registry:
//   genbindings fortran    bindings/fortran/dakvmpx.f90
//   genbindings python     bindings/python/dakvmpx/_functions.py
#include <cctype>
#include <cstdio>
#include <cstring>
#include <string>

#include "registry/registry.hpp"

namespace {

using namespace dakvm::registry;

// InvSqrt -> inv_sqrt, SinCos -> sin_cos, Atan2 -> atan2.
std::string snake_case(std::string_view name) {
  std::string result;
  for (const char c : name) {
    const bool upper = std::isupper(static_cast<unsigned char>(c)) != 0;
    if (upper && !result.empty()) result += '_';
    result += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return result;
}

const char* form_name(Form form) {
  switch (form) {
    case Form::one_input:
      return "one_input";
    case Form::two_inputs:
      return "two_inputs";
    case Form::scalar_exponent:
      return "scalar_exponent";
    case Form::two_outputs:
      return "two_outputs";
  }
  return "";
}

void print_python() {
  std::puts("# Printed by `genbindings python`; do not edit.");
  std::puts("# name: (family of the C functions, form, formula, domain)");
  std::puts("FAMILIES = {");
  for (const Family& f : families)
    std::printf(
        "    \"%s\": (\n        \"%.*s\",\n        \"%s\",\n        \"%.*s\",\n        \"%.*s\",\n "
        "   ),\n",
        snake_case(f.name).c_str(), int(f.name.size()), f.name.data(), form_name(f.form),
        int(f.formula.size()), f.formula.data(), int(f.domain.size()), f.domain.data());
  std::puts("}");
}

// Declarations of the arguments of a form, in the order of the C function.
struct Arguments {
  const char* names;
  const char* inputs;
  const char* outputs;
};
Arguments arguments_of(Form form) {
  switch (form) {
    case Form::one_input:
    case Form::scalar_exponent:
      return {form == Form::one_input ? "src, dst, len" : "src, exponent, dst, len", "src(*)",
              "dst(*)"};
    case Form::two_inputs:
      return {"src1, src2, dst, len", "src1(*), src2(*)", "dst(*)"};
    case Form::two_outputs:
      return {"src, dst1, dst2, len", "src(*)", "dst1(*), dst2(*)"};
  }
  return {};
}

void print_fortran() {
  std::puts(R"(! libdakvmpx for Fortran 2003. Printed by `genbindings fortran`; do not edit.
!
! Each function has the name and arguments of its C namesake, which dakvmpx.h documents, and returns
! the status. The generic name of a family (daksExp) is its most accurate grade: A53 for
! real(c_double), A24 for real(c_float). Arrays are contiguous and hold len elements.
module dakvmpx
  use, intrinsic :: iso_c_binding, only: c_int32_t, c_double, c_float
  implicit none
  private

  integer(c_int32_t), parameter, public :: dakvm_status_ok = 0
  integer(c_int32_t), parameter, public :: dakvm_status_size_err = -6
  integer(c_int32_t), parameter, public :: dakvm_status_null_ptr_err = -8
  integer(c_int32_t), parameter, public :: dakvm_status_overflow = 12
  integer(c_int32_t), parameter, public :: dakvm_status_underflow = 17
  integer(c_int32_t), parameter, public :: dakvm_status_singularity = 18
  integer(c_int32_t), parameter, public :: dakvm_status_domain = 19
)");
  static_assert(DAKVM_STATUS_SIZE_ERR == -6 && DAKVM_STATUS_NULL_PTR_ERR == -8 &&
                DAKVM_STATUS_OVERFLOW == 12 && DAKVM_STATUS_UNDERFLOW == 17 &&
                DAKVM_STATUS_SINGULARITY == 18 && DAKVM_STATUS_DOMAIN == 19);
  for (const Function& f : functions) std::printf("  public :: %s\n", std::string(f.name).c_str());
  std::puts("");
  for (const Family& f : families) {
    const std::string generic = "daks" + std::string(f.name);
    std::printf(
        "  ! %.*s\n  public :: %s\n  interface %s\n    procedure :: %s_64f_A53, %s_32f_A24\n"
        "  end interface\n",
        int(f.formula.size()), f.formula.data(), generic.c_str(), generic.c_str(), generic.c_str(),
        generic.c_str());
  }
  std::puts("\n  interface");
  for (const Function& f : functions) {
    const Arguments a = arguments_of(f.family.form);
    const std::string name(f.name);
    const char* kind = f.type == Type::f64 ? "c_double" : "c_float";
    std::printf(
        "    function %s(%s) result(status) bind(c, name=\"%s\")\n"
        "      import :: c_int32_t, %s\n"
        "      real(%s), intent(in) :: %s\n",
        name.c_str(), a.names, name.c_str(), kind, kind, a.inputs);
    if (f.family.form == Form::scalar_exponent)
      std::printf("      real(%s), value :: exponent\n", kind);
    std::printf(
        "      real(%s), intent(inout) :: %s\n"
        "      integer(c_int32_t), value :: len\n"
        "      integer(c_int32_t) :: status\n"
        "    end function\n",
        kind, a.outputs);
  }
  std::puts("  end interface\nend module dakvmpx");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "python") == 0) {
    print_python();
  } else if (argc == 2 && std::strcmp(argv[1], "fortran") == 0) {
    print_fortran();
  } else {
    std::fputs("usage: genbindings fortran|python\n", stderr);
    return 2;
  }
}
