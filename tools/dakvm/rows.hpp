// Lines of text or CSV, cut into the cells that a function takes.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "file_io.hpp"

namespace dakvm::tool {

struct CsvOptions {
  std::string columns;  // "NAME_OR_NUMBER", or two of them with a comma between; empty: all
  bool header = true;
  char delimiter = ',';
  std::string result_names;  // empty: made from the function and the columns
};

// One line. Views are valid until the next line is read.
struct Row {
  std::string_view line;  // with its ending
  std::array<std::string_view, 2> cells;
  std::string misshapen;           // not empty: the number of columns is wrong, and how
  bool may_stand_for_nan = false;  // such a line may still get a result
};

class RowReader {
 public:
  virtual ~RowReader() = default;

  // False at the end of the input.
  virtual bool next(Row& row) = 0;
  // "file:line", or "file:line: column 2 (pressure)" for one of the cells.
  virtual std::string place() const = 0;
  virtual std::string place(int cell) const = 0;
  // The line above the data that belongs in the output; empty when there is none.
  virtual std::string header() const { return {}; }
  // What the columns are called, for the name of the result.
  virtual std::string column_names() const { return {}; }
};

// One element a line, its numbers separated by white space; blank lines and # lines are passed
// over.
std::unique_ptr<RowReader> read_text(InputFile& file, int cells);
std::unique_ptr<RowReader> read_csv(InputFile& file, int cells, const CsvOptions& options);

// Cuts a CSV line without its ending at the delimiters outside of quotes; quotes stay.
void split_csv(std::string_view body, char delimiter, std::vector<std::string_view>& fields);
// `line` without its \n or \r\n.
std::string_view without_ending(std::string_view line);
// `text` as a CSV field, quoted if it must be.
std::string csv_field(const std::string& text, char delimiter);

}  // namespace dakvm::tool
