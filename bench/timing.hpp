// Times pieces of work with Google Benchmark, all repetitions of all of them shuffled, so that a
// disturbance of the machine does not fall on one alone.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace dakvm::bench {

struct Timing {
  double median = 0;  // ns an element
  double spread = 0;  // distance of the quartiles over the median
};

class Session {
 public:
  // `run` treats `elements` elements at each call.
  void add(const std::string& name, int elements, std::function<void()> run);
  // Times everything that was added; a task of a name that was added twice is timed once.
  std::map<std::string, Timing> measure(int repetitions, bool progress);

 private:
  struct Task {
    int elements;
    std::function<void()> run;
  };
  std::map<std::string, Task> tasks_;
};

// Clock rates of this processor in GHz: of the time-stamp counter, and of the core as it runs now.
struct Clock {
  double time_stamp, core;
};
Clock measure_clock();

}  // namespace dakvm::bench
