// The library under measurement, in a process of its own.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "functions.hpp"
#include "numbers.hpp"
#include "protocol.hpp"

namespace dakvm::accuracy {

struct Modes {
  Rounding rounding = Rounding::nearest;
  Precision precision = Precision::bits64;

  bool usual() const { return rounding == Rounding::nearest && precision == Precision::bits64; }
};

// Arguments: one array or two of the same length.
template <class T>
struct Inputs {
  std::vector<Word<T>> in[2];

  size_t size() const { return in[0].size(); }
};

// With Calls::array the status and the flags are those of the one call.
template <class T>
struct Outputs {
  std::vector<Word<T>> out[2];
  std::vector<int8_t> statuses;
  std::vector<uint8_t> flags;

  bool operator==(const Outputs&) const = default;
};

class Worker {
 public:
  // An empty path is the library that the worker was built with.
  explicit Worker(const std::string& library);
  ~Worker();
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  const std::string& version() const { return version_; }

  // Elements [first, first + count) of the inputs.
  template <class T>
  void evaluate(const Function& function, Modes modes, Calls calls, const Inputs<T>& inputs,
                size_t first, size_t count, Outputs<T>& outputs);
  template <class T>
  void evaluate(const Function& function, Modes modes, Calls calls, const Inputs<T>& inputs,
                Outputs<T>& outputs) {
    evaluate(function, modes, calls, inputs, 0, inputs.size(), outputs);
  }

  // The function of `count` numbers whose words count on from `first`.
  template <class T>
  void evaluate_from(const Function& function, Calls calls, Word<T> first, size_t count,
                     Outputs<T>& outputs);

 private:
  void send(const Function& function, Modes modes, Calls calls, size_t count, bool consecutive);
  template <class T>
  void receive(const Function& function, Calls calls, size_t count, Outputs<T>& outputs);
  void write_all(const void* from, size_t length);
  void read_all(void* to, size_t length);

  pid_t process_ = -1;
  int to_ = -1, from_ = -1;
  std::string version_;
};

// A number that changes when the function's results, statuses or flags do: a hash over 2^18 inputs.
uint64_t fingerprint(Worker& worker, const Function& function);

}  // namespace dakvm::accuracy
