// docs/accuracy.json: one record per function, and what is made of the records.
#pragma once

#include <string>
#include <vector>

#include "measure.hpp"

namespace dakvm::accuracy {

struct Publication {
  std::string path = "docs/accuracy.json";
  uint64_t samples = 1000000;
  bool quick = false;  // floats are sampled too
};

// Measures the functions and writes their records; those of other functions stay. False, with a
// line for each, when a bound does not hold or lies more than 2 % above what was seen.
bool publish(const std::vector<const Function*>& functions, const Publication& publication,
             const Setting& setting);

// Measures a slice of each record again: its worst input, its hard inputs, and the first `samples`
// of its samples. False, with a line for each, when a published figure does not hold.
bool verify(const std::vector<const Function*>& functions, const Publication& publication,
            const Setting& setting);

// Writes the Markdown page and the `Accuracy:` paragraphs of the header anew. With `check` nothing
// is written, and false says that a file is not what would be written.
bool document(const Publication& publication, const std::string& markdown,
              const std::string& header, bool check);

// A table for gnuplot: the argument, then the largest error around it of A53, A50 and A24, over the
// ordinary arguments of a family.
std::string plot_table(const std::string& family, const Setting& setting);

}  // namespace dakvm::accuracy
