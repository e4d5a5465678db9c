#include "pages.hpp"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace dakvm::manual {
namespace {

std::string html(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '<')
      result += "&lt;";
    else if (c == '&')
      result += "&amp;";
    else
      result += c;
  }
  return result;
}

std::string html_row(const std::vector<std::string>& cells, const std::string& tag) {
  std::string text = "<tr>";
  for (const std::string& cell : cells) text += "<" + tag + ">" + html(cell) + "</" + tag + ">";
  return text + "</tr>\n";
}

// For manual pages alone; \& keeps troff from reading a line as a request.
std::string manual_lines(std::string_view lines) {
  std::string text = "\\manonly\n\n.PP\n.nf\n";
  bool begins = true;
  for (const char c : lines) {
    if (begins) text += "\\&";
    if (c == '-') text += '\\';
    text += c == '\\' ? "\\e" : std::string(1, c);
    begins = c == '\n';
  }
  return text + ".fi\n\\endmanonly\n";
}

// "| `a` | b |" as {"a", "b"}.
std::vector<std::string> markdown_cells(const std::string& line) {
  std::vector<std::string> cells;
  std::istringstream in(line.substr(1));
  for (std::string cell; std::getline(in, cell, '|');) {
    std::erase(cell, '`');
    const size_t first = cell.find_first_not_of(' '), last = cell.find_last_not_of(" \r");
    cells.push_back(first == std::string::npos ? "" : cell.substr(first, last + 1 - first));
  }
  return cells;
}

}  // namespace

std::string plain(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (std::string_view("<>\\@&#*_|").find(c) != std::string_view::npos) result += '\\';
    result += c;
  }
  return result;
}

std::string render(const Table& table) {
  std::string text = table.title.empty() ? "" : plain(table.title) + "\n";
  text += "\\htmlonly\n<table class=\"doxtable\">\n" + html_row(table.head, "th");
  for (const auto& row : table.rows) text += html_row(row, "td");
  text += "</table>\n\\endhtmlonly\n";

  std::vector<size_t> width;
  for (size_t k = 0; k < table.head.size(); ++k) {
    width.push_back(table.head[k].size());
    for (const auto& row : table.rows) width[k] = std::max(width[k], row.at(k).size());
    if (std::ranges::find(table.wide, table.head[k]) != table.wide.end()) width[k] = 0;
  }
  std::string lines;
  const auto add = [&](const std::vector<std::string>& cells) {
    for (size_t k = 0; k < cells.size(); ++k)
      if (width[k] > 0) lines += cells[k] + std::string(width[k] + 2 - cells[k].size(), ' ');
    lines.erase(lines.find_last_not_of(' ') + 1);
    lines += "\n";
  };
  add(table.head);
  for (const auto& row : table.rows) add(row);
  return text + manual_lines(lines);
}

std::string render_lines(std::string_view lines) {
  return "\\htmlonly\n<pre class=\"fragment\">" + html(lines) + "</pre>\n\\endhtmlonly\n" +
         manual_lines(lines);
}

std::string read_file(const std::filesystem::path& path) {
  std::ifstream in(path);
  if (!in) throw std::runtime_error("cannot read " + path.string());
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

void write_file(const std::filesystem::path& path, const std::string& text) {
  std::ofstream out(path);
  out << text;
  out.close();
  if (!out) throw std::runtime_error("cannot write " + path.string());
}

std::vector<Table> published_rows(const std::filesystem::path& document, std::string_view family) {
  std::vector<Table> tables;
  if (!exists(document)) return tables;
  const std::string start = "daks" + std::string(family) + "_";
  std::istringstream in(read_file(document));
  std::string section;
  bool in_table = false, has_rows = false;
  std::vector<std::string> head;
  for (std::string line; std::getline(in, line);) {
    if (!line.starts_with('|')) {
      if (line.starts_with("##")) section = line.substr(line.find_first_not_of("# "));
      in_table = has_rows = false;
      continue;
    }
    const auto cells = markdown_cells(line);
    if (!in_table) {
      head = cells;
      in_table = true;
    } else if (cells.at(0).starts_with(start)) {
      if (cells.size() != head.size())
        throw std::runtime_error(document.string() + ": a row of another length: " + line);
      if (!has_rows) tables.push_back({section == family ? "" : section, head, {}});
      has_rows = true;
      tables.back().rows.push_back(cells);
    }
  }
  return tables;
}

}  // namespace dakvm::manual
