#include "rows.hpp"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <utility>

#include "error.hpp"
#include "text.hpp"

namespace dakvm::tool {
namespace {

constexpr std::string_view byte_order_mark = "\xef\xbb\xbf";

bool is_blank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

// A field without the blanks around it and its quotes; quotes inside stay doubled.
std::string_view cell_of(std::string_view field) {
  field = trimmed(field);
  if (field.size() >= 2 && field.front() == '"' && field.back() == '"')
    field = trimmed(field.substr(1, field.size() - 2));
  return field;
}

std::string unescaped(std::string_view cell) {
  std::string text(cell);
  for (size_t at = 0; (at = text.find("\"\"", at)) != text.npos; ++at) text.erase(at, 1);
  return text;
}

class TextReader : public RowReader {
 public:
  TextReader(InputFile& file, int inputs) : file_(file), lines_(file, false) {
    width_ = static_cast<size_t>(inputs);
    calls_ = {Call{{0, width_ - 1}}};
  }

  bool next(Row& row) override {
    while (lines_.next(row.line)) {
      std::string_view rest = row.line;
      if (lines_.number() == 1 && rest.starts_with(byte_order_mark))
        rest.remove_prefix(byte_order_mark.size());
      rest = trimmed(rest);
      if (rest.empty() || rest.front() == '#') continue;
      row.misshapen.clear();
      row.cells.resize(width_);
      size_t found = 0;
      for (; !rest.empty(); ++found) {
        size_t length = 0;
        while (length < rest.size() && !is_blank(rest[length])) ++length;
        if (found < width_) row.cells[found] = rest.substr(0, length);
        rest.remove_prefix(length);
        while (!rest.empty() && is_blank(rest.front())) rest.remove_prefix(1);
      }
      if (found != width_) {
        row.misshapen =
            counted(found, "number") + " on the line, the function takes " + std::to_string(width_);
        row.may_stand_for_nan = true;
      }
      return true;
    }
    return false;
  }

  std::string place() const override {
    return file_.name() + ":" + std::to_string(lines_.number());
  }
  std::string place(size_t cell) const override {
    return place() + ": column " + std::to_string(cell + 1);
  }

 private:
  InputFile& file_;
  LineReader lines_;
};

class CsvReader : public RowReader {
 public:
  CsvReader(InputFile& file, int inputs, const CsvOptions& options)
      : file_(file), lines_(file, true), options_(options), inputs_(static_cast<size_t>(inputs)) {
    if (!read_fields()) throw Error(Exit::empty, file_.name() + ": the input is empty");
    field_count_ = fields_.size();
    if (options_.header) {
      header_ = line_;
      for (const std::string_view field : fields_) names_.push_back(unescaped(cell_of(field)));
    }
    choose_columns();
    width_ = chosen_.size();
    first_row_waits_ = !options_.header;
  }

  bool next(Row& row) override {
    if (!std::exchange(first_row_waits_, false) && !read_fields()) return false;
    row.line = line_;
    row.misshapen.clear();
    row.cells.resize(width_);
    if (fields_.size() != field_count_)
      row.misshapen = counted(fields_.size(), "column") + ", the first line has " +
                      std::to_string(field_count_);
    else
      for (size_t k = 0; k < width_; ++k) row.cells[k] = cell_of(fields_[chosen_[k]]);
    return true;
  }

  std::string place() const override {
    return file_.name() + ":" + std::to_string(lines_.number());
  }
  std::string place(size_t cell) const override {
    const size_t column = chosen_[cell];
    return place() + ": column " + std::to_string(column + 1) +
           (names_.empty() ? "" : " (" + names_[column] + ")");
  }
  std::string header() const override { return header_; }

 private:
  bool read_fields() {
    if (!lines_.next(line_)) return false;
    std::string_view body = without_ending(line_);
    if (lines_.number() == 1 && body.starts_with(byte_order_mark))
      body.remove_prefix(byte_order_mark.size());
    split_csv(body, options_.delimiter, fields_);
    return true;
  }

  void choose_columns() {
    std::vector<size_t> wanted;
    if (options_.columns.empty()) {
      if (field_count_ != inputs_)
        throw Error(Exit::columns, file_.name() + " has " + counted(field_count_, "column") +
                                       "; say with --column which " + counted(inputs_, "column") +
                                       " to take" + columns_there());
      wanted.resize(inputs_);
      std::iota(wanted.begin(), wanted.end(), size_t{0});
    }
    for (const std::string& list : options_.columns) {
      if (inputs_ == 1 && std::find(names_.begin(), names_.end(), list) != names_.end()) {
        wanted.push_back(find_column(list));  // a name may have commas
        continue;
      }
      for (const std::string& name : split_list(list)) wanted.push_back(find_column(name));
    }
    if (wanted.size() % inputs_ != 0)
      throw Error(Exit::columns, "--column " + joined(options_.columns, ",") +
                                     ": the function takes two columns for each result, as in "
                                     "--column FIRST,SECOND");

    for (auto column = wanted.begin(); column != wanted.end(); column += inputs_)
      add_call({column, column + inputs_});
  }

  // A call over these columns; a column that several calls take is one cell.
  void add_call(const std::vector<size_t>& columns) {
    Call call;
    for (const size_t column : columns)
      call.columns.push_back(names_.empty() ? std::to_string(column + 1) : names_[column]);
    for (size_t k = 0; k < columns.size(); ++k) {
      const auto found = std::find(chosen_.begin(), chosen_.end(), columns[k]);
      call.cells[k] = found - chosen_.begin();
      if (found == chosen_.end()) chosen_.push_back(columns[k]);
    }
    for (const Call& other : calls_)
      if (other.cells == call.cells)
        throw Error(Exit::columns, "--column: " + excerpt(joined(call.columns, ",")) +
                                       " is named twice, and would give the same result twice");
    calls_.push_back(call);
  }

  size_t find_column(const std::string& wanted) const {
    const auto found = std::find(names_.begin(), names_.end(), wanted);
    if (found != names_.end()) {
      if (std::find(found + 1, names_.end(), wanted) != names_.end())
        throw Error(Exit::columns, file_.name() + ": more than one column is called " +
                                       excerpt(wanted) + "; give its number, counted from 1");
      return found - names_.begin();
    }
    size_t number = 0;
    const char* const end = wanted.data() + wanted.size();
    const auto [stop, problem] = std::from_chars(wanted.data(), end, number);
    if (stop == end && problem == std::errc{} && number >= 1 && number <= field_count_)
      return number - 1;
    throw Error(Exit::columns,
                file_.name() + ": there is no column " + excerpt(wanted) + columns_there());
  }

  std::string columns_there() const {
    if (names_.empty()) return "\nColumns are 1 to " + std::to_string(field_count_);
    std::string list = "\nThe columns are:";
    for (size_t k = 0; k < names_.size(); ++k)
      list += "\n  " + std::to_string(k + 1) + "  " + names_[k];
    return list;
  }

  InputFile& file_;
  LineReader lines_;
  CsvOptions options_;
  size_t inputs_;
  std::string_view line_;
  std::vector<std::string_view> fields_;
  size_t field_count_ = 0;
  std::string header_;
  std::vector<std::string> names_;
  std::vector<size_t> chosen_;  // columns, in the order of the row's cells
  bool first_row_waits_ = false;
};

}  // namespace

std::unique_ptr<RowReader> read_text(InputFile& file, int inputs) {
  return std::make_unique<TextReader>(file, inputs);
}

std::unique_ptr<RowReader> read_csv(InputFile& file, int inputs, const CsvOptions& options) {
  return std::make_unique<CsvReader>(file, inputs, options);
}

void split_csv(std::string_view body, char delimiter, std::vector<std::string_view>& fields) {
  fields.clear();
  bool in_quotes = false;
  size_t start = 0;
  for (size_t i = 0; i < body.size(); ++i) {
    if (body[i] == '"') {
      in_quotes = !in_quotes;
    } else if (body[i] == delimiter && !in_quotes) {
      fields.push_back(body.substr(start, i - start));
      start = i + 1;
    }
  }
  fields.push_back(body.substr(start));
}

std::vector<std::string> split_list(std::string_view list) {
  std::vector<std::string_view> fields;
  split_csv(list, ',', fields);
  std::vector<std::string> entries;
  for (const std::string_view field : fields) entries.push_back(unescaped(cell_of(field)));
  return entries;
}

std::string_view without_ending(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::string csv_field(const std::string& text, char delimiter) {
  if (text.find_first_of(std::string("\"\r\n") + delimiter) == text.npos) return text;
  std::string result = "\"";
  for (const char c : text) result += c == '"' ? "\"\"" : std::string(1, c);
  return result + '"';
}

}  // namespace dakvm::tool
