#include <limits>

#include "block.hpp"
#include "error.hpp"

namespace dakvm::tool {
namespace {

template <class T>
class RowInput : public Input<T> {
 public:
  RowInput(RowReader& rows, bool keep_lines, BadCells& bad)
      : rows_(rows), keep_lines_(keep_lines), bad_(bad) {}

  void read(Block<T>& block) override {
    constexpr size_t most_text = 1 << 22;
    block.count = 0;
    block.text.clear();
    block.lines.clear();
    while (block.count < Block<T>::capacity && block.text.size() < most_text && rows_.next(row_)) {
      if (!take(block)) continue;
      if (keep_lines_) {
        const size_t start = block.text.size();
        block.text += row_.line;
        block.lines.push_back({start + without_ending(row_.line).size(), block.text.size()});
      }
      ++block.count;
    }
  }

 private:
  // False: the line is left out.
  bool take(Block<T>& block) {
    if (!row_.misshapen.empty()) {
      const bool stop = bad_.on_error == OnError::stop ||
                        (bad_.on_error == OnError::nan && !row_.may_stand_for_nan);
      note_bad(Exit::columns, rows_.place() + ": " + row_.misshapen, stop);
      for (auto& array : block.src) array[block.count] = std::numeric_limits<T>::quiet_NaN();
      return bad_.on_error != OnError::skip;
    }
    bool good = true;
    for (size_t k = 0; k < block.src.size(); ++k) {
      T& value = block.src[k][block.count];
      if (parse(row_.cells[k], value)) continue;
      good = false;
      note_bad(Exit::bad_cell,
               rows_.place(k) + ": " +
                   (row_.cells[k].empty() ? "the cell is blank"
                                          : excerpt(row_.cells[k]) + " is not a number"),
               bad_.on_error == OnError::stop);
      value = std::numeric_limits<T>::quiet_NaN();
    }
    return good || bad_.on_error != OnError::skip;
  }

  void note_bad(Exit code, const std::string& message, bool stop) {
    if (stop)
      throw Error(code,
                  message + (code == Exit::bad_cell
                                 ? "; --on-error nan or --on-error skip goes on after such cells"
                                 : "; --on-error skip leaves such lines out"));
    if (bad_.count++ == 0) bad_.first = message;
  }

  RowReader& rows_;
  bool keep_lines_;
  BadCells& bad_;
  Row row_;
};

template <class T>
class RawInput : public Input<T> {
 public:
  RawInput(InputFile& file, int sources)
      : file_(file),
        element_size_(sources * sizeof(T)),
        buffer_(Block<T>::capacity * element_size_) {}

  void read(Block<T>& block) override {
    const size_t length = file_.read_all(buffer_.data(), buffer_.size());
    if (length % element_size_ != 0)
      throw Error(Exit::truncated, file_.name() + ": " + std::to_string(file_.position()) +
                                       " bytes are not a " + "whole number of elements of " +
                                       std::to_string(element_size_) + " bytes");
    block.count = length / element_size_;
    for (size_t k = 0; k < block.src.size(); ++k) {
      const char* from = buffer_.data() + k * sizeof(T);
      T* const to = block.src[k].data();
      for (int32_t i = 0; i < block.count; ++i, from += element_size_)
        std::memcpy(to + i, from, sizeof(T));
    }
  }

 private:
  InputFile& file_;
  size_t element_size_;
  std::vector<char> buffer_;
};

}  // namespace

template <class T>
std::unique_ptr<Input<T>> input_from_rows(RowReader& rows, bool keep_lines, BadCells& bad) {
  return std::make_unique<RowInput<T>>(rows, keep_lines, bad);
}

template <class T>
std::unique_ptr<Input<T>> input_from_raw(InputFile& file, int sources) {
  return std::make_unique<RawInput<T>>(file, sources);
}

template std::unique_ptr<Input<double>> input_from_rows(RowReader&, bool, BadCells&);
template std::unique_ptr<Input<float>> input_from_rows(RowReader&, bool, BadCells&);
template std::unique_ptr<Input<double>> input_from_raw(InputFile&, int);
template std::unique_ptr<Input<float>> input_from_raw(InputFile&, int);

}  // namespace dakvm::tool
