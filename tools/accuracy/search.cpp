#include "search.hpp"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <memory>
#include <numeric>
#include <random>
#include <sstream>

#include "jobs.hpp"
#include "judge.hpp"
#include "near_half_pi.hpp"
#include "report.hpp"
#include "tools/dakvm/progress.hpp"

namespace dakvm::accuracy {
namespace {

using Clock = std::chrono::steady_clock;

struct Place {
  uint64_t in[2];
  double ulp;
};

bool worse(const Place& a, const Place& b) { return a.ulp > b.ulp; }

class Climb {
 public:
  Climb(const Function& f, const Setting& setting)
      : f_(f), worker_(setting.library), judge_(f, {}) {}

  void seed(uint64_t value) { random_.seed(value); }

  // The worst place that one round finds: 4096 starts, then steps from the 16 worst.
  Place round(const Limit& row, const std::vector<double>& candidates) {
    std::vector<Place> places;
    std::uniform_int_distribution<int64_t> spread(place(row.low), place(row.high));
    const auto any = [&] {
      if (!candidates.empty() && random_() % 2 == 0)
        return word_of(candidates[random_() % candidates.size()]);
      if (random_() % 2 == 0) return word_of(number_at<double>(spread(random_)));
      const double share = static_cast<double>(random_() >> 11) * 0x1p-53;
      return word_of(row.low * (1 - share) + row.high * share);
    };
    for (int start = 0; start < 4096; ++start) places.push_back({{any(), any()}, -1});
    judge(places);
    std::sort(places.begin(), places.end(), worse);
    places.resize(16);
    for (int step = 0; step < 24; ++step) {
      std::vector<Place> tries = places;
      for (const Place& p : places)
        for (int k = 0; k < 24; ++k) {
          Place next = p;
          next.ulp = -1;
          for (int s = 0; s < f_.sources(); ++s) {
            const int64_t reach = int64_t{1} << random_() % 44;
            const double x =
                number_at<double>(place(number_of<double>(p.in[s])) +
                                  static_cast<int64_t>(random_() % (2 * reach + 1)) - reach);
            if (x >= row.low && x <= row.high) next.in[s] = word_of(x);
          }
          tries.push_back(next);
        }
      judge(tries);
      std::sort(tries.begin(), tries.end(), worse);
      tries.resize(16);
      places = tries;
    }
    return places[0];
  }

 private:
  void judge(std::vector<Place>& places) {
    Inputs<double> inputs;
    for (const Place& p : places)
      for (int s = 0; s < 2; ++s) inputs.in[s].push_back(p.in[s]);
    Outputs<double> outputs;
    worker_.evaluate(f_, {}, Calls::array, inputs, outputs);
    for (size_t i = 0; i < places.size(); ++i) {
      if (places[i].ulp >= 0) continue;  // known
      for (int output = 0; output < f_.destinations(); ++output) {
        uint64_t expected;
        const double ulp =
            judge_.error<double>(places[i].in, output, outputs.out[output][i], expected);
        places[i].ulp = std::max(places[i].ulp, ulp);
      }
    }
  }

  const Function& f_;
  Worker worker_;
  Judge judge_;
  std::mt19937_64 random_;
};

}  // namespace

Witness search(const Function& function, uint64_t seconds, uint64_t seed, const Setting& setting) {
  if (function.is_single() || function.form == Form::scalar_exponent)
    throw std::runtime_error(function.name + ": the search is for 64f functions of arrays");
  const auto candidates =
      function.traits->periodic ? near_half_pi::numbers<double>() : std::vector<double>();
  std::vector<Limit> rows;
  for (const Limit& row : limits_of(function))
    if (row.samples > 0) rows.push_back(row);
  // Tasks of two seconds each.
  const auto task_length = std::chrono::seconds(2);
  std::vector<uint32_t> tasks(static_cast<size_t>(setting.jobs) * ((seconds + 1) / 2));
  std::iota(tasks.begin(), tasks.end(), 0u);
  Place worst{{}, -1};
  uint64_t done = 0;
  tool::Progress progress(setting.quiet);
  run_jobs<Place>(
      tasks, setting.jobs,
      [&] {
        return [&, climb = std::make_unique<Climb>(function, setting)](uint32_t task) {
          climb->seed(seed * 0x100000 + task);
          Place found{{}, -1};
          const auto end = Clock::now() + task_length;
          for (size_t round = task; Clock::now() < end; ++round)
            found = std::min(found, climb->round(rows[round % rows.size()], candidates), worse);
          return found;
        };
      },
      [&](uint32_t, const Place& place) {
        worst = std::min(worst, place, worse);
        progress.update(++done, tasks.size(),
                        function.name + " " + std::to_string(worst.ulp) + " ulp");
      });
  Witness w;
  w.ulp = worst.ulp;
  for (int s = 0; s < 2; ++s) w.in[s] = worst.in[s];
  return w;
}

bool keep(const std::string& path, const Function& function, const Witness& witness) {
  std::ifstream in(path);
  if (!in) throw std::runtime_error(path + " cannot be read");
  const std::string start = "{\"" + function.name + "\", ";
  std::string text;
  for (std::string line; std::getline(in, line);) {
    if (!line.starts_with(start)) {
      text += line + "\n";
      continue;
    }
    const double known =
        std::strtod(line.substr(line.rfind(',', line.size() - 2) + 1).c_str(), nullptr);
    if (known >= witness.ulp - 5e-6) return false;
  }
  char row[200];
  std::snprintf(row, sizeof row, "%s%a, %a, %.5f},\n", start.c_str(),
                number_of<double>(witness.in[0]),
                function.sources() == 2 ? number_of<double>(witness.in[1]) : 0.0, witness.ulp);
  std::ofstream out(path);
  out << text << row;
  return static_cast<bool>(out.flush());
}

}  // namespace dakvm::accuracy
