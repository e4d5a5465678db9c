#include "bench/report.hpp"

#include <gnu/libc-version.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>

#include "error.hpp"
#include "text.hpp"

namespace dakvm::bench {
namespace {

using tool::Error;
using tool::Exit;

std::string format(const char* pattern, double value) {
  char text[64];
  std::snprintf(text, sizeof text, pattern, value);
  return text;
}

std::optional<double> ratio(const std::optional<Timing>& other, const Timing& own) {
  if (!other) return std::nullopt;
  return other->median / own.median;
}

std::optional<double> time_of(const std::optional<Timing>& timing) {
  if (!timing) return std::nullopt;
  return timing->median;
}

// The columns, once for every form of output.
struct Column {
  const char* name;   // in CSV and JSON
  const char* title;  // in the table
  int digits;
  std::function<std::optional<double>(const Row&, const Machine&)> value;
};

const std::vector<Column>& columns() {
  static const std::vector<Column> all = {
      {"length", "n", 0, [](const Row& r, const Machine&) { return r.workload.length; }},
      {"ns", "ns", 2, [](const Row& r, const Machine&) { return r.own.median; }},
      {"spread_percent", "+-%", 1, [](const Row& r, const Machine&) { return 100 * r.own.spread; }},
      {"elements_per_second", "Mel/s", 1,
       [](const Row& r, const Machine&) { return 1e3 / r.own.median; }},
      {"time_stamp_cycles", "TSC", 1,
       [](const Row& r, const Machine& m) { return r.own.median * m.clock.time_stamp; }},
      {"core_cycles", "cycles", 1,
       [](const Row& r, const Machine& m) { return r.own.median * m.clock.core; }},
      {"x87_operations", "P", 1, [](const Row& r, const Machine&) { return r.operations; }},
      {"cycles_per_operation", "cyc/P", 2,
       [](const Row& r, const Machine& m) -> std::optional<double> {
         if (!r.operations || *r.operations < 1) return std::nullopt;
         return r.own.median * m.clock.core / *r.operations;
       }},
      {"libm_ns", "libm", 2, [](const Row& r, const Machine&) { return time_of(r.plain); }},
      {"libm_stored_ns", "stored", 2,
       [](const Row& r, const Machine&) { return time_of(r.stored); }},
      {"ratio_libm", "x libm", 2,
       [](const Row& r, const Machine&) { return ratio(r.plain, r.own); }},
      {"ratio_libm_stored", "x stored", 2,
       [](const Row& r, const Machine&) { return ratio(r.stored, r.own); }},
      {"one_element_call_ns", "call", 1,
       [](const Row& r, const Machine&) { return time_of(r.single); }},
      {"one_element_call_over_libm", "call/libm", 2,
       [](const Row& r, const Machine&) -> std::optional<double> {
         if (!r.single || !r.single_libm) return std::nullopt;
         return r.single->median / r.single_libm->median;
       }},
      {"baseline_ns", "baseline", 2,
       [](const Row& r, const Machine&) { return time_of(r.baseline); }},
      {"ratio_baseline", "x baseline", 3,
       [](const Row& r, const Machine&) { return ratio(r.baseline, r.own); }},
  };
  return all;
}

// Columns that some row has a value for.
std::vector<const Column*> used_columns(const std::vector<Row>& rows, const Machine& machine) {
  std::vector<const Column*> used;
  for (const Column& c : columns())
    if (std::ranges::any_of(rows, [&](const Row& r) { return c.value(r, machine).has_value(); }))
      used.push_back(&c);
  return used;
}

std::string cell(const Column& column, const Row& row, const Machine& machine,
                 const char* nothing) {
  const auto value = column.value(row, machine);
  if (!value) return nothing;
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", column.digits, *value);
  return text;
}

std::string range_text(const Workload& w) {
  std::string text =
      std::string(w.range) + " [" + format("%.4g", w.low) + ", " + format("%.4g", w.high) + "]";
  if (w.exceptional != 0) text += ", " + std::to_string(w.exceptional) + " % exceptional";
  if (w.in_place) text += ", in place";
  return text;
}

std::string processor_name() {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);)
    if (line.starts_with("model name")) return line.substr(line.find(':') + 2);
  return "unknown processor";
}

bool by_length(const std::vector<Row>& rows) {
  return std::ranges::any_of(
      rows, [&](const Row& r) { return r.workload.length != rows.front().workload.length; });
}

// Only the grade with the smallest errors: the others share its code or are close.
std::vector<const Row*> best_grades(const std::vector<Row>& rows) {
  std::vector<const Row*> best;
  for (const Row& r : rows)
    if (r.function->grade == "A53" || r.function->grade == "A24") best.push_back(&r);
  if (best.empty())
    for (const Row& r : rows) best.push_back(&r);
  return best;
}

std::string data_block(const std::vector<std::string>& lines) {
  std::string text = "$data << EOD\n";
  for (const std::string& line : lines) text += line + "\n";
  return text + "EOD\n";
}

std::string bars(const std::vector<Row>& rows) {
  std::vector<std::string> lines;
  for (const Row* r : best_grades(rows)) {
    const auto first = r->baseline ? ratio(r->baseline, r->own) : ratio(r->plain, r->own);
    const auto second = ratio(r->stored, r->own);
    std::string name(r->function->family.name);
    if (r->workload.range != "main") name += " " + std::string(r->workload.range);
    name += " " + std::string(r->function->type_name());
    lines.push_back("\"" + name + "\" " + format("%.3f", first.value_or(0)) + " " +
                    format("%.3f", second.value_or(0)));
  }
  const bool compared = rows.front().baseline.has_value();
  std::string text = data_block(lines);
  text +=
      "set style data histograms\nset style fill solid 0.85 border -1\n"
      "set boxwidth 0.9\nset xtics rotate by 60 right font ',10'\nset grid ytics\n"
      "set yrange [0:*]\nset ylabel 'times faster'\n"
      "set arrow from graph 0, first 1 to graph 1, first 1 nohead lc rgb '#444444' dt 2 front\n";
  if (compared)
    return text +
           "set title 'This build against the baseline'\n"
           "plot $data using 2:xtic(1) title 'x baseline' lc rgb '#2266aa'\n";
  return text +
         "set title 'Against a scalar loop over the system''s libm'\n"
         "plot $data using 2:xtic(1) title 'x plain loop' lc rgb '#2266aa', "
         "'' using 3 title 'x loop with stored arguments' lc rgb '#dd8844'\n";
}

std::string lines_over_length(const std::vector<Row>& rows) {
  std::string text, plots;
  std::vector<std::string_view> names;
  for (const Row& r : rows)
    if (std::ranges::find(names, r.function->name) == names.end())
      names.push_back(r.function->name);
  for (size_t k = 0; k < names.size(); ++k) {
    const std::string block = "$f" + std::to_string(k);
    text += block + " << EOD\n";
    for (const Row& r : rows)
      if (r.function->name == names[k])
        text += std::to_string(r.workload.length) + " " + format("%.3f", r.own.median) + "\n";
    text += "EOD\n";
    plots += (k == 0 ? "" : ", ") + block + " using 1:2 with linespoints title '" +
             std::string(names[k]) + "' noenhanced";
  }
  return text +
         "set logscale x 2\nset format x '2^{%L}'\nset xlabel 'elements of a call'\nset ylabel 'ns "
         "an element'\n"
         "set yrange [0:*]\nset grid\nset title 'Time of an element over the length of a call'\n"
         "plot " +
         plots + "\n";
}

}  // namespace

Machine this_machine() {
  const LibraryVersion& v = *dakvmGetLibVersion();
  Machine m;
  m.processor = processor_name();
  m.compiler =
#ifdef __clang__
      "clang++ " __clang_version__;
#else
      "g++ " __VERSION__;
#endif
  m.compiler += sizeof(void*) == 4 ? ", -m32" : ", -m64";
  m.libm = std::string("glibc ") + gnu_get_libc_version();
  m.library = std::string(v.name) + " " + v.version;
  m.clock = measure_clock();
  return m;
}

std::string describe(const Machine& machine) {
  return machine.library + ", " + machine.compiler + ", " + machine.libm + "\n" +
         machine.processor + ", core " + format("%.2f GHz", machine.clock.core) + ", time stamps " +
         format("%.2f GHz", machine.clock.time_stamp);
}

std::string table(const std::vector<Row>& rows, const Machine& machine) {
  const auto used = used_columns(rows, machine);
  std::string text = describe(machine) + "\n\n";
  char part[64];
  std::snprintf(part, sizeof part, "%-20s", "function");
  text += part;
  for (const Column* c : used) {
    std::snprintf(part, sizeof part, " %10s", c->title);
    text += part;
  }
  text += "  arguments\n";
  for (const Row& r : rows) {
    std::snprintf(part, sizeof part, "%-20s", std::string(r.function->name).c_str());
    text += part;
    for (const Column* c : used) {
      std::snprintf(part, sizeof part, " %10s", cell(*c, r, machine, "-").c_str());
      text += part;
    }
    text += "  " + range_text(r.workload) + "\n";
  }
  return text;
}

std::string markdown(const std::vector<Row>& rows, const Machine& machine) {
  constexpr std::string_view left_out[] = {"length", "spread_percent", "elements_per_second",
                                           "time_stamp_cycles", "one_element_call_ns"};
  auto used = used_columns(rows, machine);
  std::erase_if(used, [&](const Column* c) {
    return std::ranges::find(left_out, c->name) != std::end(left_out);
  });
  std::string text = "| function |", rule = "|---|";
  for (const Column* c : used) {
    text += std::string(" ") + c->title + " |";
    rule += "---:|";
  }
  text += "\n" + rule + "\n";
  for (const Row& r : rows) {
    text += "| " + std::string(r.function->name) +
            (r.workload.range == "main" ? "" : " " + std::string(r.workload.range)) + " |";
    for (const Column* c : used) text += " " + cell(*c, r, machine, "") + " |";
    text += "\n";
  }
  return text;
}

std::string csv(const std::vector<Row>& rows, const Machine& machine) {
  const auto used = used_columns(rows, machine);
  std::string text = "function,range,low,high,exceptional_percent,in_place";
  for (const Column* c : used) text += std::string(",") + c->name;
  text += "\n";
  for (const Row& r : rows) {
    const Workload& w = r.workload;
    text += std::string(r.function->name) + "," + std::string(w.range) + "," +
            format("%.17g", w.low) + "," + format("%.17g", w.high) + "," +
            std::to_string(w.exceptional) + "," + (w.in_place ? "1" : "0");
    for (const Column* c : used) text += "," + cell(*c, r, machine, "");
    text += "\n";
  }
  return text;
}

std::string json(const std::vector<Row>& rows, const Machine& machine) {
  using tool::json_string;
  std::string text =
      "{\"library\":" + json_string(machine.library) +
      ",\"compiler\":" + json_string(machine.compiler) + ",\"libm\":" + json_string(machine.libm) +
      ",\"processor\":" + json_string(machine.processor) +
      ",\"core_ghz\":" + format("%.4f", machine.clock.core) +
      ",\"time_stamp_ghz\":" + format("%.4f", machine.clock.time_stamp) + ",\n\"rows\":[";
  const char* separator = "\n";
  for (const Row& r : rows) {
    const Workload& w = r.workload;
    text += std::string(separator) + "{\"function\":" + json_string(r.function->name) +
            ",\"range\":" + json_string(w.range) + ",\"low\":" + format("%.17g", w.low) +
            ",\"high\":" + format("%.17g", w.high) +
            ",\"exceptional_percent\":" + std::to_string(w.exceptional) +
            ",\"in_place\":" + (w.in_place ? "true" : "false");
    for (const Column& c : columns())
      text += std::string(",\"") + c.name + "\":" + cell(c, r, machine, "null");
    text += "}";
    separator = ",\n";
  }
  return text + "\n]}\n";
}

std::string plot(const std::vector<Row>& rows, const std::string& svg) {
  std::string quoted;
  for (const char c : svg) quoted += c == '\'' ? std::string("''") : std::string(1, c);
  const size_t bars_shown = by_length(rows) ? 0 : best_grades(rows).size();
  return "set terminal svg size " + std::to_string(std::max<size_t>(800, 24 * bars_shown)) +
         ",480 dynamic font 'sans,12' background '#ffffff'\nset output '" + quoted + "'\n" +
         (by_length(rows) ? lines_over_length(rows) : bars(rows));
}

void draw(const std::string& script) {
  std::FILE* gnuplot = popen("gnuplot", "w");
  const bool written =
      gnuplot != nullptr && std::fwrite(script.data(), 1, script.size(), gnuplot) == script.size();
  if (gnuplot == nullptr || pclose(gnuplot) != 0 || !written)
    throw Error(Exit::unwritable,
                "gnuplot could not draw the plot; is it installed (package gnuplot-nox)?");
}

}  // namespace dakvm::bench
