// Writes the generated part of the manual, out of the registry, the published measurements and the
// library itself:
//   genmanual SOURCE_TREE OUTPUT_FOLDER
// gives mainpage.dox, and for each family daks<Func>.dox, which adds to the group of the header,
// daks<Func>.c, its example, and daks<Func>.out, what the example prints.
#include <cstdio>
#include <exception>
#include <string>

#include "pages.hpp"
#include "registry/registry.hpp"
#include "special.hpp"

namespace {

using namespace dakvm::registry;
using namespace dakvm::manual;
namespace fs = std::filesystem;

std::string group_of(const Family& family) { return "daks" + std::string(family.name); }

std::string paragraph(const std::string& title) { return "\\par " + title + "\n"; }

std::string special_text(const Family& family) {
  std::string text =
      paragraph("Special arguments") +
      "Results, statuses and flags as the library gives them in the usual modes. The sign of a NaN "
      "is not shown.";
  if (family.form == Form::one_input || family.form == Form::two_outputs)
    text +=
        " Beside the greatest and least numbers of the type these are the neighbours of every "
        "bound at which status or flags change.";
  text += "\n\n";
  for (const Table& table : special_arguments(family)) text += render(table) + "\n";
  return text;
}

std::string accuracy_text(const Family& family, const fs::path& source) {
  auto tables = published_rows(source / "docs/accuracy.md", family.name);
  std::string text;
  const std::string plot = std::string(family.name) + ".svg";
  if (exists(source / "docs/accuracy" / plot)) text += "\\image html " + plot + "\n\n";
  for (Table& table : tables) {
    table.wide = {"at", "mean", "bound", "misrounded"};
    text += render(table) + "\n";
  }
  if (text.empty()) return text;
  return paragraph("Measured errors") +
         "In units of the last place of the exact result; docs/accuracy.md tells how they were "
         "measured.\n\n" +
         text;
}

std::string speed_text(const Family& family, const fs::path& source) {
  std::string text;
  for (const Table& table : published_rows(source / "docs/speed.md", family.name))
    if (table.title == "Double precision" || table.title == "Grade A50" ||
        table.title == "Single precision")
      text += render(table) + "\n";
  if (text.empty()) return text;
  return paragraph("Measured speed") +
         "Times of one element; docs/speed.md names the machine and explains the columns.\n\n" +
         text;
}

struct Example {
  std::string program, output;
};

// A program that evaluates the function at three numbers of its interval.
Example example(const Family& family) {
  const Function& f = *find(family.name, Type::f64, "A53");
  const double middle = family.low + 0.25 * (family.high - family.low);
  const double src[3] = {family.low, middle, family.high}, second[3] = {2, 0.5, 3};
  const double exponent = 1.5;
  const bool pair = family.form == Form::two_inputs, two = family.form == Form::two_outputs;
  const auto list = [](const double* x) {
    return "{" + decimal(x[0]) + ", " + decimal(x[1]) + ", " + decimal(x[2]) + "}";
  };

  std::string program =
      "#include <dakvmpx.h>\n#include <stdio.h>\n\nint main(void) {\n  const double " +
      std::string(pair ? "src1" : "src") + "[3] = " + list(src) + ";\n";
  if (pair) program += "  const double src2[3] = " + list(second) + ";\n";
  program += two ? "  double dst1[3], dst2[3];\n" : "  double dst[3];\n";
  program += "  const int32_t status = " + std::string(f.name) + "(";
  switch (family.form) {
    case Form::one_input:
      program += "src, dst";
      break;
    case Form::two_inputs:
      program += "src1, src2, dst";
      break;
    case Form::scalar_exponent:
      program += "src, " + decimal(exponent) + ", dst";
      break;
    case Form::two_outputs:
      program += "src, dst1, dst2";
      break;
  }
  program += ", 3);\n  for (int i = 0; i < 3; ++i) printf(";
  program += two ? "\"%.17g %.17g\\n\", dst1[i], dst2[i]);\n" : "\"%.17g\\n\", dst[i]);\n";
  program += "  printf(\"status %d\\n\", (int)status);\n  return status < 0;\n}\n";

  double dst1[3], dst2[3];
  const int32_t status = f(Operands<double>{src, second, dst1, dst2, exponent}, 3);
  std::string output;
  char line[128];
  for (int i = 0; i < 3; ++i) {
    std::snprintf(line, sizeof line, "%.17g", dst1[i]);
    output += line;
    if (two) {
      std::snprintf(line, sizeof line, " %.17g", dst2[i]);
      output += line;
    }
    output += "\n";
  }
  return {program, output + "status " + std::to_string(status) + "\n"};
}

std::string family_page(const Family& family, const fs::path& source, const Example& shown) {
  return "/** \\addtogroup " + group_of(family) + "\n" + paragraph("Formula") +
         plain(family.formula) + "; " + plain(family.domain) + ".\n\n" + special_text(family) +
         accuracy_text(family, source) + speed_text(family, source) + paragraph("Example") +
         render_lines(shown.program) + "\nIt prints\n" + render_lines(shown.output) + "\n" +
         paragraph("See also") +
         "\\ref dakvmpx \"dakvmpx(3)\" for what holds for all functions: arguments, status, flags, "
         "rounding modes, threads. dakvm(1) evaluates functions over files.\n*/\n";
}

std::string main_page() {
  std::string text =
      "/** \\mainpage libdakvmpx\n"
      "\\ref dakvmpx \"What holds for all functions\", \\ref dakvmpx_scalar \"scalar entries\", "
      "\\ref md_docs_numerics \"numerics for users\".\n\n"
      "| function | formula | domain |\n|---|---|---|\n";
  for (const Family& family : families)
    text += "| \\ref " + group_of(family) + " \"" + group_of(family) + "\" | " +
            plain(family.formula) + " | " + plain(family.domain) + " |\n";
  return text + "*/\n";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: genmanual SOURCE_TREE OUTPUT_FOLDER\n", stderr);
    return 2;
  }
  try {
    const fs::path source = argv[1], folder = argv[2];
    create_directories(folder);
    write_file(folder / "mainpage.dox", main_page());
    for (const Family& family : families) {
      const Example shown = example(family);
      const std::string name = group_of(family);
      write_file(folder / (name + ".dox"), family_page(family, source, shown));
      write_file(folder / (name + ".c"), shown.program);
      write_file(folder / (name + ".out"), shown.output);
    }
  } catch (const std::exception& e) {
    std::fprintf(stderr, "genmanual: %s\n", e.what());
    return 1;
  }
}
