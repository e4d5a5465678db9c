// Formulas that a kernel has computed (x87/x87.hpp), and how Gappa reads them.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "x87/x87.hpp"

namespace trace {

using dakvm::x87::Ext;

// A number as Gappa reads it: short if it can be.
std::string text_of(double value);

// A double of any value, and one of this value, with the names they have in what is written.
double variable(const std::string& name);
double constant(const std::string& name, double value);

// What an operation is made of; of a store, the value before it.
Ext first_operand(Ext value);
Ext second_operand(Ext value);

// From here on the value is known to fit a double: storing it changes nothing.
void fits_double(Ext value);

bool operator==(Ext a, Ext b) = delete;
inline bool same(Ext a, Ext b) { return a.formula == b.formula; }

// Statements that compute some results. A value that is named, stored, or used more than once has a
// line of its own,
//     name x87= expression;          each operation rounded to 64 bits
//     name = dbl(x87(a + b));        and the store
class Listing {
 public:
  Listing& name(const std::string& name, Ext value);
  // Not computed: a variable. The expression behind it is left out.
  Listing& given(const std::string& name, Ext value);

  // Stops the program if a name belongs to no value on the way to the results.
  std::string print(const std::vector<Ext>& results);
  // The value without roundings, in terms of one letter; stops the program if a store lies between.
  std::string exact(Ext value, Ext letter) const;

 private:
  void visit(int formula);
  std::string define(int formula);
  using Stops = std::function<bool(int)>;  // true for a formula that stands by its name
  std::string inner(int formula, const Stops& stops) const;
  std::string inner(int formula) const;

  std::map<int, std::string> names_;
  std::set<int> given_, visited_;
  std::map<int, int> uses_;
};

}  // namespace trace
