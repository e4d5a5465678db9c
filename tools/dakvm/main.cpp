// dakvm: the library's functions on the command line.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <map>

#include "error.hpp"
#include "evaluate.hpp"
#include "functions.hpp"
#include "summary.hpp"
#ifdef DAKVM_BENCH
#include "bench/command.hpp"
#endif

namespace dakvm::tool {
namespace {

enum class SummaryStyle { text, json, none };

struct EvalArguments {
  std::string function, type, grade, delimiter = ",";
  bool csv = false, raw = false, no_header = false, hex = false, bits = false;
  SummaryStyle summary = SummaryStyle::text;
  EvalOptions options;
};

template <class Enum>
CLI::CheckedTransformer choice(std::map<std::string, Enum> values) {
  return CLI::CheckedTransformer(std::move(values), CLI::ignore_case);
}

void describe_eval(CLI::App& eval, EvalArguments& a) {
  EvalOptions& o = a.options;
  eval.add_option("FUNC", a.function, "A family (Exp) or an exported function (daksExp_64f_A53)")
      ->required();
  eval.add_option("FILE", o.input, "The input; standard input without it or with -");
  eval.add_option("--type", a.type, "64f (double, the default) or 32f (float)")
      ->check(CLI::IsMember({"64f", "32f"}, CLI::ignore_case));
  eval.add_option("--grade", a.grade,
                  "A53 (default) or A50 of 64f; A24 (default), A21 or A11 of 32f");
  eval.add_option("--exponent", o.exponent, "The exponent of functions that take one");
  auto* output = eval.add_option("-o,--output", o.output,
                                 "Write to this file, which appears when it is complete");
  eval.add_flag("--force", o.force, "Replace an existing output file")->needs(output);

  auto* csv = eval.add_flag("--csv", a.csv, "CSV in; CSV out, with the result as a further column");
  eval.add_option("--column", o.csv.columns,
                  "Name or number (from 1) of the column; A,B for two; a longer list for further "
                  "results")
      ->allow_extra_args(false)
      ->option_text("TEXT")
      ->needs(csv);
  auto* no_header =
      eval.add_flag("--no-header", a.no_header, "The first CSV line is data")->needs(csv);
  eval.add_option("--delimiter", a.delimiter, "Between CSV columns, one character or 'tab'")
      ->needs(csv);
  eval.add_option("--name", o.csv.result_names, "Header of the result column; a list of several")
      ->needs(csv)
      ->excludes(no_header);

  auto* raw = eval.add_flag("--raw", a.raw, "Raw little-endian elements in and out")->excludes(csv);
  auto* hex = eval.add_flag("--hex", a.hex, "Results as hexadecimal numbers")->excludes(raw);
  eval.add_flag("--bits", a.bits, "Results as bit patterns")->excludes(raw)->excludes(hex);

  eval.add_option("--on-error", o.on_error, "What a bad cell does: stop, nan or skip")
      ->transform(choice<OnError>(
          {{"stop", OnError::stop}, {"nan", OnError::nan}, {"skip", OnError::skip}}))
      ->option_text("stop|nan|skip");
  auto* summary =
      eval.add_option("--summary", a.summary, "Summary on standard error: text, json or none");
  summary
      ->transform(choice<SummaryStyle>({{"text", SummaryStyle::text},
                                        {"json", SummaryStyle::json},
                                        {"none", SummaryStyle::none}}))
      ->option_text("text|json|none");
  eval.add_flag("-q,--quiet", o.quiet,
                "No summary, no progress: errors alone are told; the exit code is the same")
      ->excludes(summary);
  eval.footer(
      "Input is text, an element a line: one number, or two separated by white space for\n"
      "functions of two inputs. Numbers are decimal, hexadecimal (0x1.8p+3), inf or nan. Blank\n"
      "lines and lines that start with # are passed over. Raw input and output interleave the\n"
      "elements of two arrays: a0 b0 a1 b1 ...\n\n"
      "A list of --column has a column for each result, --column a,c, or a pair of columns for\n"
      "each result of a function of two inputs, --column a,b,a,c; a name with a comma stands in\n"
      "double quotes. --column may be repeated. Each column, or pair, has its own part in the\n"
      "summary.\n\n" +
      std::string(json_members) + "\n" + std::string(exit_code_table));
}

char delimiter_of(const std::string& text) {
  if (text == "tab" || text == "\\t") return '\t';
  if (text.size() != 1 || std::string_view("\"\r\n").find(text[0]) != std::string_view::npos)
    throw Error(Exit::usage,
                "--delimiter: " + excerpt(text) + " is neither one character nor 'tab'");
  return text[0];
}

void run_eval(EvalArguments& a) {
  EvalOptions& o = a.options;
  o.layout = a.csv ? Layout::csv : a.raw ? Layout::raw : Layout::text;
  o.notation = a.hex ? Notation::hex : a.bits ? Notation::bits : Notation::decimal;
  o.csv.header = !a.no_header;
  o.csv.delimiter = delimiter_of(a.delimiter);
  const Summary summary = evaluate(find_function(a.function, a.type, a.grade), o);
  if (o.quiet || a.summary == SummaryStyle::none) return;
  std::fputs((a.summary == SummaryStyle::json ? summary_json : summary_text)(summary).c_str(),
             stderr);
}

std::string version_text() {
  const LibraryVersion& v = *dakvmGetLibVersion();
  char text[256];
  std::snprintf(text, sizeof text, "%s %s (%d.%d.%d.%d), %.4s, built %s\n", v.name, v.version,
                static_cast<int>(v.major), static_cast<int>(v.minor), static_cast<int>(v.build),
                static_cast<int>(v.revision), v.target, v.build_date);
  return text;
}

void print(const std::string& text) {
  OutputFile out("-", false);
  out.append(text);
  out.commit();
}

void run(int argc, char** argv) {
  CLI::App app("Elementary functions over files of numbers, by libdakvmpx", "dakvm");
  app.require_subcommand(1);

  bool json = false;
  CLI::App* list = app.add_subcommand("list", "List the functions");
  list->add_flag("--json", json, "As JSON, an object for each exported function");
  list->callback([&] { print(json ? list_json() : list_text()); });

  app.add_subcommand("version", "Print the version of the library")->callback([] {
    print(version_text());
  });

  EvalArguments arguments;
  CLI::App* eval = app.add_subcommand("eval", "Evaluate a function over a file");
  describe_eval(*eval, arguments);
  eval->callback([&] { run_eval(arguments); });

#ifdef DAKVM_BENCH
  bench::describe(app);
#else
  app.add_subcommand("bench", "Time the functions (not in this build)")
      ->allow_extras()
      ->callback([] {
        throw Error(Exit::usage,
                    "this build has no benchmark: run scripts/setup.sh bench, then "
                    "cmake --preset bench && cmake --build --preset bench; "
                    "build/bench/dakvm has it");
      });
#endif

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    if (e.get_exit_code() == 0) {
      app.exit(e);  // --help
      return;
    }
    throw Error(Exit::usage, std::string(e.what()) + " (--help shows how)");
  }
}

}  // namespace
}  // namespace dakvm::tool

int main(int argc, char** argv) {
  using namespace dakvm::tool;
  install_signal_handlers();
  try {
    run(argc, argv);
    return static_cast<int>(Exit::ok);
  } catch (const Error& e) {
    std::fprintf(stderr, "dakvm: %s\n", e.what());
    return static_cast<int>(e.code());
  } catch (const std::exception& e) {
    std::fprintf(stderr, "dakvm: internal error: %s\n", e.what());
    return static_cast<int>(Exit::internal);
  }
}
