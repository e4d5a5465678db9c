// Text and tables as Doxygen takes them: for HTML and for man(1) apart where one form does not
// serve both.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace dakvm::manual {

// Rows of cells. Columns named in `wide` are left out of manual pages, whose lines are short.
struct Table {
  std::string title;
  std::vector<std::string> head;
  std::vector<std::vector<std::string>> rows;
  std::vector<std::string_view> wide = {};
};

std::string render(const Table& table);

// Lines as they are, in a fixed-width font.
std::string render_lines(std::string_view lines);

// Plain text, with the characters that mean something to Doxygen escaped.
std::string plain(std::string_view text);

std::string read_file(const std::filesystem::path& path);
void write_file(const std::filesystem::path& path, const std::string& text);

// The rows of the tables of a Markdown document that begin with a function of the family. A table's
// title is that of its section. No tables where there is no document.
std::vector<Table> published_rows(const std::filesystem::path& document, std::string_view family);

}  // namespace dakvm::manual
