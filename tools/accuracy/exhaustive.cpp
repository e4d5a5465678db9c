// All 2^32 floats. The reference is the C library's function on double, whose errors are far below
// a unit of float; where it lies so close to a rounding boundary that its error could matter, MPFR
// decides. Blocks without exceptional results are evaluated by one call, whose status and flags
// then hold for every element; of all others every element has a call of its own. Grades that share
// code and table are one function under several names: the first one is judged, the others are
// compared with it on one block in 16, and one that differs there has a run of its own.
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <memory>

#include "dakvmpx.h"
#include "jobs.hpp"
#include "judge.hpp"
#include "measure.hpp"
#include "tools/dakvm/progress.hpp"

namespace dakvm::accuracy {
namespace {

constexpr int task_bits = 22, block_bits = 14;
constexpr uint32_t all_tasks = 1u << (32 - task_bits), block_length = 1u << block_bits;
// The wide values are trusted to `margin`; measured on one in a block against a quarter of it.
constexpr double margin = 0x1p-46;
// By so much of itself an error taken from a wide value must exceed the largest one so far, to be
// asked of MPFR: results that lie on one number, as those of saturated functions, ask once.
constexpr double wide_ulp = 0x1p-24;
// Where results are all but their arguments, each error is the largest so far until it is half a
// unit. Smaller ones are taken from the wide value, which is good to 2^-22 units.
constexpr double least_asked = 0.45;
constexpr uint8_t serious = invalid | divide_by_zero | overflow | underflow;

struct TaskResult {
  Tally tally;  // of the group's first function
  bool differs[longest_group];
};

// One input's exact results, for the outputs of the function.
struct Element {
  double wide[2];
  uint32_t expected[2];
  bool plain;  // nothing but inexact can be raised
};

bool in_order(Course course, float before, float after) {
  return course == Course::rising ? before <= after : before >= after;
}

class Scan {
 public:
  Scan(const std::vector<const Function*>& group, const Setting& setting)
      : group_(group), leader_(*group[0]), worker_(setting.library), judge_(leader_, {}) {}

  TaskResult operator()(uint32_t task) {
    TaskResult result{};
    const uint32_t first = task << task_bits;
    worker_.evaluate_from(leader_, Calls::array, first - 1, 1, outputs_[0]);
    previous_ = number_of<float>(outputs_[0].out[0][0]);  // NaN for the first task
    for (uint32_t b = 0; b < 1u << (task_bits - block_bits); ++b)
      block(first + (b << block_bits), result);
    return result;
  }

 private:
  void block(uint32_t first, TaskResult& result) {
    Tally& tally = result.tally;
    bool plain = true;
    for (uint32_t i = 0; i < block_length; ++i) {
      find_expected(first + i, elements_[i], tally);
      plain = plain && elements_[i].plain;
    }
    check_wide(first, tally);

    Calls calls = plain ? Calls::array : Calls::single;
    worker_.evaluate_from(leader_, calls, first, block_length, outputs_[0]);
    if (calls == Calls::array &&
        (outputs_[0].statuses[0] != DAKVM_STATUS_OK || (outputs_[0].flags[0] & serious) != 0)) {
      calls = Calls::single;
      worker_.evaluate_from(leader_, calls, first, block_length, outputs_[0]);
    }
    if ((first >> block_bits) % 16 == 0) {
      for (size_t g = 1; g < group_.size(); ++g) {
        worker_.evaluate_from(*group_[g], calls, first, block_length, outputs_[1]);
        result.differs[g] = result.differs[g] || !(outputs_[1] == outputs_[0]);
      }
    }
    compare(first, calls, tally);
  }

  void find_expected(uint32_t word, Element& e, Tally& tally) {
    const double x = number_of<float>(word);
    const Traits& traits = *leader_.traits;
    e.wide[0] = traits.wide(x);
    if (traits.wide_second != nullptr) e.wide[1] = traits.wide_second(x);
    e.plain = true;
    for (int output = 0; output < leader_.destinations(); ++output) {
      const double w = e.wide[output];
      const float low = static_cast<float>(w * (1 - margin)),
                  high = static_cast<float>(w * (1 + margin));
      e.expected[output] = word_of(low);
      if (word_of(low) != word_of(high)) {
        const uint32_t in[2] = {word, 0};
        ++tally.exact_values;
        judge_.error<float>(in, output, word_of(low), e.expected[output]);
      }
      const float magnitude = std::fabs(number_of<float>(e.expected[output]));
      e.plain = e.plain && magnitude > std::numeric_limits<float>::min() &&
                magnitude < std::numeric_limits<float>::max();
    }
  }

  void check_wide(uint32_t first, Tally& tally) {
    const uint32_t i = (first >> block_bits) * 2654435761u >> (32 - block_bits);
    const uint32_t in[2] = {first + i, 0};
    for (int output = 0; output < leader_.destinations(); ++output) {
      ++tally.exact_values;
      if (judge_.relative_error(in, output, elements_[i].wide[output]) > margin / 4)
        throw std::runtime_error("the C library's function for " + leader_.family + " is off at " +
                                 hex_number(number_of<float>(in[0])));
    }
  }

  // As Judge::element has it, from the wide value: a pole lies at 0 or 1, and exact results of
  // zero come from 0, 1 or an infinity. Whether a tiny result is inexact may be open.
  Expectation expectation(uint32_t word, const Element& e) const {
    const float x = number_of<float>(word);
    const bool landmark = x == 0 || std::fabs(x) == 1 || std::isinf(x);
    Expectation expected;
    if (std::isnan(x)) {
      if (is_signalling<float>(word)) expected.judged &= static_cast<uint8_t>(~invalid);
      return expected;
    }
    for (int output = 0; output < leader_.destinations(); ++output) {
      const float result = number_of<float>(e.expected[output]);
      if (std::isnan(result)) {
        expected.status = DAKVM_STATUS_DOMAIN;
      } else if (std::isinf(result) && landmark) {
        if (!std::isinf(x)) expected.status = DAKVM_STATUS_SINGULARITY;
      } else if (std::isinf(result)) {
        expected.out_of_numbers<float>(DAKVM_STATUS_OVERFLOW, leader_.traits->overflow,
                                       std::fabs(e.wide[output]) * 0x1p-128 - 1);
      } else if (result == 0 && !landmark) {
        expected.out_of_numbers<float>(DAKVM_STATUS_UNDERFLOW, leader_.traits->underflow,
                                       1 - std::fabs(e.wide[output]) * 0x1p+150);
      } else if (!landmark && std::fabs(result) < std::numeric_limits<float>::min()) {
        if (result != e.wide[output])
          expected.flags |= underflow;
        else
          expected.judged &= static_cast<uint8_t>(~underflow);
      } else if (std::fabs(result) == std::numeric_limits<float>::min()) {
        expected.judged &= static_cast<uint8_t>(~underflow);
      }
    }
    expected.flags |= flag_of_status(expected.status);
    return expected;
  }

  void compare(uint32_t first, Calls calls, Tally& tally) {
    const Outputs<float>& outputs = outputs_[0];
    for (uint32_t i = 0; i < block_length; ++i) {
      const Element& e = elements_[i];
      for (int output = 0; output < leader_.destinations(); ++output)
        compare_result(first + i, output, e, outputs.out[output][i], tally);
      if (calls == Calls::single)
        expectation(first + i, e)
            .check(outputs.statuses[i], outputs.flags[i], Witness{0, {first + i, 0}, 0, 0, 0},
                   tally);
    }
    const Course course = leader_.traits->course;
    if (course == Course::other) return;
    for (const uint32_t word : outputs.out[0]) {
      const float now = number_of<float>(word);
      const bool negative = first >> 31 != 0;
      if (!std::isnan(previous_) && !std::isnan(now) &&
          !(negative ? in_order(course, now, previous_) : in_order(course, previous_, now)))
        ++tally.not_monotone;
      previous_ = now;
    }
  }

  void compare_result(uint32_t word, int output, const Element& e, uint32_t got, Tally& tally) {
    uint32_t expected = e.expected[output];
    const float result = number_of<float>(got);
    if (std::isnan(number_of<float>(expected)) || !std::isfinite(result)) {
      const bool same =
          got == expected || (std::isnan(number_of<float>(expected)) && std::isnan(result));
      if (same) {
        tally.count(0, true);
        return;
      }
    }
    const double w = e.wide[output];
    // The unit of float at w, from the exponent of w.
    const auto exponent = std::max<int64_t>(
        static_cast<int64_t>(std::bit_cast<uint64_t>(w) >> 52 & 0x7ff) - 1023 - 23, -149);
    double ulp =
        std::fabs(result - w) * std::bit_cast<double>(static_cast<uint64_t>(1023 - exponent) << 52);
    if (!(ulp <= tally.worst.ulp * (1 + wide_ulp))) {
      if (!(ulp < least_asked)) {
        const uint32_t in[2] = {word, 0};
        ulp = judge_.error<float>(in, output, got, expected);
        ++tally.exact_values;
      }
      if (ulp > tally.worst.ulp)
        tally.worst = {ulp, {word, 0}, got, expected, static_cast<uint32_t>(output)};
    }
    tally.count(ulp, got == expected);
    if (result < static_cast<float>(leader_.traits->least) ||
        result > static_cast<float>(leader_.traits->largest))
      ++tally.out_of_range;
  }

  const std::vector<const Function*>& group_;
  const Function& leader_;
  Worker worker_;
  Judge judge_;
  std::vector<Element> elements_ = std::vector<Element>(block_length);
  Outputs<float> outputs_[2];  // of the first function, and of another
  float previous_;             // the last result of the block before
};

// The finished tasks of a run, in a file: a header, then a record for each.
class State {
 public:
  State(const std::vector<const Function*>& group, const Setting& setting) {
    if (setting.state_folder.empty()) return;
    std::filesystem::create_directories(setting.state_folder);
    const std::string path = setting.state_folder + "/" + group[0]->name + ".state";
    Header own{state_magic, static_cast<uint32_t>(group.size()), {}};
    Worker worker(setting.library);
    for (size_t g = 0; g < group.size(); ++g) own.fingerprints[g] = fingerprint(worker, *group[g]);
    file_ = std::fopen(path.c_str(), "r+b");
    Header header;
    size_t length = 0;
    if (file_ != nullptr && std::fread(&header, sizeof header, 1, file_) == 1 && header == own) {
      length = sizeof header;
      for (Record record; std::fread(&record, sizeof record, 1, file_) == 1;) {
        records_.push_back(record);
        length += sizeof record;
      }
    }
    if (file_ == nullptr || length == 0) {
      if (file_ != nullptr) std::fclose(file_);
      file_ = std::fopen(path.c_str(), "w+b");
      if (file_ == nullptr || std::fwrite(&own, sizeof own, 1, file_) != 1)
        throw std::runtime_error(path + " cannot be written");
      length = sizeof own;
    }
    std::fseek(file_, static_cast<long>(length), SEEK_SET);
  }
  ~State() {
    if (file_ != nullptr) std::fclose(file_);
  }
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  struct Record {
    uint32_t task;
    TaskResult result;
  };
  const std::vector<Record>& records() const { return records_; }

  void add(uint32_t task, const TaskResult& result) {
    if (file_ == nullptr) return;
    const Record record{task, result};
    if (std::fwrite(&record, sizeof record, 1, file_) != 1 || std::fflush(file_) != 0)
      throw std::runtime_error("the state file cannot be written");
  }

 private:
  static constexpr uint64_t state_magic = 0x64616b766d000001 + (sizeof(TaskResult) << 8);
  struct Header {
    uint64_t magic;
    uint64_t functions;
    uint64_t fingerprints[longest_group];
    bool operator==(const Header&) const = default;
  };

  FILE* file_ = nullptr;
  std::vector<Record> records_;
};

}  // namespace

std::vector<Measurement> measure_exhaustively(const std::vector<const Function*>& group,
                                              const Setting& setting, uint32_t stride) {
  const Function& leader = *group[0];
  if (!leader.is_single() || leader.sources() != 1 || leader.traits->wide == nullptr)
    throw std::runtime_error(leader.name +
                             ": only 32f functions of one argument are measured exhaustively");
  std::vector<std::unique_ptr<TaskResult>> results(all_tasks);
  State state(group, setting);
  for (const auto& record : state.records())
    results[record.task] = std::make_unique<TaskResult>(record.result);
  uint64_t done = state.records().size();
  std::vector<uint32_t> tasks;
  for (uint32_t task = 0; task < all_tasks; task += stride)
    if (!results[task]) tasks.push_back(task);
  {
    tool::Progress progress(setting.quiet);
    progress.update(done, done + tasks.size(), leader.name);
    const uint64_t total = done + tasks.size();
    run_jobs<TaskResult>(
        tasks, setting.jobs,
        [&] {
          return [scan = std::make_unique<Scan>(group, setting)](uint32_t t) { return (*scan)(t); };
        },
        [&](uint32_t task, const TaskResult& result) {
          results[task] = std::make_unique<TaskResult>(result);
          state.add(task, result);
          progress.update(++done, total, leader.name);
        });
  }
  Measurement measured{&leader, nullptr, {}};
  bool differs[longest_group] = {};
  for (const auto& result : results) {
    if (!result) continue;
    measured.tally.add(result->tally);
    for (size_t g = 1; g < group.size(); ++g) differs[g] = differs[g] || result->differs[g];
  }
  std::vector<Measurement> measurements = {measured};
  for (size_t g = 1; g < group.size(); ++g)
    measurements.push_back(differs[g] ? measure_exhaustively({group[g]}, setting, stride)[0]
                                      : Measurement{group[g], &leader, measured.tally});
  return measurements;
}

}  // namespace dakvm::accuracy
