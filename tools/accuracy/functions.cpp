#include "functions.hpp"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace dakvm::accuracy {
namespace {

int reciprocal(mpfr_ptr result, mpfr_srcptr x, mpfr_rnd_t rounding) {
  return mpfr_ui_div(result, 1, x, rounding);
}

// One rounding more, of a root with 64 bits in reserve.
int reciprocal_cube_root(mpfr_ptr result, mpfr_srcptr x, mpfr_rnd_t rounding) {
  mpfr_t root;
  mpfr_init2(root, mpfr_get_prec(result) + 64);
  mpfr_cbrt(root, x, MPFR_RNDN);
  const int direction = mpfr_ui_div(result, 1, root, rounding);
  mpfr_clear(root);
  return direction;
}

constexpr Reference references[] = {
#include "references.inc"
};

double reciprocal_of(double x) { return 1 / x; }
double reciprocal_root_of(double x) { return 1 / std::sqrt(x); }
double reciprocal_cube_root_of(double x) { return 1 / std::cbrt(x); }

constexpr double half_pi = 0x1.921fb54442d18p+0, pi = 0x1.921fb54442d18p+1;

const Traits all_traits[] = {
#include "traits.inc"
};

constexpr Limit limits[] = {
#include "tests/accuracy/limits.inc"
};

template <class Row>
const Row& row_of(const Row* begin, const Row* end, const std::string& family) {
  const Row* row = std::find_if(begin, end, [&](const Row& r) { return r.family == family; });
  if (row == end) throw std::runtime_error("no reference for the family " + family);
  return *row;
}

void attach(Function& function) {
  function.reference = &row_of(std::begin(references), std::end(references), function.family);
  function.traits = &row_of(std::begin(all_traits), std::end(all_traits), function.family);
}

std::vector<Function> all_functions() {
  struct Grade {
    const char* name;
    Type type;
    const char* suffix;
  };
  constexpr Grade grades[] = {{"A53", Type::f64, "_64f_"},
                              {"A50", Type::f64, "_64f_"},
                              {"A24", Type::f32, "_32f_"},
                              {"A21", Type::f32, "_32f_"},
                              {"A11", Type::f32, "_32f_"}};
  std::vector<Function> all;
  for (const auto& family : registry::families)
    for (const Grade& grade : grades) {
      Function f;
      f.family = family.name;
      f.grade = grade.name;
      f.name = "daks" + f.family + grade.suffix + f.grade;
      f.type = grade.type;
      f.form = family.form;
      f.low = family.low;
      f.high = family.high;
      attach(f);
      all.push_back(f);
    }
  // The scalars are those that limits.inc names: gaxdsqrt_scalar, gaxdSinCos_SC_HA.
  for (const Limit& limit : limits) {
    const std::string name(limit.function);
    if (!name.starts_with("gax") || (!all.empty() && all.back().name == name)) continue;
    Function f;
    f.name = name;
    f.family = name.substr(4, name.find('_') - 4);
    f.grade = "scalar";
    f.type = name[3] == 'd' ? Type::f64 : Type::f32;
    f.low = limit.low;
    f.high = limit.high;
    attach(f);
    if (f.reference->two != nullptr) f.form = Form::two_inputs;
    if (f.reference->second != nullptr) f.form = Form::two_outputs;
    all.push_back(f);
  }
  return all;
}

std::string lower(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c += 'a' - 'A';
  return text;
}

}  // namespace

const std::vector<Function>& functions() {
  static const std::vector<Function> all = all_functions();
  return all;
}

std::vector<const Function*> find(const std::string& name, const std::string& type,
                                  const std::string& grade) {
  const std::string key = lower(name);
  std::vector<const Function*> found;
  bool known = false;
  for (const Function& f : functions()) {
    if (lower(f.name) != key && !(f.is_vector() && lower(f.family) == key)) continue;
    known = true;
    if ((type.empty() || type == (f.is_single() ? "32f" : "64f")) &&
        (grade.empty() || lower(grade) == lower(f.grade)))
      found.push_back(&f);
  }
  if (!known)
    throw std::runtime_error("there is no function '" + name + "' (dakvm-accuracy list shows all)");
  if (found.empty()) throw std::runtime_error(name + " has no function of that type and grade");
  return found;
}

std::vector<const Function*> siblings(const Function& function) {
  std::vector<const Function*> found;
  for (const Function& f : functions())
    if (f.family == function.family && f.type == function.type && f.is_vector() &&
        function.is_vector() && f.name != function.name)
      found.push_back(&f);
  return found;
}

namespace {

std::vector<Limit> rows_named(const std::string& name) {
  std::vector<Limit> rows;
  for (const Limit& limit : limits)
    if (limit.function == name) rows.push_back(limit);
  return rows;
}

// Whose rows are the function's.
const Function& owner_of_limits(const Function& function) {
  if (rows_named(function.name).empty())
    for (const Function* sibling : siblings(function))
      if (sibling->leads()) return *sibling;
  return function;
}

}  // namespace

std::vector<Limit> limits_of(const Function& function) {
  return rows_named(owner_of_limits(function).name);
}

std::vector<std::vector<const Function*>> groups(const std::vector<const Function*>& functions) {
  std::vector<std::vector<const Function*>> found;
  for (const Function* f : functions) {
    const auto group = std::find_if(found.begin(), found.end(), [&](const auto& g) {
      return owner_of_limits(*g[0]).name == owner_of_limits(*f).name;
    });
    if (group == found.end())
      found.push_back({f});
    else
      group->push_back(f);
  }
  return found;
}

std::optional<double> bound_of(const Function& function) {
  std::optional<double> bound;
  for (const Limit& row : limits_of(function)) bound = std::max(bound.value_or(0), row.ulp);
  return bound;
}

std::optional<double> bound_of(const Function& function, double low, double high) {
  std::optional<double> inside;
  for (const Limit& row : limits_of(function))
    if (row.low <= low && high <= row.high) inside = std::min(inside.value_or(row.ulp), row.ulp);
  return inside ? inside : bound_of(function);
}

}  // namespace dakvm::accuracy
