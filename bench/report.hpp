// The rows of a measurement as a table, CSV, JSON or a plot.
#pragma once

#include <string>
#include <vector>

#include "bench/measure.hpp"

namespace dakvm::bench {

// What the figures were measured on.
struct Machine {
  std::string processor, compiler, libm, library;
  Clock clock;
};
Machine this_machine();
std::string describe(const Machine& machine);

std::string table(const std::vector<Row>& rows, const Machine& machine);
// For a document: the columns that readers compare.
std::string markdown(const std::vector<Row>& rows, const Machine& machine);
std::string csv(const std::vector<Row>& rows, const Machine& machine);
std::string json(const std::vector<Row>& rows, const Machine& machine);
// A gnuplot script that writes an SVG file: bars of the ratios, or times over the length of a call
// when the rows differ in it.
std::string plot(const std::vector<Row>& rows, const std::string& svg);
// Runs it.
void draw(const std::string& script);

}  // namespace dakvm::bench
