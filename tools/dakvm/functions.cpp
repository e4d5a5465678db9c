#include "functions.hpp"

#include <algorithm>
#include <cstdio>
#include <numeric>
#include <utility>
#include <vector>

#include "error.hpp"
#include "text.hpp"

namespace dakvm::tool {
namespace {

using registry::Form;
using registry::Function;
using registry::Type;

std::string lower(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    if (c >= 'A' && c <= 'Z') c += 'a' - 'A';
  return result;
}

bool same(std::string_view a, std::string_view b) { return lower(a) == lower(b); }

size_t edit_distance(std::string_view a, std::string_view b) {
  std::vector<size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), size_t{0});
  for (size_t i = 0; i < a.size(); ++i) {
    size_t diagonal = std::exchange(row[0], i + 1);
    for (size_t j = 0; j < b.size(); ++j) {
      const size_t replaced = diagonal + (a[i] != b[j]);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
    }
  }
  return row[b.size()];
}

// The names nearest to `wanted`, of exported functions if it looks like one, else of families.
std::string nearest_names(const std::string& wanted) {
  std::vector<std::pair<size_t, std::string>> candidates;
  const std::string key = lower(wanted);
  if (key.starts_with("daks")) {
    for (const Function& f : registry::functions)
      candidates.emplace_back(edit_distance(key, lower(f.name)), f.name);
  } else {
    for (const registry::Family& f : registry::families)
      candidates.emplace_back(edit_distance(key, lower(f.name)), f.name);
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::string result;
  for (size_t k = 0; k < std::min<size_t>(3, candidates.size()); ++k)
    result += (k == 0 ? "" : ", ") + candidates[k].second;
  return result;
}

std::string grades_of(const registry::Family& family, Type type) {
  std::string result;
  for (const Function& f : registry::functions)
    if (f.family.name == family.name && f.type == type)
      result += (result.empty() ? "" : ", ") + std::string(f.grade);
  return result;
}

const char* form_name(Form form) {
  switch (form) {
    case Form::one_input:
      return "one input";
    case Form::two_inputs:
      return "two inputs";
    case Form::scalar_exponent:
      return "one input, --exponent";
    case Form::two_outputs:
      return "one input, two outputs";
  }
  return "";
}

}  // namespace

const Function& find_function(const std::string& name, const std::string& type,
                              const std::string& grade) {
  for (const Function& f : registry::functions) {
    if (!same(f.name, name)) continue;
    if ((!type.empty() && !same(type, f.type_name())) || (!grade.empty() && !same(grade, f.grade)))
      throw Error(Exit::usage, std::string(f.name) + " is of type " + std::string(f.type_name()) +
                                   " and grade " + std::string(f.grade) +
                                   "; leave --type and --grade away, or give the family " +
                                   std::string(f.family.name));
    return f;
  }
  for (const registry::Family& family : registry::families) {
    if (!same(family.name, name)) continue;
    const Type wanted = same(type, "32f") ? Type::f32 : Type::f64;
    const std::string level = !grade.empty() ? grade : wanted == Type::f64 ? "A53" : "A24";
    for (const Function& f : registry::functions)
      if (f.family.name == family.name && f.type == wanted && same(f.grade, level)) return f;
    throw Error(Exit::usage, "grade " + excerpt(level) + " does not exist for type " +
                                 (wanted == Type::f64 ? "64f" : "32f") + "; type 64f has " +
                                 grades_of(family, Type::f64) + ", type 32f has " +
                                 grades_of(family, Type::f32));
  }
  throw Error(Exit::unknown_function, "there is no function " + excerpt(name) +
                                          "; nearest names: " + nearest_names(name) +
                                          " (dakvm list shows all)");
}

std::string list_text() {
  std::string text;
  char line[256];
  const char* const layout = "%-10.*s %-22s %-16.*s %.*s\n";
  const auto add = [&](std::string_view name, const char* form, std::string_view formula,
                       std::string_view domain) {
    std::snprintf(line, sizeof line, layout, int(name.size()), name.data(), form,
                  int(formula.size()), formula.data(), int(domain.size()), domain.data());
    text += line;
  };
  add("FUNCTION", "FORM", "FORMULA", "DOMAIN");
  for (const registry::Family& f : registry::families)
    add(f.name, form_name(f.form), f.formula, f.domain);
  text += "\nTypes and grades of each: 64f (double) " +
          grades_of(registry::families[0], Type::f64) + "; 32f (float) " +
          grades_of(registry::families[0], Type::f32) + "\n";
  return text;
}

std::string list_json() {
  std::string text = "[";
  for (const Function& f : registry::functions)
    text += std::string(text.size() > 1 ? ",\n " : "") + "{\"name\":" + json_string(f.name) +
            ",\"family\":" + json_string(f.family.name) +
            ",\"type\":" + json_string(f.type_name()) + ",\"grade\":" + json_string(f.grade) +
            ",\"inputs\":" + std::to_string(f.family.sources()) +
            ",\"outputs\":" + std::to_string(f.family.destinations()) +
            ",\"exponent\":" + (f.family.form == Form::scalar_exponent ? "true" : "false") +
            ",\"formula\":" + json_string(f.family.formula) +
            ",\"domain\":" + json_string(f.family.domain) + "}";
  return text + "]\n";
}

}  // namespace dakvm::tool
