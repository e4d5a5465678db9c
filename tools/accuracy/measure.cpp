#include "measure.hpp"

#include <memory>
#include <numeric>

#include "jobs.hpp"
#include "judge.hpp"
#include "tools/dakvm/progress.hpp"

namespace dakvm::accuracy {
namespace {

struct GroupResult {
  Tally tally[longest_group];
  uint32_t same_as[longest_group];
};

}  // namespace

template <class T>
std::vector<Measurement> measure(const std::vector<const Function*>& group, const Inputs<T>& inputs,
                                 Modes modes, const Setting& setting) {
  constexpr size_t slice = 1 << 13;
  std::vector<uint32_t> tasks((inputs.size() + slice - 1) / slice);
  std::iota(tasks.begin(), tasks.end(), 0u);
  std::vector<GroupResult> parts(tasks.size());

  const auto prepare = [&] {
    return [&, worker = std::make_unique<Worker>(setting.library)](uint32_t task) {
      const size_t first = task * slice, count = std::min(slice, inputs.size() - first);
      Inputs<T> own;
      for (int s = 0; s < group[0]->sources(); ++s)
        own.in[s].assign(inputs.in[s].begin() + static_cast<ptrdiff_t>(first),
                         inputs.in[s].begin() + static_cast<ptrdiff_t>(first + count));
      GroupResult result{};
      Outputs<T> outputs[longest_group];
      for (size_t g = 0; g < group.size(); ++g) {
        worker->evaluate(*group[g], modes, Calls::single, own, outputs[g]);
        uint32_t same = 0;
        while (!(outputs[same] == outputs[g])) ++same;
        result.same_as[g] = same;
        if (same < g) {
          result.tally[g] = result.tally[same];
          continue;
        }
        Judge judge(*group[g], modes);
        for (size_t i = 0; i < count; ++i) judge.element(own, outputs[g], i, result.tally[g]);
      }
      return result;
    };
  };
  {
    tool::Progress progress(setting.quiet);
    uint64_t done = 0;
    run_jobs<GroupResult>(tasks, setting.jobs, prepare,
                          [&](uint32_t task, const GroupResult& result) {
                            parts[task] = result;
                            progress.update(++done, tasks.size(), group[0]->name);
                          });
  }
  std::vector<Measurement> measurements;
  for (size_t g = 0; g < group.size(); ++g) {
    Measurement m{group[g], nullptr, {}};
    for (const auto& part : parts) m.tally.add(part.tally[g]);
    for (size_t s = 0; s < g && m.same_as == nullptr; ++s) {
      bool same = true;
      for (const auto& part : parts) same = same && part.same_as[g] == part.same_as[s];
      if (same) m.same_as = group[s];
    }
    measurements.push_back(m);
  }
  return measurements;
}

template std::vector<Measurement> measure(const std::vector<const Function*>&,
                                          const Inputs<double>&, Modes, const Setting&);
template std::vector<Measurement> measure(const std::vector<const Function*>&, const Inputs<float>&,
                                          Modes, const Setting&);

}  // namespace dakvm::accuracy
