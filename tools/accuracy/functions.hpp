// What can be measured, and what is known about it from mathematics.
#pragma once

#include <mpfr.h>

#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "registry/families.hpp"

namespace dakvm::accuracy {

using registry::Form;
using registry::Type;

// The exact function, to the precision of the result.
using OneInput = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
using TwoInputs = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);

struct Reference {
  std::string_view family;
  OneInput one;
  TwoInputs two;
  OneInput second = nullptr;  // the second result of functions that have two
};

enum class Course { other, rising, falling };  // on each side of a pole at zero
enum class Parity { none, odd, even };

struct Traits {
  std::string_view family;
  // The functions of the C library on double, for exhaustive runs over float. Correct to a relative
  // error of 2^-48; a run checks that on one result in 2^14.
  double (*wide)(double) = nullptr;
  double (*wide_second)(double) = nullptr;
  Course course = Course::other;
  Parity parity = Parity::none, parity_second = Parity::none;
  // The least and the largest result, in double.
  double least = -std::numeric_limits<double>::infinity();
  double largest = std::numeric_limits<double>::infinity();
  // Whether an overflow or an underflow to zero is reported by a status.
  bool overflow = false, underflow = false;
  bool periodic = false;  // measured next to multiples of pi/2 too
};

struct Function {
  std::string name;    // daksExp_64f_A53, gaxdsqrt_scalar
  std::string family;  // Exp, sqrt
  std::string grade;   // A53; "scalar"
  Type type = Type::f64;
  Form form = Form::one_input;
  double low = 0, high = 0;  // ordinary arguments
  const Reference* reference = nullptr;
  const Traits* traits = nullptr;

  bool is_single() const { return type == Type::f32; }
  bool is_vector() const { return grade != "scalar"; }
  int bytes() const { return is_single() ? 4 : 8; }
  int sources() const { return form == Form::one_input || form == Form::two_outputs ? 1 : 2; }
  int destinations() const { return form == Form::two_outputs ? 2 : 1; }
  // The best grade, whose figures hold for the grades that return the same bits.
  bool leads() const { return grade == "A53" || grade == "A24" || !is_vector(); }
};

// All of them, those of a family and type side by side, the best grade first.
const std::vector<Function>& functions();

// The functions a user means by a family ("exp") or a name ("daksExp_64f_A53"), in any case, of
// that type and grade where these are not empty. Throws std::runtime_error if there is none.
std::vector<const Function*> find(const std::string& name, const std::string& type,
                                  const std::string& grade);

// The other functions of its family and type.
std::vector<const Function*> siblings(const Function& function);

// A row of limits.inc. One of no samples says what holds for all arguments, hard ones included.
struct Limit {
  std::string_view function;
  double low, high;
  int samples;
  double ulp;
};

// The rows of a function; a grade that has none of its own has those of the best grade.
std::vector<Limit> limits_of(const Function& function);

// The functions in groups that have the same rows, the best grade first.
std::vector<std::vector<const Function*>> groups(const std::vector<const Function*>& functions);

// The bound that holds for arguments of [low, high]: the least of the rows around it, or, where no
// row covers it, the largest of all rows. Without an interval the largest.
std::optional<double> bound_of(const Function& function);
std::optional<double> bound_of(const Function& function, double low, double high);

}  // namespace dakvm::accuracy
