#include "block.hpp"

namespace dakvm::tool {
namespace {

template <class T>
class TextOutput : public Output<T> {
 public:
  TextOutput(OutputFile& file, int destinations, Notation notation)
      : file_(file), destinations_(destinations), notation_(notation) {}

  void write(const Block<T>& block) override {
    for (int32_t i = 0; i < block.count; ++i) {
      char* to = file_.reserve(destinations_ * (longest_number + 1));
      for (int k = 0; k < destinations_; ++k) {
        to = format(block.dst[k][i], notation_, to);
        *to++ = k + 1 < destinations_ ? ' ' : '\n';
      }
      file_.advance(to);
    }
  }

 private:
  OutputFile& file_;
  int destinations_;
  Notation notation_;
};

template <class T>
class CsvOutput : public Output<T> {
 public:
  CsvOutput(OutputFile& file, int destinations, Notation notation, char delimiter)
      : file_(file), destinations_(destinations), notation_(notation), delimiter_(delimiter) {}

  void write(const Block<T>& block) override {
    const std::string_view text = block.text;
    size_t start = 0;
    for (int32_t i = 0; i < block.count; ++i) {
      const auto [body, end] = block.lines[i];
      file_.append(text.substr(start, body - start));
      char* to = file_.reserve(destinations_ * (longest_number + 1));
      for (int k = 0; k < destinations_; ++k) {
        *to++ = delimiter_;
        to = format(block.dst[k][i], notation_, to);
      }
      file_.advance(to);
      file_.append(text.substr(body, end - body));
      start = end;
    }
  }

 private:
  OutputFile& file_;
  int destinations_;
  Notation notation_;
  char delimiter_;
};

template <class T>
class RawOutput : public Output<T> {
 public:
  RawOutput(OutputFile& file, int destinations) : file_(file), destinations_(destinations) {}

  void write(const Block<T>& block) override {
    char* to = file_.reserve(block.count * destinations_ * sizeof(T));
    for (int32_t i = 0; i < block.count; ++i)
      for (int k = 0; k < destinations_; ++k, to += sizeof(T))
        std::memcpy(to, &block.dst[k][i], sizeof(T));
    file_.advance(to);
  }

 private:
  static_assert(OutputFile::buffer_size >= 2 * sizeof(T) * Block<T>::capacity);

  OutputFile& file_;
  int destinations_;
};

}  // namespace

template <class T>
std::unique_ptr<Output<T>> output_as_text(OutputFile& file, int destinations, Notation notation) {
  return std::make_unique<TextOutput<T>>(file, destinations, notation);
}

template <class T>
std::unique_ptr<Output<T>> output_as_csv(OutputFile& file, int destinations, Notation notation,
                                         char delimiter) {
  return std::make_unique<CsvOutput<T>>(file, destinations, notation, delimiter);
}

template <class T>
std::unique_ptr<Output<T>> output_as_raw(OutputFile& file, int destinations) {
  return std::make_unique<RawOutput<T>>(file, destinations);
}

template std::unique_ptr<Output<double>> output_as_text(OutputFile&, int, Notation);
template std::unique_ptr<Output<float>> output_as_text(OutputFile&, int, Notation);
template std::unique_ptr<Output<double>> output_as_csv(OutputFile&, int, Notation, char);
template std::unique_ptr<Output<float>> output_as_csv(OutputFile&, int, Notation, char);
template std::unique_ptr<Output<double>> output_as_raw(OutputFile&, int);
template std::unique_ptr<Output<float>> output_as_raw(OutputFile&, int);

}  // namespace dakvm::tool
