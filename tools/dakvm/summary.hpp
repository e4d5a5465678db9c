// The account of a run, for people or for programs.
#pragma once

#include <string>
#include <string_view>

#include "evaluate.hpp"

namespace dakvm::tool {

std::string summary_text(const Summary& summary);
std::string summary_json(const Summary& summary);

inline constexpr std::string_view json_members =
    R"(--summary json writes one line, an object with these members:
  function             its exported name
  elements             how many were evaluated, in all columns
  statuses             of each exceptional status: status, name, count, first_index (the row,
                       counted from 0) and first_input
  last_status          that of the last exceptional element, 0 if there is none
  flags                the IEEE flags that the function raised
  by_column            with --csv: columns, elements, statuses, last_status and flags of each
                       column or pair
  bad_cells            how many cells were not numbers
  first_bad_cell       where the first of them is, and what it holds
  elements_per_second  over the whole run
)";

}  // namespace dakvm::tool
