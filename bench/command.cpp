#include "bench/command.hpp"

#include <unistd.h>

#include <memory>

#include "bench/report.hpp"
#include "error.hpp"
#include "file_io.hpp"
#include "functions.hpp"

namespace dakvm::bench {
namespace {

using registry::Function;
using tool::Error;
using tool::Exit;

constexpr int32_t longest = 1 << 22;

struct Arguments {
  std::vector<std::string> functions, compare;
  std::string type, grade, plot;
  bool all_lengths = false, csv = false, json = false, markdown = false, machine = false,
       force = false, no_wide = false;
  Request request;
};

// All grades of the named families, or of all.
std::vector<const Function*> selection(const Arguments& a) {
  std::vector<std::string> names = a.functions;
  if (names.empty())
    for (const registry::Family& f : registry::families) names.emplace_back(f.name);
  std::vector<const Function*> chosen;
  for (const std::string& name : names) {
    const Function& first = tool::find_function(name, a.type, a.grade);
    const bool one = name.starts_with("daks") || !a.grade.empty();
    for (const Function& f : registry::functions)
      if (one ? f.name == first.name
              : f.family.name == first.family.name && (a.type.empty() || f.type == first.type))
        chosen.push_back(&f);
  }
  return chosen;
}

void run(Arguments& a) {
  Request& request = a.request;
  request.functions = selection(a);
  request.wide = !a.no_wide;
  if (a.all_lengths) {
    request.lengths.clear();
    for (int32_t n = 1; n <= longest; n *= n < 16 ? 2 : 4) request.lengths.push_back(n);
  }
  if (a.compare.size() == 2) {
    request.baseline = a.compare[0];
    request.library = a.compare[1];
  }
  if (!a.plot.empty() && !a.force && access(a.plot.c_str(), F_OK) == 0)
    throw Error(Exit::unwritable, a.plot + " exists already; --force replaces it");
  request.progress = isatty(STDERR_FILENO) == 1;

  const Machine machine = this_machine();
  tool::OutputFile out("-", false);
  if (a.machine) {
    out.append(describe(machine) + "\n");
    out.commit();
    return;
  }
  const std::vector<Row> rows = measure(request);
  if (rows.empty())
    throw Error(Exit::unknown_function, "the two libraries have none of these functions in common");
  out.append((a.json ? json : a.csv ? csv : a.markdown ? markdown : table)(rows, machine));
  out.commit();
  if (!a.plot.empty()) draw(plot(rows, a.plot));
}

}  // namespace

void describe(CLI::App& app) {
  auto a = std::make_shared<Arguments>();
  CLI::App* bench = app.add_subcommand("bench", "Time the functions against the system's libm");
  bench->add_option("FUNC", a->functions, "Families or exported functions; all without any");
  bench->add_option("--type", a->type, "Only 64f or 32f")
      ->check(CLI::IsMember({"64f", "32f"}, CLI::ignore_case));
  bench->add_option("--grade", a->grade, "Only this grade");
  bench
      ->add_option("--exceptional", a->request.exceptional,
                   "Percent of the elements that are NaN, infinite, zero, subnormal or largest")
      ->check(CLI::Range(0, 100));
  bench->add_flag("--in-place", a->request.in_place,
                  "Destination is source; times include one copy, those of libm too");
  auto* length = bench->add_option("-n,--length", a->request.lengths, "Elements of a call")
                     ->check(CLI::Range(1, longest));
  bench->add_flag("--all-lengths", a->all_lengths, "Calls with 1 to 2^22 elements")
      ->excludes(length);
  bench->add_flag("--no-wide", a->no_wide, "Leave the wide ranges of trigonometry out");
  bench
      ->add_option("--repetitions", a->request.repetitions,
                   "Of each measurement; medians are shown")
      ->check(CLI::Range(1, 1000));
  bench->add_option("--compare", a->compare, "Two builds of the library, OLD.so NEW.so")
      ->expected(2);
  auto* csv = bench->add_flag("--csv", a->csv, "Rows as CSV");
  auto* json = bench->add_flag("--json", a->json, "Rows and machine as JSON")->excludes(csv);
  bench->add_flag("--markdown", a->markdown, "Rows as a Markdown table")
      ->excludes(csv)
      ->excludes(json);
  bench->add_flag("--machine", a->machine, "Print what it would measure on, and nothing else");
  auto* plot = bench->add_option("--plot", a->plot, "Draw the rows into this SVG file");
  bench->add_flag("--force", a->force, "Replace an existing plot")->needs(plot);
  bench->callback([a] { run(*a); });
}

}  // namespace dakvm::bench
