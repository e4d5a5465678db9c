#include "block.hpp"

namespace dakvm::tool {
namespace {

template <class T>
class TextOutput : public Output<T> {
 public:
  TextOutput(OutputFile& file, Notation notation) : file_(file), notation_(notation) {}

  void write(const Block<T>& block) override {
    for (int32_t i = 0; i < block.count; ++i) {
      char* to = file_.reserve(block.dst.size() * (longest_number + 1));
      for (const auto& array : block.dst) {
        to = format(array[i], notation_, to);
        *to++ = ' ';
      }
      to[-1] = '\n';
      file_.advance(to);
    }
  }

 private:
  OutputFile& file_;
  Notation notation_;
};

template <class T>
class CsvOutput : public Output<T> {
 public:
  CsvOutput(OutputFile& file, Notation notation, char delimiter)
      : file_(file), notation_(notation), delimiter_(delimiter) {}

  void write(const Block<T>& block) override {
    const std::string_view text = block.text;
    size_t start = 0;
    for (int32_t i = 0; i < block.count; ++i) {
      const auto [body, end] = block.lines[i];
      file_.append(text.substr(start, body - start));
      for (const auto& array : block.dst) {
        char* to = file_.reserve(longest_number + 1);
        *to++ = delimiter_;
        file_.advance(format(array[i], notation_, to));
      }
      file_.append(text.substr(body, end - body));
      start = end;
    }
  }

 private:
  OutputFile& file_;
  Notation notation_;
  char delimiter_;
};

template <class T>
class RawOutput : public Output<T> {
 public:
  explicit RawOutput(OutputFile& file) : file_(file) {}

  void write(const Block<T>& block) override {
    const size_t element_size = block.dst.size() * sizeof(T);
    char* const begin = file_.reserve(block.count * element_size);
    for (size_t k = 0; k < block.dst.size(); ++k) {
      char* to = begin + k * sizeof(T);
      const T* const from = block.dst[k].data();
      for (int32_t i = 0; i < block.count; ++i, to += element_size)
        std::memcpy(to, from + i, sizeof(T));
    }
    file_.advance(begin + block.count * element_size);
  }

 private:
  static_assert(OutputFile::buffer_size >= 2 * sizeof(T) * Block<T>::capacity);

  OutputFile& file_;
};

}  // namespace

template <class T>
std::unique_ptr<Output<T>> output_as_text(OutputFile& file, Notation notation) {
  return std::make_unique<TextOutput<T>>(file, notation);
}

template <class T>
std::unique_ptr<Output<T>> output_as_csv(OutputFile& file, Notation notation, char delimiter) {
  return std::make_unique<CsvOutput<T>>(file, notation, delimiter);
}

template <class T>
std::unique_ptr<Output<T>> output_as_raw(OutputFile& file) {
  return std::make_unique<RawOutput<T>>(file);
}

template std::unique_ptr<Output<double>> output_as_text(OutputFile&, Notation);
template std::unique_ptr<Output<float>> output_as_text(OutputFile&, Notation);
template std::unique_ptr<Output<double>> output_as_csv(OutputFile&, Notation, char);
template std::unique_ptr<Output<float>> output_as_csv(OutputFile&, Notation, char);
template std::unique_ptr<Output<double>> output_as_raw(OutputFile&);
template std::unique_ptr<Output<float>> output_as_raw(OutputFile&);

}  // namespace dakvm::tool
