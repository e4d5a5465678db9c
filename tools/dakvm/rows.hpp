// Lines of text or CSV, cut into the cells that a function takes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "file_io.hpp"

namespace dakvm::tool {

struct CsvOptions {
  std::vector<std::string> columns;  // lists of names or numbers; empty: all
  bool header = true;
  char delimiter = ',';
  std::string result_names;  // a list; empty: made from the function and the columns
};

// One call of the function a line: which cells it takes, and what their columns are called.
struct Call {
  std::array<size_t, 2> cells{};  // the second is used by functions of two inputs
  std::vector<std::string> columns{};
};

// One line. Views are valid until the next line is read.
struct Row {
  std::string_view line;  // with its ending
  std::vector<std::string_view> cells;
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
  virtual std::string place(size_t cell) const = 0;
  // The line above the data that belongs in the output; empty when there is none.
  virtual std::string header() const { return {}; }

  size_t width() const { return width_; }  // cells of a row
  const std::vector<Call>& calls() const { return calls_; }

 protected:
  size_t width_ = 0;
  std::vector<Call> calls_;
};

// One element a line, its numbers separated by white space; blank lines and # lines are passed
// over.
std::unique_ptr<RowReader> read_text(InputFile& file, int inputs);
// A call for each column that the options name, or each pair of them.
std::unique_ptr<RowReader> read_csv(InputFile& file, int inputs, const CsvOptions& options);

// Cuts a CSV line without its ending at the delimiters outside of quotes; quotes stay.
void split_csv(std::string_view body, char delimiter, std::vector<std::string_view>& fields);
// The entries of a list such as "a,2,\"x,y\"", without their quotes.
std::vector<std::string> split_list(std::string_view list);
// `line` without its \n or \r\n.
std::string_view without_ending(std::string_view line);
// `text` as a CSV field, quoted if it must be.
std::string csv_field(const std::string& text, char delimiter);

}  // namespace dakvm::tool
