// dakvm-accuracy: what the library's functions are off by, measured against MPFR.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <thread>

#include "properties.hpp"
#include "published.hpp"
#include "report.hpp"
#include "search.hpp"

namespace dakvm::accuracy {
namespace {

enum Exit { pass = 0, fail = 1, trouble = 2 };

struct Arguments {
  std::string function, type, grade, inputs, format = "text";
  std::vector<double> range;
  std::vector<std::string> rounding = {"n"}, precision = {"64"};
  uint64_t samples = 1000000, seed = 1;
  uint32_t every = 1;
  bool hard = false, exhaustive = false, properties = false;
  uint64_t search_seconds = 0;
  std::string keep;
  Setting setting;
};

Modes modes_of(const std::string& rounding, const std::string& precision) {
  const auto letter = std::string("nduz").find(rounding);
  return {static_cast<Rounding>(letter), precision == "24"   ? Precision::bits24
                                         : precision == "53" ? Precision::bits53
                                                             : Precision::bits64};
}

class Session {
 public:
  explicit Session(const Arguments& a) : a_(a) {}

  void run() {
    const auto functions = find(a_.function, a_.type, a_.grade);
    if (a_.exhaustive) return exhaustive(functions);
    if (a_.properties) {
      for (const Function* f : functions) properties(*f);
      return;
    }
    if (a_.search_seconds > 0) {
      for (const Function* f : functions)
        if (!f->is_single() && f->form != Form::scalar_exponent) look_for_worst(*f);
      return;
    }
    for (const std::string& precision : a_.precision)
      for (const std::string& rounding : a_.rounding)
        for (const Function* f : functions) {
          modes_ = modes_of(rounding, precision);
          if (f->is_single())
            measure_one<float>(*f);
          else
            measure_one<double>(*f);
        }
  }

  int finish() const {
    if (a_.format == "csv") std::fputs(as_csv(reports_).c_str(), stdout);
    if (a_.format == "json") std::fputs(as_json(reports_).c_str(), stdout);
    return std::all_of(reports_.begin(), reports_.end(),
                       [](const Report& r) { return r.holds(); }) &&
                   properties_hold_
               ? pass
               : fail;
  }

 private:
  template <class T>
  void measure_one(const Function& f) {
    if (!a_.inputs.empty()) {
      add(f, read_inputs<T>(f, a_.inputs), "over the inputs of " + a_.inputs, "inputs");
    } else if (a_.hard) {
      add(f, hard_inputs<T>(f), "over its hard inputs", "hard");
    } else if (!a_.range.empty()) {
      sampled<T>(f, a_.range[0], a_.range[1]);
    } else {
      for (const Limit& row : limits_of(f))
        if (row.samples > 0) sampled<T>(f, row.low, row.high, row.ulp);
    }
  }

  template <class T>
  void sampled(const Function& f, double low, double high, std::optional<double> bound = {}) {
    if (!bound) bound = bound_of(f, low, high);
    Report r =
        report(measure({&f}, sample<T>(f, low, high, a_.samples, a_.seed), modes_, a_.setting)[0],
               "on " + interval_text(low, high) + ", " + std::to_string(a_.samples) +
                   " samples, seed " + std::to_string(a_.seed),
               "sampled", bound);
    r.low = low;
    r.high = high;
    r.samples = a_.samples;
    r.seed = a_.seed;
    add(r);
  }

  template <class T>
  void add(const Function& f, const Inputs<T>& inputs, const std::string& what,
           const std::string& method) {
    if (inputs.size() == 0) throw std::runtime_error(f.name + " has no hard inputs");
    add(report(measure({&f}, inputs, modes_, a_.setting)[0], what, method, bound_of(f)));
  }

  void exhaustive(std::vector<const Function*> functions) {
    while (!functions.empty()) {
      // Grades of one family and type in one pass.
      const Function& leader = *functions[0];
      std::vector<const Function*> group, others;
      for (const Function* f : functions)
        (f->family == leader.family && f->type == leader.type ? group : others).push_back(f);
      functions = others;
      if (!leader.is_single() && !others.empty()) continue;  // of a family the 32f functions
      for (const auto& m : measure_exhaustively(group, a_.setting, a_.every))
        add(report(m, a_.every == 1 ? "over all floats" : "over a part of the floats", "exhaustive",
                   bound_of(*m.function)));
    }
  }

  void properties(const Function& f) {
    std::printf("%s\n", f.name.c_str());
    for (const Property& p : check_properties(f, a_.setting)) {
      std::printf("  %s: %s", p.violations == 0 ? "PASS" : "FAIL", p.name.c_str());
      if (p.violations != 0)
        std::printf(", not at %llu of", static_cast<unsigned long long>(p.violations));
      std::printf(" (%llu checked)", static_cast<unsigned long long>(p.checked));
      if (p.violations != 0) std::printf(", first at %s", p.first.c_str());
      std::printf("\n");
      properties_hold_ = properties_hold_ && p.violations == 0;
    }
  }

  void look_for_worst(const Function& f) {
    const Witness worst = search(f, a_.search_seconds, a_.seed, a_.setting);
    Inputs<double> one;
    for (int s = 0; s < 2; ++s) one.in[s].push_back(worst.in[s]);
    add(f, one, "at the worst input that the search found", "search");
    if (!a_.keep.empty() && keep(a_.keep, f, worst))
      std::fprintf(stderr, "%s: kept in %s\n", f.name.c_str(), a_.keep.c_str());
  }

  Report report(const Measurement& m, const std::string& what, const std::string& method,
                std::optional<double> bound) const {
    Report r;
    r.measurement = m;
    r.what = what;
    r.method = method;
    r.modes = modes_;
    if (modes_.usual()) r.bound = bound;
    return r;
  }

  void add(const Report& r) {
    reports_.push_back(r);
    if (a_.format != "text") return;
    std::fputs(as_text(r).c_str(), stdout);
    std::fflush(stdout);
  }

  const Arguments& a_;
  Modes modes_;
  std::vector<Report> reports_;
  bool properties_hold_ = true;
};

void list() {
  for (const Function& f : functions())
    std::printf("%-22s %d argument%s%s\n", f.name.c_str(), f.sources(), f.sources() == 1 ? "" : "s",
                f.destinations() == 2 ? ", 2 results" : "");
}

int run(int argc, char** argv) {
  Arguments a;
  a.setting.jobs = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  CLI::App app("Measures the accuracy of libdakvmpx's functions against MPFR", "dakvm-accuracy");
  app.fallthrough();
  app.add_option("FUNC", a.function, "A family (Exp) or a function (daksExp_64f_A53)");
  app.add_option("--type", a.type, "Of a family, the functions of this type alone")
      ->check(CLI::IsMember({"64f", "32f"}));
  app.add_option("--grade", a.grade, "Of a family, the functions of this grade alone");
  auto* samples = app.add_option("--samples", a.samples, "Numbers to sample in each interval")
                      ->check(CLI::Range(uint64_t{2}, uint64_t{1} << 32))
                      ->capture_default_str();
  auto* seed = app.add_option("--seed", a.seed, "Other numbers")
                   ->check(CLI::Range(uint64_t{1}, uint64_t{1} << 62))
                   ->capture_default_str();
  auto* range = app.add_option("--range", a.range, "LO HI: sample this interval")->expected(2);
  auto* inputs = app.add_option("--inputs", a.inputs,
                                "Measure over the numbers of this file, an element a line")
                     ->excludes(range);
  auto* hard = app.add_flag("--hard", a.hard, "Measure over the project's hard inputs")
                   ->excludes(range)
                   ->excludes(inputs);
  auto* modes_rounding =
      app.add_option("--rounding", a.rounding,
                     "The caller's rounding: n (nearest, the default), u, d, z; a list n,u,d,z")
          ->delimiter(',')
          ->check(CLI::IsMember({"n", "u", "d", "z"}));
  auto* modes_precision = app.add_option("--precision", a.precision,
                                         "The caller's precision: 64 (the default), 53, 24; a list")
                              ->delimiter(',')
                              ->check(CLI::IsMember({"24", "53", "64"}));
  auto* exhaustive =
      app.add_flag("--exhaustive", a.exhaustive, "All 2^32 arguments of 32f functions")
          ->excludes(range)
          ->excludes(inputs)
          ->excludes(hard)
          ->excludes(samples)
          ->excludes(seed)
          ->excludes(modes_rounding)
          ->excludes(modes_precision);
  app.add_flag("--properties", a.properties,
               "Check order, symmetry, range, and independence of neighbours")
      ->excludes(exhaustive);
  auto* searching = app.add_option("--search", a.search_seconds,
                                   "Search this many seconds for the worst input of 64f functions")
                        ->excludes(exhaustive);
  app.add_option("--keep", a.keep, "Keep what the search finds in this file (worst.inc)")
      ->needs(searching)
      ->check(CLI::ExistingFile);
  app.add_option("--every", a.every, "Of an exhaustive run's 1024 parts every N-th")
      ->check(CLI::Range(1, 1024))
      ->needs(exhaustive);
  app.add_option("--state", a.setting.state_folder,
                 "Folder for the state of exhaustive runs, which go on where they were interrupted")
      ->capture_default_str();
  app.add_option("--library", a.setting.library,
                 "Measure this shared library, of the worker's word size")
      ->check(CLI::ExistingFile);
  app.add_option("--jobs", a.setting.jobs, "Processes")
      ->check(CLI::Range(1, 256))
      ->capture_default_str();
  app.add_option("--format", a.format, "text, csv or json")
      ->check(CLI::IsMember({"text", "csv", "json"}))
      ->capture_default_str();
  auto* listing = app.add_subcommand("list", "List what can be measured");

  Publication publication;
  std::vector<std::string> names;
  const auto records = [&](CLI::App* command) {
    command->add_option("--records", publication.path, "The records")->capture_default_str();
    return command;
  };
  auto* publishing = records(app.add_subcommand(
      "publish", "Measure functions and write their records (docs/accuracy.json)"));
  publishing->add_option("FUNCS", names, "Families or functions; without any, all");
  publishing->add_flag("--quick", publication.quick, "Sample the 32f functions too");
  auto* verifying = records(app.add_subcommand(
      "verify", "Measure a slice of every record again; exit code 1 if one fails"));
  verifying->add_option("FUNCS", names, "Families or functions; without any, all");
  uint64_t slice = 20000;
  verifying->add_option("--samples", slice, "Numbers to sample in each interval")
      ->capture_default_str();
  std::string family;
  auto* plotting = app.add_subcommand("plot", "Print the errors over the argument, for gnuplot");
  plotting->add_option("FAMILY", family, "A family")->required();
  std::string markdown = "docs/accuracy.md", header = "include/dakvmpx.h";
  bool check = false;
  auto* documenting = records(app.add_subcommand(
      "document", "Write docs/accuracy.md and the header's Accuracy paragraphs from the records"));
  documenting->add_option("--markdown", markdown, "The page")->capture_default_str();
  documenting->add_option("--header", header, "The header")->capture_default_str();
  documenting->add_flag("--check", check, "Write nothing; exit code 1 if something would change");
  app.require_subcommand(0, 1);
  app.footer(
      "Without --range, --inputs, --hard or --exhaustive the intervals of the published figures "
      "are\n"
      "sampled, with the numbers of docs/accuracy.md. Exit codes: 0 every bound holds, 1 one does\n"
      "not, or a status or flag is wrong, 2 the measurement failed.");
  a.setting.state_folder = "dakvm-accuracy.state";

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    return app.exit(e) == 0 ? pass : trouble;
  }
  if (!a.setting.library.empty() && a.setting.library.find('/') == std::string::npos)
    a.setting.library = "./" + a.setting.library;
  if (listing->parsed()) {
    list();
    return pass;
  }
  if (plotting->parsed()) {
    std::fputs(plot_table(family, a.setting).c_str(), stdout);
    return pass;
  }
  if (documenting->parsed()) return document(publication, markdown, header, check) ? pass : fail;
  if (publishing->parsed() || verifying->parsed()) {
    std::vector<const Function*> chosen;
    for (const std::string& name : names)
      for (const Function* f : find(name, "", "")) chosen.push_back(f);
    if (names.empty())
      for (const Function& f : functions()) chosen.push_back(&f);
    if (publishing->parsed()) return publish(chosen, publication, a.setting) ? pass : fail;
    publication.samples = slice;
    return verify(chosen, publication, a.setting) ? pass : fail;
  }
  if (a.function.empty()) {
    std::fputs(app.help().c_str(), stderr);
    return trouble;
  }
  Session session(a);
  session.run();
  return session.finish();
}

}  // namespace
}  // namespace dakvm::accuracy

int main(int argc, char** argv) {
  try {
    return dakvm::accuracy::run(argc, argv);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "dakvm-accuracy: %s\n", e.what());
    return 2;
  }
}
