// Results against the exact ones.
#pragma once

#include <mpfr.h>

#include "functions.hpp"
#include "tally.hpp"
#include "worker_process.hpp"

namespace dakvm::accuracy {

// x87 exception flags that belong to a status.
uint8_t flag_of_status(int status);

// The status and the flags that an element must have: of the flags, those in `judged` count.
struct Expectation {
  int status = 0;
  bool may_be_ok = false;  // a bound on the argument is a rounded number: beside it both are right
  uint8_t flags = 0, judged = invalid | divide_by_zero | overflow | underflow;

  // A result that overflows, or underflows to zero; `beyond` is its distance from the last one that
  // does not, relative to that one.
  template <class T>
  void out_of_numbers(int reported, bool is_reported, double beyond) {
    status = is_reported ? reported : 0;
    may_be_ok = beyond < (sizeof(T) == 8 ? 0x1p-40 : 0x1p-14);
    flags |= flag_of_status(reported);
  }
  void join(const Expectation& other);  // of the other result of the same element
  void check(int got_status, uint8_t got_flags, const Witness& element, Tally& tally) const;
};

class Judge {
 public:
  Judge(const Function& function, Modes modes);
  ~Judge();
  Judge(const Judge&) = delete;
  Judge& operator=(const Judge&) = delete;

  // Element `i`: error, rounding, status and flags, into the tally. The status and flags of other
  // modes than the usual ones are not judged.
  template <class T>
  void element(const Inputs<T>& inputs, const Outputs<T>& outputs, size_t i, Tally& tally);

  // The error of one result in ulp; sets `expected` to the correctly rounded one.
  template <class T>
  double error(const Word<T> (&in)[2], int output, Word<T> got, Word<T>& expected);

  // Of a value computed in double from floats; 0 if double does not hold it with all its digits.
  double relative_error(const uint32_t (&in)[2], int output, double value);

 private:
  template <class T>
  void find_exact(const Word<T> (&in)[2], int output);
  template <class T>
  T rounded() const;
  template <class T>
  double distance(T got) const;
  template <class T>
  Expectation expectation(const Word<T> (&in)[2], T nearest) const;

  const Function& function_;
  Modes modes_;
  mpfr_rnd_t rounding_;
  mutable mpfr_t x_, y_, exact_, work_;
};

// "overflow", "ok"; "invalid inexact", "none"
std::string status_name(int status);
std::string flag_names(uint8_t flags);

}  // namespace dakvm::accuracy
