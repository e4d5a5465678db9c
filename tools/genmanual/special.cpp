#include "special.hpp"

#include <algorithm>
#include <cfenv>
#include <charconv>
#include <cstring>
#include <limits>
#include <set>
#include <type_traits>

namespace dakvm::manual {
namespace {

using registry::Family;
using registry::Form;
using registry::Function;
using registry::Type;

template <class T>
using Word = std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t>;
template <class T>
constexpr Word<T> sign_bit = Word<T>(1) << (8 * sizeof(T) - 1);
template <class T>
constexpr Word<T> infinity = sizeof(T) == 8 ? Word<T>(0x7ff0000000000000) : Word<T>(0x7f800000);

template <class T>
Word<T> word_of(T x) {
  Word<T> word;
  std::memcpy(&word, &x, sizeof word);
  return word;
}

template <class T>
bool is_nan(Word<T> word) {
  return (word & ~sign_bit<T>) > infinity<T>;
}

template <class T>
bool is_signalling(Word<T> word) {
  return is_nan<T>(word) && (word >> (std::numeric_limits<T>::digits - 2) & 1) == 0;
}

// Numbers in increasing order as consecutive integers, -0 before +0.
template <class T>
int64_t position(Word<T> word) {
  const auto magnitude = static_cast<int64_t>(word & ~sign_bit<T>);
  return word & sign_bit<T> ? -1 - magnitude : magnitude;
}
template <class T>
Word<T> at_position(int64_t p) {
  return p < 0 ? sign_bit<T> | static_cast<Word<T>>(-1 - p) : static_cast<Word<T>>(p);
}

template <class T>
std::string shortest(T x, int digits = 0) {
  if (x != x) return "NaN";
  if (x - x != 0) return x > 0 ? "+Inf" : "-Inf";
  char text[64];
  const auto end =
      digits == 0 ? std::to_chars(text, text + sizeof text, x)
                  : std::to_chars(text, text + sizeof text, x, std::chars_format::general, digits);
  const std::string number(text, end.ptr);
  return number == "0" ? "+0" : number;
}

template <class T>
std::string number(Word<T> word, int digits = 0) {
  if (is_signalling<T>(word)) return "signalling NaN";
  T x;
  std::memcpy(&x, &word, sizeof x);
  return shortest(x, digits);
}

// One element: results, status and flags.
template <class T>
struct Outcome {
  Word<T> result[2] = {};
  int32_t status = 0;
  int flags = 0;

  bool operator==(const Outcome&) const = default;
  // What a caller can tell from an ordinary element.
  bool is_special() const { return status != DAKVM_STATUS_OK || (flags & ~FE_INEXACT) != 0; }
  bool alike(const Outcome& o) const {
    return status == o.status && (flags & ~FE_INEXACT) == (o.flags & ~FE_INEXACT);
  }
};

// Arguments stay in memory: a signalling NaN would not survive a register.
template <class T>
Outcome<T> evaluate(const Function& f, Word<T> first, Word<T> second = 0) {
  struct {
    T src1, src2, dst[2];
  } element;
  std::memcpy(&element.src1, &first, sizeof first);
  std::memcpy(&element.src2, &second, sizeof second);
  Outcome<T> outcome;
  registry::Operands<T> operands{&element.src1, &element.src2, &element.dst[0], &element.dst[1]};
  operands.exponent = element.src2;
  std::feclearexcept(FE_ALL_EXCEPT);
  outcome.status = f(operands, 1);
  outcome.flags = std::fetestexcept(FE_ALL_EXCEPT);
  for (int k = 0; k < f.family.destinations(); ++k)
    std::memcpy(&outcome.result[k], &element.dst[k], sizeof(T));
  return outcome;
}

std::string flag_names(int flags) {
  std::string text;
  for (const auto& [flag, name] : {std::pair{FE_INVALID, "invalid"},
                                   {FE_DIVBYZERO, "divide-by-zero"},
                                   {FE_OVERFLOW, "overflow"},
                                   {FE_UNDERFLOW, "underflow"},
                                   {FE_INEXACT, "inexact"}})
    if (flags & flag) text += std::string(text.empty() ? "" : " ") + name;
  return text.empty() ? "none" : text;
}

template <class T>
std::string results_text(const Family& family, const Outcome<T>& outcome) {
  std::string text = number<T>(outcome.result[0]);
  if (family.destinations() == 2) text += ", " + number<T>(outcome.result[1]);
  return text;
}

template <class T>
void add_row(Table& table, const Family& family, std::vector<std::string> arguments,
             const Outcome<T>& outcome) {
  arguments.insert(arguments.end(), {results_text(family, outcome), status_name(outcome.status),
                                     flag_names(outcome.flags)});
  table.rows.push_back(arguments);
}

std::vector<const Function*> best_first(const Family& family, Type type) {
  std::vector<const Function*> found;
  for (const Function& f : registry::functions)
    if (f.family.name == family.name && f.type == type) found.insert(found.begin(), &f);
  return found;
}

// Special numbers in order, and both neighbours of every bound at which status or flags change.
template <class T>
std::vector<Word<T>> arguments_of(const Function& f) {
  constexpr Word<T> largest = infinity<T> - 1;
  const Word<T> least_normal = word_of(std::numeric_limits<T>::min());
  std::set<int64_t> positions;
  for (const Word<T> magnitude :
       {infinity<T>, largest, word_of(T(1)), least_normal, Word<T>(1), Word<T>(0)})
    for (const Word<T> sign : {Word<T>(0), sign_bit<T>})
      positions.insert(position<T>(magnitude | sign));
  const auto at = [&](int64_t p) { return evaluate<T>(f, at_position<T>(p)); };
  const std::vector<int64_t> anchors(positions.begin(), positions.end());
  for (size_t k = 0; k + 1 < anchors.size(); ++k)
    for (int64_t low = anchors[k];;) {
      int64_t high = anchors[k + 1];
      const Outcome<T> below = at(low);
      if (below.alike(at(high))) break;
      while (high - low > 1) {
        const int64_t middle = low + (high - low) / 2;
        (at(middle).alike(below) ? low : high) = middle;
      }
      positions.insert({low, high});
      low = high;
    }
  std::vector<Word<T>> words;
  for (const int64_t p : positions) words.push_back(at_position<T>(p));
  constexpr Word<T> quiet_bit = Word<T>(1) << (std::numeric_limits<T>::digits - 2);
  words.insert(words.end(), {infinity<T> | quiet_bit, infinity<T> | 1});
  return words;
}

template <class T>
void add_single(std::vector<Table>& tables, const Family& family, Type type,
                const std::string& type_text) {
  const auto functions = best_first(family, type);
  const auto words = arguments_of<T>(*functions[0]);
  for (const Function* f : functions) {
    Table table{type_text + ", grade " + std::string(f->grade),
                {"argument", "result", "status", "flags"},
                {}};
    if (f != functions[0]) table.title += ", where it differs from the above";
    for (const Word<T> word : words) {
      const auto outcome = evaluate<T>(*f, word);
      if (f == functions[0] || outcome != evaluate<T>(*functions[0], word))
        add_row(table, family, {number<T>(word)}, outcome);
    }
    if (!table.rows.empty()) tables.push_back(table);
  }
}

// The results over a grid of pairs, then the pairs that are reported or raise more than inexact.
template <class T>
std::vector<Table> pair_tables(const Function& f) {
  const bool power = f.family.name.starts_with("Pow");
  const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
  const std::vector<T> first =
      power ? std::vector<T>{-inf, -2, T(-0.5), T(-0.0), 0, T(0.5), 1, 2, inf, nan}
            : std::vector<T>{-inf, -2, T(-0.0), 0, 2, inf, nan};
  const std::vector<T> second =
      power ? std::vector<T>{-inf, -3, -2, T(-0.5), 0, T(0.5), 2, 3, inf, nan} : first;
  const std::string a = power ? "x" : "a", b = power ? "y" : "b";
  Table grid{"", {a + " \\ " + b}, {}}, special{"", {a, b, "result", "status", "flags"}, {}};
  for (const T y : second) grid.head.push_back(shortest(y));
  for (const T x : first) {
    grid.rows.push_back({shortest(x)});
    for (const T y : second) {
      const auto outcome = evaluate<T>(f, word_of(x), word_of(y));
      grid.rows.back().push_back(number<T>(outcome.result[0], 3));
      if (outcome.is_special()) add_row(special, f.family, {shortest(x), shortest(y)}, outcome);
    }
  }
  std::vector<Table> tables{grid};
  if (!special.rows.empty()) tables.push_back(special);
  return tables;
}

void add_pairs(std::vector<Table>& tables, const Family& family) {
  const auto same = [](const std::vector<Table>& p, const std::vector<Table>& q) {
    return std::ranges::equal(p, q, {}, &Table::rows, &Table::rows);
  };
  std::vector<std::pair<std::string, std::vector<Table>>> distinct;
  for (const Type type : {Type::f64, Type::f32})
    for (const Function* f : best_first(family, type)) {
      const auto found = type == Type::f64 ? pair_tables<double>(*f) : pair_tables<float>(*f);
      const std::string name = std::string(f->type_name()) + " " + std::string(f->grade);
      const auto known =
          std::ranges::find_if(distinct, [&](const auto& d) { return same(d.second, found); });
      if (known == distinct.end())
        distinct.emplace_back(name, found);
      else
        known->first += ", " + name;
    }
  for (auto& [names, found] : distinct) {
    found[0].title = names + ": results";
    if (found.size() > 1) found[1].title = names + ": statuses and flags beside inexact";
    tables.insert(tables.end(), found.begin(), found.end());
  }
}

}  // namespace

std::string decimal(double x) { return shortest(x); }

std::string status_name(int32_t status) {
  switch (status) {
    case DAKVM_STATUS_OK:
      return "OK";
    case DAKVM_STATUS_OVERFLOW:
      return "OVERFLOW";
    case DAKVM_STATUS_UNDERFLOW:
      return "UNDERFLOW";
    case DAKVM_STATUS_SINGULARITY:
      return "SINGULARITY";
    case DAKVM_STATUS_DOMAIN:
      return "DOMAIN";
  }
  return std::to_string(status);
}

std::vector<Table> special_arguments(const Family& family) {
  std::vector<Table> tables;
  if (family.form == Form::two_inputs || family.form == Form::scalar_exponent) {
    add_pairs(tables, family);
  } else {
    add_single<double>(tables, family, Type::f64, "64f");
    add_single<float>(tables, family, Type::f32, "32f");
  }
  return tables;
}

}  // namespace dakvm::manual
