// Elements on their way through the program, and the two ends of it: input and output.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "file_io.hpp"
#include "number_format.hpp"
#include "rows.hpp"

namespace dakvm::tool {

// A block of rows. Values enter and leave by their bits, so that NaN payloads survive.
template <class T>
struct Block {
  static constexpr int32_t capacity = 4096;

  struct Line {
    size_t body, end;  // where the line ends in `text`, without and with its ending
  };

  int32_t count = 0;
  std::vector<std::vector<T>> src, dst;  // an array for each cell of a row, and for each result
  std::string text;                      // the lines that CSV rows come from
  std::vector<Line> lines;

  Block(size_t sources, size_t destinations)
      : src(sources, std::vector<T>(capacity)), dst(destinations, std::vector<T>(capacity)) {}
};

enum class OnError { stop, nan, skip };

// What was found wrong in the input and passed over.
struct BadCells {
  OnError on_error = OnError::stop;
  uint64_t count = 0;
  std::string first;
};

template <class T>
class Input {
 public:
  virtual ~Input() = default;
  // Fills the block; a count of 0 is the end.
  virtual void read(Block<T>& block) = 0;
};

// With `keep_lines` the block gets the lines too.
template <class T>
std::unique_ptr<Input<T>> input_from_rows(RowReader& rows, bool keep_lines, BadCells& bad);
// Little-endian elements; of two sources a0 b0 a1 b1 ...
template <class T>
std::unique_ptr<Input<T>> input_from_raw(InputFile& file, int sources);

template <class T>
class Output {
 public:
  virtual ~Output() = default;
  virtual void write(const Block<T>& block) = 0;
};

// One line a row; two results are separated by a space.
template <class T>
std::unique_ptr<Output<T>> output_as_text(OutputFile& file, Notation notation);
// The lines of the input, with the results as further columns.
template <class T>
std::unique_ptr<Output<T>> output_as_csv(OutputFile& file, Notation notation, char delimiter);
// Little-endian elements; of two destinations a0 b0 a1 b1 ...
template <class T>
std::unique_ptr<Output<T>> output_as_raw(OutputFile& file);

}  // namespace dakvm::tool
