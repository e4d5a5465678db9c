#include "report.hpp"

#include <cstdarg>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "judge.hpp"

namespace dakvm::accuracy {
namespace {

using Json = nlohmann::ordered_json;

[[gnu::format(printf, 1, 2)]] std::string text_of(const char* format, ...) {
  char buffer[512];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(buffer, sizeof buffer, format, arguments);
  va_end(arguments);
  return buffer;
}

std::string input(const Function& function, const uint64_t (&in)[2], int s) {
  return hex_number(function.is_single() ? number_of<float>(in[s]) : number_of<double>(in[s]));
}

unsigned long long number(uint64_t count) { return count; }

}  // namespace

bool Report::holds() const {
  const Tally& t = measurement.tally;
  return (!bound || t.worst.ulp <= *bound) && t.wrong_statuses == 0 && t.wrong_flags == 0 &&
         t.out_of_range == 0;
}

std::string interval_text(double low, double high) { return text_of("[%.9g, %.9g]", low, high); }

char rounding_letter(Rounding rounding) { return "nduz"[static_cast<int>(rounding)]; }

int precision_bits(Precision precision) {
  return precision == Precision::bits24 ? 24 : precision == Precision::bits53 ? 53 : 64;
}

std::string argument_text(const Function& function, const Witness& witness) {
  std::string text = input(function, witness.in, 0);
  if (function.sources() == 2) text += ", " + input(function, witness.in, 1);
  return text;
}

std::string argument_words(const Function& function, const Witness& witness) {
  std::string text = hex_word(witness.in[0], function.bytes());
  if (function.sources() == 2) text += ", " + hex_word(witness.in[1], function.bytes());
  return text;
}

// 100 is said only when it is true.
std::string percent_text(const Tally& tally) {
  if (tally.misrounded() == 0) return "100";
  const std::string text = text_of("%.3f", tally.percent());
  return text == "100.000" ? text_of("%.7f", tally.percent()) : text;
}

std::string as_text(const Report& report) {
  const Measurement& m = report.measurement;
  const Function& f = *m.function;
  const Tally& t = m.tally;
  std::string text = f.name + " " + report.what;
  if (!report.modes.usual())
    text += text_of(", rounding %c, precision %d", rounding_letter(report.modes.rounding),
                    precision_bits(report.modes.precision));
  text += "\n";
  if (m.same_as != nullptr)
    return text + "  results, statuses and flags are those of " + m.same_as->name + "; " +
           (report.holds() ? "PASS" : "FAIL") + "\n";
  if (t.worst.ulp >= 0) {
    text += text_of("  largest error      %.5f ulp at %s (%s)\n", t.worst.ulp,
                    argument_text(f, t.worst).c_str(), argument_words(f, t.worst).c_str());
    text += text_of(
        "                     got %s, expected %s%s\n", hex_word(t.worst.got, f.bytes()).c_str(),
        hex_word(t.worst.expected, f.bytes()).c_str(),
        f.destinations() == 2 ? t.worst.output == 0 ? ", first result" : ", second result" : "");
  }
  text += text_of("  mean error         %.5f ulp\n", t.mean());
  text += text_of("  correctly rounded  %s %% of %llu, %llu are not\n", percent_text(t).c_str(),
                  number(t.results), number(t.misrounded()));
  text += "  histogram         ";
  for (size_t bin = 0; bin < t.histogram.size(); ++bin)
    if (t.histogram[bin] != 0)
      text += bin < histogram_ends.size()
                  ? text_of(" <%g: %llu", histogram_ends[bin], number(t.histogram[bin]))
                  : text_of(" more: %llu", number(t.histogram[bin]));
  text += "\n";
  if (report.modes.usual() && f.is_vector()) {
    text += text_of("  wrong statuses     %llu", number(t.wrong_statuses));
    if (t.wrong_statuses != 0)
      text += " (first at " + argument_text(f, t.wrong_status) + ": " +
              status_name(static_cast<int>(t.wrong_status.got)) + ", not " +
              status_name(static_cast<int>(t.wrong_status.expected)) + ")";
    text += text_of("\n  wrong flags        %llu", number(t.wrong_flags));
    if (t.wrong_flags != 0)
      text += " (first at " + argument_text(f, t.wrong_flag) + ": " +
              flag_names(static_cast<uint8_t>(t.wrong_flag.got)) + ", not " +
              flag_names(static_cast<uint8_t>(t.wrong_flag.expected)) + ")";
    text += "\n";
  }
  if (t.not_monotone != 0) text += text_of("  not monotone at    %llu\n", number(t.not_monotone));
  if (t.out_of_range != 0) text += text_of("  out of range       %llu\n", number(t.out_of_range));
  if (report.bound)
    text += text_of("  %s: bound %.5g ulp\n", report.holds() ? "PASS" : "FAIL", *report.bound);
  else
    text += text_of("  %s: no bound is claimed here\n", report.holds() ? "PASS" : "FAIL");
  return text;
}

std::string as_csv(const std::vector<Report>& reports) {
  std::string text =
      "function,low,high,method,samples,seed,rounding,precision,results,max_ulp,worst_1,worst_2,"
      "worst_got,worst_expected,mean_ulp,percent_correct,misrounded,wrong_statuses,wrong_flags,"
      "bound,verdict\n";
  for (const Report& r : reports) {
    const Function& f = *r.measurement.function;
    const Tally& t = r.measurement.tally;
    text += f.name + "," + hex_number(r.low) + "," + hex_number(r.high) + "," + r.method + "," +
            text_of("%llu,%llu,%c,%d,%llu,%.5f,", number(r.samples), number(r.seed),
                    rounding_letter(r.modes.rounding), precision_bits(r.modes.precision),
                    number(t.results), t.worst.ulp) +
            input(f, t.worst.in, 0) + "," + (f.sources() == 2 ? input(f, t.worst.in, 1) : "") +
            "," + hex_word(t.worst.got, f.bytes()) + "," + hex_word(t.worst.expected, f.bytes()) +
            text_of(",%.5f,%s,%llu,%llu,%llu,", t.mean(), percent_text(t).c_str(),
                    number(t.misrounded()), number(t.wrong_statuses), number(t.wrong_flags)) +
            (r.bound ? text_of("%.5g", *r.bound) : "") + "," + (r.holds() ? "PASS" : "FAIL") + "\n";
  }
  return text;
}

std::string as_json(const std::vector<Report>& reports) {
  Json all = Json::array();
  for (const Report& r : reports) {
    const Function& f = *r.measurement.function;
    const Tally& t = r.measurement.tally;
    Json histogram = Json::array();
    for (size_t bin = 0; bin < t.histogram.size(); ++bin)
      histogram.push_back(
          {{"below", bin < histogram_ends.size() ? Json(histogram_ends[bin]) : Json()},
           {"results", t.histogram[bin]}});
    all.push_back({{"function", f.name},
                   {"low", hex_number(r.low)},
                   {"high", hex_number(r.high)},
                   {"method", r.method},
                   {"samples", r.samples},
                   {"seed", r.seed},
                   {"rounding", std::string(1, rounding_letter(r.modes.rounding))},
                   {"precision", precision_bits(r.modes.precision)},
                   {"results", t.results},
                   {"max_ulp", t.worst.ulp},
                   {"worst", argument_text(f, t.worst)},
                   {"worst_words", argument_words(f, t.worst)},
                   {"got", hex_word(t.worst.got, f.bytes())},
                   {"expected", hex_word(t.worst.expected, f.bytes())},
                   {"mean_ulp", t.mean()},
                   {"percent_correct", t.percent()},
                   {"misrounded", t.misrounded()},
                   {"histogram", histogram},
                   {"wrong_statuses", t.wrong_statuses},
                   {"wrong_flags", t.wrong_flags},
                   {"bound", r.bound ? Json(*r.bound) : Json()},
                   {"pass", r.holds()}});
  }
  return all.dump(1) + "\n";
}

}  // namespace dakvm::accuracy
