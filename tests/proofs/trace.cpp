#include "trace.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <tuple>

namespace {

struct Formula {
  char kind;         // operator, 's'tore, 'v'ariable, 'c'onstant (with a name), 'n'umber
  int a, b;          // operands
  double value;      // of a constant or number
  std::string name;  // of a variable or constant
  bool fits_double;

  bool is_operation() const { return std::strchr("+-*/", kind) != nullptr; }
  bool is(double number) const { return kind == 'n' && value == number; }
};

std::vector<Formula> formulas;

int add(const Formula& f) {
  using Key = std::tuple<char, int, int, double, std::string>;
  static std::map<Key, int> known;
  const auto [place, is_new] =
      known.try_emplace(Key{f.kind, f.a, f.b, f.value, f.name}, static_cast<int>(formulas.size()));
  if (is_new) formulas.push_back(f);
  return place->second;
}

const Formula& at(dakvm::x87::Ext value) { return formulas[static_cast<size_t>(value.formula)]; }
const Formula& at(int formula) { return formulas[static_cast<size_t>(formula)]; }

// A quiet NaN with the formula's number, which no constant is.
constexpr uint64_t carrier = 0x7ff9'0000'0000'0000;

double carry(int formula) {
  const uint64_t bits = carrier | static_cast<uint64_t>(formula);
  double number;
  std::memcpy(&number, &bits, sizeof number);
  return number;
}

dakvm::x87::Ext number(double value) {
  return dakvm::x87::Ext::numbered(add({'n', -1, -1, value, "", true}));
}

dakvm::x87::Ext operation(char kind, dakvm::x87::Ext a, dakvm::x87::Ext b) {
  const Formula &x = at(a), &y = at(b);
  const auto is_whole = [](const Formula& f) {
    return f.kind == 'n' && f.value == static_cast<int32_t>(f.value);
  };
  if (is_whole(x) && is_whole(y) && kind != '/')
    return number(kind == '+'   ? x.value + y.value
                  : kind == '-' ? x.value - y.value
                                : x.value * y.value);
  if (kind == '+' && x.is(0)) return b;
  if ((kind == '+' || kind == '-') && y.is(0)) return a;
  if (kind == '*' && (x.is(0) || y.is(0))) return number(0);
  if (kind == '*' && x.is(1)) return b;
  if ((kind == '*' || kind == '/') && y.is(1)) return a;
  return dakvm::x87::Ext::numbered(add({kind, a.formula, b.formula, 0, "", false}));
}

[[noreturn]] void stop(const std::string& message) {
  std::fprintf(stderr, "%s\n", message.c_str());
  std::exit(1);
}

}  // namespace

namespace dakvm::x87 {

Ext::Ext(double number) {
  uint64_t bits;
  std::memcpy(&bits, &number, sizeof bits);
  formula = (bits & carrier) == carrier && bits >> 63 == 0 ? static_cast<int>(bits & 0xffffffff)
                                                           : add({'n', -1, -1, number, "", true});
}

Ext operator+(Ext a, Ext b) { return operation('+', a, b); }
Ext operator-(Ext a, Ext b) { return operation('-', a, b); }
Ext operator*(Ext a, Ext b) { return operation('*', a, b); }
Ext operator/(Ext a, Ext b) { return operation('/', a, b); }

double store(Ext value) {
  if (at(value).kind == 'n') return at(value).value;
  return carry(at(value).fits_double ? value.formula : add({'s', value.formula, -1, 0, "", true}));
}

}  // namespace dakvm::x87

namespace trace {

std::string text_of(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.9g", value);
  if (std::strtod(text, nullptr) != value) std::snprintf(text, sizeof text, "%a", value);
  return text;
}

double variable(const std::string& name) { return carry(add({'v', -1, -1, 0, name, true})); }

double constant(const std::string& name, double value) {
  return carry(add({'c', -1, -1, value, name, true}));
}

Ext first_operand(Ext value) { return Ext::numbered(at(value).a); }
Ext second_operand(Ext value) { return Ext::numbered(at(value).b); }

void fits_double(Ext value) { formulas[static_cast<size_t>(value.formula)].fits_double = true; }

Listing& Listing::name(const std::string& name, Ext value) {
  if (!names_.try_emplace(value.formula, name).second)
    stop("two names for one value: " + names_[value.formula] + ", " + name);
  return *this;
}

Listing& Listing::given(const std::string& name, Ext value) {
  given_.insert(value.formula);
  return this->name(name, value);
}

void Listing::visit(int formula) {
  ++uses_[formula];
  if (!visited_.insert(formula).second || given_.contains(formula)) return;
  if (at(formula).a >= 0) visit(at(formula).a);
  if (at(formula).b >= 0) visit(at(formula).b);
}

std::string Listing::inner(int formula, const Stops& stops) const {
  const Formula& f = at(formula);
  if (f.kind == 'n') return f.value < 0 ? "(" + text_of(f.value) + ")" : text_of(f.value);
  if (f.kind == 'c' || f.kind == 'v') return f.name;
  if (f.kind == 's') return names_.at(formula);
  const auto strength = [](char kind) { return kind == '+' || kind == '-' ? 1 : 2; };
  const auto operand = [&](int of, bool right) {
    if (stops(of)) return names_.at(of);
    const std::string text = inner(of, stops);
    if (!at(of).is_operation()) return text;
    const int own = strength(f.kind), its = strength(at(of).kind);
    return its < own || (right && its == own) ? "(" + text + ")" : text;
  };
  return operand(f.a, false) + " " + f.kind + " " + operand(f.b, true);
}

std::string Listing::inner(int formula) const {
  return inner(formula, [&](int of) { return names_.contains(of); });
}

std::string Listing::define(int formula) {
  const Formula& f = at(formula);
  if (f.kind == 'c') return f.name + " = " + text_of(f.value) + ";\n";
  const std::string name = names_.at(formula);
  if (f.kind != 's') return name + " x87= " + inner(formula) + ";\n";
  if (names_.contains(f.a)) return name + " = dbl(" + names_.at(f.a) + ");\n";
  const auto is_simple = [&](int of) { return names_.contains(of) || !at(of).is_operation(); };
  if (is_simple(at(f.a).a) && is_simple(at(f.a).b))
    return name + " = dbl(x87(" + inner(f.a) + "));\n";
  return name + "_x87 x87= " + inner(f.a) + ";\n" + name + " = dbl(" + name + "_x87);\n";
}

std::string Listing::print(const std::vector<Ext>& results) {
  for (const Ext result : results) visit(result.formula);
  for (const auto& [formula, name] : names_)
    if (!visited_.contains(formula)) stop("the kernel computes no '" + name + "'");
  int unnamed = 0;
  for (const int formula : visited_) {
    const Formula& f = at(formula);
    if ((f.kind == 's' || (f.is_operation() && uses_[formula] > 1)) && !names_.contains(formula))
      names_[formula] = "value_" + std::to_string(++unnamed);
  }
  std::string text;
  for (const int formula : visited_)  // operands come before what is computed from them
    if (at(formula).kind == 'c' || (names_.contains(formula) && !given_.contains(formula)))
      text += define(formula);
  return text;
}

std::string Listing::exact(Ext value, Ext letter) const {
  return inner(value.formula, [&](int of) {
    if (of == letter.formula) return true;
    if (at(of).kind == 's')
      stop("a rounding to memory between " + names_.at(letter.formula) +
           " and what is a formula of it");
    return false;
  });
}

}  // namespace trace
