#include "published.hpp"

#include <cmath>
#include <cstdio>
#include <fstream>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "judge.hpp"
#include "report.hpp"

namespace dakvm::accuracy {
namespace {

using Json = nlohmann::ordered_json;

constexpr uint64_t published_seed = 1;

double digits5(double x) { return std::round(x * 1e5) / 1e5; }

Json witness_json(const Function& f, const Witness& w) {
  return {{"ulp", digits5(w.ulp)},
          {"input", argument_text(f, w)},
          {"words", argument_words(f, w)},
          {"got", hex_word(w.got, f.bytes())},
          {"expected", hex_word(w.expected, f.bytes())},
          {"output", w.output + 1}};
}

Json figures(const Function& f, const Tally& t) {
  return {{"worst", witness_json(f, t.worst)}, {"mean", digits5(t.mean())},
          {"percent", percent_text(t)},        {"results", t.results},
          {"misrounded", t.misrounded()},      {"wrong_statuses", t.wrong_statuses},
          {"wrong_flags", t.wrong_flags},      {"not_monotone", t.not_monotone}};
}

Json read_json(const std::string& path) {
  std::ifstream file(path);
  if (!file) return Json::array();
  return Json::parse(file);
}

std::string read_text(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error(path + " cannot be read");
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// Appears when it is complete.
void write_text(const std::string& path, const std::string& text) {
  const std::string part = path + ".part";
  std::ofstream file(part);
  file << text;
  file.close();
  if (!file || std::rename(part.c_str(), path.c_str()) != 0)
    throw std::runtime_error(path + " cannot be written");
}

// The records in the order of the functions; those of functions that are no more fall out.
void write_records(const std::string& path, const Json& records) {
  Json sorted = Json::array();
  for (const Function& f : functions())
    for (const Json& record : records)
      if (record["function"] == f.name) sorted.push_back(record);
  write_text(path, sorted.dump(1) + "\n");
}

const Json* record_of(const Json& records, const std::string& function) {
  for (const Json& record : records)
    if (record["function"] == function) return &record;
  return nullptr;
}

void complain(bool& good, const std::string& function, const std::string& what) {
  std::fprintf(stderr, "%s: %s\n", function.c_str(), what.c_str());
  good = false;
}

std::string text_of(double ulp) {
  char text[40];
  std::snprintf(text, sizeof text, "%.5f", ulp);
  return text;
}

bool is_exhaustive(const Function& f) {
  return f.is_single() && f.sources() == 1 && f.is_vector() && f.traits->wide != nullptr;
}

template <class T>
std::vector<Measurement> measure_row(const std::vector<const Function*>& group, const Limit& row,
                                     uint64_t samples, const Setting& setting, bool ends = true) {
  return measure(group, sample<T>(*group[0], row.low, row.high, samples, published_seed, ends),
                 Modes{}, setting);
}

// One group of functions with the same rows: a record for each.
template <class T>
void publish_group(const std::vector<const Function*>& group, const Publication& publication,
                   const Setting& setting, const std::string& version, Json& records, bool& good) {
  std::vector<Json> own(group.size());
  std::vector<Tally> all(group.size());  // everything that was sampled
  std::vector<Witness> worst(group.size());
  std::vector<bool> same(group.size(), true);
  const bool exhaustive = !publication.quick && is_exhaustive(*group[0]);
  const auto take = [&](size_t g, const Measurement& m) {
    if (m.tally.worst.ulp > worst[g].ulp) worst[g] = m.tally.worst;
    same[g] = same[g] && m.same_as == group[0];
  };

  std::vector<Json> intervals(group.size(), Json::array());
  if (exhaustive) {
    const auto measured = measure_exhaustively(group, setting);
    for (size_t g = 0; g < group.size(); ++g) {
      all[g] = measured[g].tally;
      take(g, measured[g]);
    }
  } else {
    for (const Limit& row : limits_of(*group[0])) {
      if (row.samples == 0) continue;
      const auto measured = measure_row<T>(group, row, publication.samples, setting);
      for (size_t g = 0; g < group.size(); ++g) {
        const Tally& t = measured[g].tally;
        Json interval = {
            {"low", hex_number(row.low)}, {"high", hex_number(row.high)}, {"bound", row.ulp}};
        interval.update(figures(*group[g], t));
        intervals[g].push_back(interval);
        all[g].add(t);
        take(g, measured[g]);
        if (t.worst.ulp > row.ulp || (t.worst.ulp < 0.98 * row.ulp && g == 0))
          complain(good, group[g]->name,
                   interval_text(row.low, row.high) + ": bound " + text_of(row.ulp) +
                       ", measured " + text_of(t.worst.ulp));
      }
    }
  }
  std::vector<Json> hard(group.size());
  if (const auto inputs = hard_inputs<T>(*group[0]); group[0]->is_vector() && inputs.size() > 0) {
    const auto measured = measure(group, inputs, Modes{}, setting);
    for (size_t g = 0; g < group.size(); ++g) {
      hard[g] = figures(*group[g], measured[g].tally);
      take(g, measured[g]);
    }
  }
  for (size_t g = 0; g < group.size(); ++g) {
    const Function& f = *group[g];
    const double bound = bound_of(f).value_or(0);
    if (worst[g].ulp > bound)
      complain(good, f.name,
               "bound " + text_of(bound) + ", measured " + text_of(worst[g].ulp) + " at " +
                   argument_text(f, worst[g]));
    if (all[g].wrong_statuses != 0 || all[g].wrong_flags != 0 || all[g].out_of_range != 0)
      complain(good, f.name, "wrong statuses, flags or ranges");
    Json record = {{"function", f.name},
                   {"family", f.family},
                   {"type", f.is_single() ? "32f" : "64f"},
                   {"grade", f.grade},
                   {"library", version},
                   {"exhaustive", exhaustive},
                   {"method", exhaustive ? "all floats" : "sampled"},
                   {"samples", exhaustive ? 0 : publication.samples},
                   {"seed", exhaustive ? 0 : published_seed},
                   {"bound", bound},
                   {"same_as", g > 0 && same[g] ? Json(group[0]->name) : Json()}};
    record.update(figures(f, all[g]));
    record["worst"] = witness_json(f, worst[g]);  // hard inputs included
    if (!exhaustive) record["intervals"] = intervals[g];
    if (!hard[g].is_null()) record["hard"] = hard[g];
    std::erase_if(records.get_ref<Json::array_t&>(),
                  [&](const Json& r) { return r["function"] == f.name; });
    records.push_back(record);
  }
}

Witness witness_of(const Json& worst) {
  Witness w;
  std::istringstream words(worst["words"].get<std::string>());
  std::string word;
  for (int s = 0; s < 2 && words >> word; ++s) w.in[s] = std::stoull(word, nullptr, 16);
  return w;
}

// The published figures of a group against a slice of what they were measured on.
template <class T>
void verify_group(const std::vector<const Function*>& group, const Json& records,
                  const Publication& publication, const Setting& setting, bool& good) {
  std::vector<const Json*> published;
  for (const Function* f : group) {
    published.push_back(record_of(records, f->name));
    if (published.back() == nullptr) {
      complain(good, f->name, "no published record; scripts/measure-accuracy.sh makes one");
      return;
    }
  }
  const auto compare = [&](size_t g, const Tally& t, const Json& figures, const char* what) {
    if (digits5(t.worst.ulp) > figures["worst"]["ulp"].get<double>())
      complain(good, group[g]->name,
               std::string(what) + ": error " + text_of(t.worst.ulp) + " at " +
                   argument_text(*group[g], t.worst) + ", published is less");
    // Not more of them misrounded than published, by five standard deviations of the slice. Of all
    // floats, misrounded ones need not be spread evenly: only that there are none carries over.
    const double count = static_cast<double>(t.results),
                 share = figures["misrounded"].get<double>() / figures["results"].get<double>(),
                 most = share * count + 5 * std::sqrt(share * count) + (share > 0 ? 3 : 0);
    const bool even = !figures.value("exhaustive", false) || share == 0;
    if (even && static_cast<double>(t.misrounded()) > most)
      complain(
          good, group[g]->name,
          std::string(what) + ": " + percent_text(t) + " % correctly rounded, published is more");
    if (t.wrong_statuses > figures["wrong_statuses"].get<uint64_t>() ||
        t.wrong_flags > figures["wrong_flags"].get<uint64_t>())
      complain(good, group[g]->name, std::string(what) + ": wrong statuses or flags");
  };
  const auto check_same = [&](size_t g, const Measurement& m) {
    if (!(*published[g])["same_as"].is_null() && m.same_as != group[0])
      complain(good, group[g]->name, "no longer the results of " + group[0]->name);
  };

  size_t sampled = 0;
  for (const Limit& row : limits_of(*group[0])) {
    if (row.samples == 0) continue;
    const auto measured = measure_row<T>(group, row, publication.samples, setting, false);
    for (size_t g = 0; g < group.size(); ++g) {
      const Json& record = *published[g];
      if (!record["exhaustive"].get<bool>() && record["intervals"].size() <= sampled) {
        complain(good, group[g]->name, "an interval is not published");
        continue;
      }
      compare(g, measured[g].tally,
              record["exhaustive"].get<bool>() ? record : record["intervals"][sampled],
              interval_text(row.low, row.high).c_str());
      check_same(g, measured[g]);
    }
    ++sampled;
  }
  const auto inputs = hard_inputs<T>(*group[0]);
  if (group[0]->is_vector() && inputs.size() > 0) {
    const auto measured = measure(group, inputs, Modes{}, setting);
    for (size_t g = 0; g < group.size(); ++g) {
      if (!published[g]->contains("hard") ||
          figures(*group[g], measured[g].tally) != (*published[g])["hard"])
        complain(good, group[g]->name, "the figures of its hard inputs are others than published");
      check_same(g, measured[g]);
    }
  }
  for (size_t g = 0; g < group.size(); ++g) {
    const Json& record = *published[g];
    const Witness w = witness_of(record["worst"]);
    Inputs<T> one;
    for (int s = 0; s < 2; ++s) one.in[s].push_back(static_cast<Word<T>>(w.in[s]));
    const auto measured = measure({group[g]}, one, Modes{}, setting);
    if (witness_json(*group[g], measured[0].tally.worst) != record["worst"])
      complain(good, group[g]->name, "its worst input has another error than published");
    if (record["bound"].get<double>() != bound_of(*group[g]).value_or(0))
      complain(good, group[g]->name, "its bound in limits.inc is not the published one");
  }
}

template <class Body>
void for_each_group(const std::vector<const Function*>& functions, Body body) {
  for (const auto& group : groups(functions)) {
    if (limits_of(*group[0]).empty())
      throw std::runtime_error(group[0]->name + " has no row in tests/accuracy/limits.inc");
    body(group);
  }
}

}  // namespace

bool publish(const std::vector<const Function*>& functions, const Publication& publication,
             const Setting& setting) {
  bool good = true;
  Json records = read_json(publication.path);
  const std::string version = Worker(setting.library).version();
  for_each_group(functions, [&](const auto& group) {
    std::fprintf(stderr, "%s\n", group[0]->name.c_str());
    if (group[0]->is_single())
      publish_group<float>(group, publication, setting, version, records, good);
    else
      publish_group<double>(group, publication, setting, version, records, good);
    write_records(publication.path, records);  // what is done stays done
  });
  return good;
}

bool verify(const std::vector<const Function*>& functions, const Publication& publication,
            const Setting& setting) {
  bool good = true;
  const Json records = read_json(publication.path);
  for_each_group(functions, [&](const auto& group) {
    if (group[0]->is_single())
      verify_group<float>(group, records, publication, setting, good);
    else
      verify_group<double>(group, records, publication, setting, good);
  });
  return good;
}

namespace {

std::string percent_or_all(const Json& record) {
  if (record["misrounded"] == 0)
    return record["exhaustive"].get<bool>()
               ? "correctly rounded for every argument"
               : "none of " + std::to_string(record["results"].get<uint64_t>()) + " misrounded";
  return record["percent"].get<std::string>() + " % correctly rounded";
}

std::string ulp_text(const Json& record) {
  return text_of(record["worst"]["ulp"].get<double>()) + " ulp";
}

// "A53 0.50234 ulp, 99.964 % correctly rounded; A50 ...; 32f correctly rounded for every argument."
std::string family_figures(const Json& records, const std::string& family) {
  std::string text;
  for (const char* type : {"64f", "32f"}) {
    std::vector<const Json*> distinct;
    for (const Json& r : records)
      if (r["family"] == family && r["type"] == type && r["same_as"].is_null() &&
          r["grade"] != "scalar")
        distinct.push_back(&r);
    for (const Json* r : distinct) {
      const std::string which =
          distinct.size() == 1 ? type : std::string(type) + " " + (*r)["grade"].get<std::string>();
      text += (text.empty() ? "" : "; ") + which + " ";
      const bool is_perfect = (*r)["exhaustive"].get<bool>() && (*r)["misrounded"] == 0;
      text += is_perfect ? percent_or_all(*r) : ulp_text(*r) + ", " + percent_or_all(*r);
    }
  }
  return text.empty() ? "" : text + ".";
}

// A paragraph of the header's docstrings, 100 columns wide.
std::string paragraph(const std::string& label, const std::string& text) {
  std::string result, line = " * " + label;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    if (line.size() + 1 + word.size() > 100) {
      result += line + "\n";
      line = " *          ";
    }
    line += " " + word;
  }
  return result + line + "\n";
}

// The header with the `Accuracy:` paragraph of every family that has records written anew: its line
// and those that continue it.
std::string with_figures(const std::string& header, const Json& records) {
  constexpr std::string_view label = "Accuracy:", continued = " *           ";
  std::vector<std::string> lines;
  std::istringstream in(header);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  std::string result;
  for (size_t i = 0; i < lines.size(); ++i) {
    if (!lines[i].starts_with(" * Accuracy: ")) {
      result += lines[i] + "\n";
      continue;
    }
    size_t end = i + 1;
    while (end < lines.size() && lines[end].starts_with(continued)) ++end;
    std::string family;
    constexpr std::string_view prototype = "int32_t daks";
    for (size_t k = end; k < lines.size() && family.empty(); ++k) {
      if (lines[k].find("@}") != std::string::npos) break;  // a group of other entries
      if (lines[k].starts_with(prototype))
        family = lines[k].substr(prototype.size(),
                                 lines[k].find('_', prototype.size()) - prototype.size());
    }
    const std::string figures = family_figures(records, family);
    if (figures.empty()) {
      for (; i < end; ++i) result += lines[i] + "\n";
    } else {
      result += paragraph(std::string(label), figures);
    }
    i = end - 1;
  }
  return result;
}

std::string markdown_row(const Json& record, const std::string& where, const Json& figures,
                         const std::string& bound) {
  const Json& worst = figures["worst"];
  return "| `" + record["function"].get<std::string>() + "` | " + where + " | " + bound + " | " +
         text_of(worst["ulp"].get<double>()) + " | `" + worst["input"].get<std::string>() + "` | " +
         text_of(figures["mean"].get<double>()) + " | " + figures["percent"].get<std::string>() +
         " | " + std::to_string(figures["misrounded"].get<uint64_t>()) + " of " +
         std::to_string(figures["results"].get<uint64_t>()) + " |\n";
}

std::string bound_text(double bound) {
  char text[40];
  std::snprintf(text, sizeof text, "%.5g", bound);
  return text;
}

std::string page(const Json& records) {
  std::string text =
      "# Measured accuracy\n\n"
      "Written by `dakvm-accuracy document` from [accuracy.json](accuracy.json); not to be "
      "edited.\n"
      "`scripts/measure-accuracy.sh` measures everything anew.\n\n"
      "Errors are in units of the last place of the exact result (MPFR), with 64-bit precision "
      "and\n"
      "rounding to nearest. Every figure can be had again, digit for digit:\n\n"
      "| rows | command |\n|---|---|\n"
      "| an interval | `build/release/dakvm-accuracy FUNCTION` |\n"
      "| all floats | `build/release/dakvm-accuracy FUNCTION --exhaustive` |\n"
      "| hard inputs | `build/release/dakvm-accuracy FUNCTION --hard` |\n\n"
      "Of an interval 1000000 numbers are sampled, half of them spread evenly over its numbers, "
      "half\n"
      "over its values, and the 4001 numbers around its ends are added; a second argument comes "
      "from\n"
      "the same interval. Hard inputs are a committed selection (`tests/accuracy/hard.inc`) and "
      "what\n"
      "searches found (`worst.inc`). The bound is what the tests hold the library to\n"
      "(`tests/accuracy/limits.inc`). Statuses and flags are checked for every element. Functions "
      "that\n"
      "are not listed returned the bits, statuses and flags of a listed one of the same type "
      "wherever\n"
      "they were compared (of all floats, on one block of 2^14 in 16): `same_as` in accuracy.json.\n";
  std::string family;
  for (const Json& r : records) {
    if (!r["same_as"].is_null()) continue;
    if (r["family"] != family) {
      family = r["family"].get<std::string>();
      text +=
          "\n## " + (r["grade"] == "scalar" ? r["function"].get<std::string>() : family) + "\n\n";
      if (r["grade"] != "scalar")
        text += "![Errors of " + family + " over its argument](accuracy/" + family + ".svg)\n\n";
      text +=
          "| function | arguments | bound | largest error (ulp) | at | mean | correctly rounded "
          "(%) "
          "| misrounded |\n|---|---|---|---|---|---|---|---|\n";
    }
    const std::string bound = bound_text(r["bound"].get<double>());
    if (r["exhaustive"].get<bool>())
      text += markdown_row(r, "all floats", r, bound);
    else
      for (const Json& interval : r["intervals"])
        text += markdown_row(r,
                             interval_text(parse_number(interval["low"].get<std::string>()),
                                           parse_number(interval["high"].get<std::string>())),
                             interval, bound_text(interval["bound"].get<double>()));
    if (r.contains("hard")) text += markdown_row(r, "hard inputs", r["hard"], bound);
  }
  return text;
}

}  // namespace

bool document(const Publication& publication, const std::string& markdown,
              const std::string& header, bool check) {
  const Json records = read_json(publication.path);
  if (records.empty()) throw std::runtime_error(publication.path + " has no records");
  const std::string old_header = read_text(header);
  const std::string new_header = with_figures(old_header, records), new_page = page(records);
  if (!check) {
    write_text(markdown, new_page);
    if (new_header != old_header) write_text(header, new_header);
    return true;
  }
  bool good = true;
  if (new_header != old_header)
    complain(good, header, "its Accuracy paragraphs are not those of " + publication.path);
  if (new_page != read_text(markdown)) complain(good, markdown, "not what the records say");
  return good;
}

namespace {

constexpr int plot_columns = 240, plot_samples = 300;

// Arguments spread over several powers of ten are drawn on a logarithmic axis.
bool is_logarithmic(const Function& f) { return f.low > 0 && f.high / f.low >= 100; }

double argument_at(const Function& f, double share) {
  return is_logarithmic(f) ? f.low * std::pow(f.high / f.low, share)
                           : f.low + (f.high - f.low) * share;
}

// The largest error in each column of the plot; of two arguments the second is any of the interval.
template <class T>
std::vector<double> largest_errors(const Function& f, Worker& worker) {
  Inputs<T> inputs;
  std::mt19937_64 random(1);
  const auto share = [&] { return static_cast<double>(random() >> 11) * 0x1p-53; };
  for (int column = 0; column < plot_columns; ++column)
    for (int i = 0; i < plot_samples; ++i) {
      inputs.in[0].push_back(
          word_of(static_cast<T>(argument_at(f, (column + share()) / plot_columns))));
      inputs.in[1].push_back(word_of(static_cast<T>(argument_at(f, share()))));
    }
  Outputs<T> outputs;
  worker.evaluate(f, {}, Calls::single, inputs, outputs);
  Judge judge(f, {});
  std::vector<double> largest;
  for (size_t column = 0; column < plot_columns; ++column) {
    Tally tally;
    for (size_t i = 0; i < plot_samples; ++i)
      judge.element(inputs, outputs, column * plot_samples + i, tally);
    largest.push_back(tally.worst.ulp);
  }
  return largest;
}

}  // namespace

std::string plot_table(const std::string& family, const Setting& setting) {
  Worker worker(setting.library);
  std::vector<std::vector<double>> curves;
  const Function* first = nullptr;
  for (const char* grade : {"A53", "A50", "A24"}) {
    const Function& f = *find(family, "", grade)[0];
    if (first == nullptr) first = &f;
    curves.push_back(f.is_single() ? largest_errors<float>(f, worker)
                                   : largest_errors<double>(f, worker));
  }
  std::string text = is_logarithmic(*first) ? "# logarithmic\n" : "# linear\n";
  char line[160];
  for (size_t column = 0; column < plot_columns; ++column) {
    std::snprintf(line, sizeof line, "%.6g %.5f %.5f %.5f\n",
                  argument_at(*first, (static_cast<double>(column) + 0.5) / plot_columns),
                  curves[0][column], curves[1][column], curves[2][column]);
    text += line;
  }
  return text;
}

}  // namespace dakvm::accuracy
