// Files as the command needs them: block reads, lines of any source, output that appears whole.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dakvm::tool {

// A file, or standard input for "-".
class InputFile {
 public:
  explicit InputFile(const std::string& path);
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  const std::string& name() const { return name_; }
  std::optional<uint64_t> size() const { return size_; }  // of regular files
  uint64_t position() const { return position_; }

  // Up to `length` bytes, 0 at the end.
  size_t read_some(char* to, size_t length);
  // As many as `length` bytes, fewer only at the end.
  size_t read_all(char* to, size_t length);

 private:
  std::string name_;
  int fd_;
  std::optional<uint64_t> size_;
  uint64_t position_ = 0;
};

// Lines of a file, through one buffer that grows to the longest line.
class LineReader {
 public:
  static constexpr size_t longest_line = 1 << 20;

  // With `quotes`, a line break between double quotes does not end a line.
  LineReader(InputFile& file, bool quotes) : file_(file), quotes_(quotes), buffer_(1 << 18) {}

  // The next line with its ending, valid until the next call. False at the end of the file.
  bool next(std::string_view& line);
  // Where that line begins, counted from 1.
  uint64_t number() const { return number_; }

 private:
  bool refill();

  InputFile& file_;
  bool quotes_;
  std::vector<char> buffer_;
  size_t begin_ = 0, end_ = 0;
  uint64_t number_ = 0, next_number_ = 1;
};

// A file that appears under its name when it is complete, and not before: it is written beside it
// and renamed by commit(). Without commit(), or on a signal that ends the program, nothing is left.
// Standard output for "-", and devices, are written directly.
class OutputFile {
 public:
  // An existing file is an error unless `force` is set.
  OutputFile(const std::string& path, bool force);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  void append(std::string_view text);
  // Room for `length` bytes, at most buffer_size; advance() says where the written part ends.
  char* reserve(size_t length);
  void advance(const char* end) { used_ = end - buffer_.data(); }
  void commit();

  static constexpr size_t buffer_size = 1 << 18;

 private:
  void write_out(const char* from, size_t length);
  [[noreturn]] void fail(int error) const;

  std::string name_, target_;
  int fd_;
  bool temporary_ = false, force_;
  std::vector<char> buffer_;
  size_t used_ = 0;
};

// Write errors come back as errors rather than as signals; signals that end the program remove the
// unfinished output file first.
void install_signal_handlers();

}  // namespace dakvm::tool
