// A scope in which the unit works as the library says and not as the caller does.
#pragma once

#include <cstdint>

namespace dakvm::x87 {

// 53-bit precision and rounding to nearest for a scope; the caller's control word comes back at its
// end. Compilers move x87 operations across a change of the control word: what runs in the scope is
// a call of a function that is not inlined, and that takes and leaves its operands in memory.
class DoublePrecision {
 public:
  DoublePrecision() {
    asm volatile("fnstcw %0" : "=m"(callers_) : : "memory");
    if ((callers_ & mode_bits) != mode) set(static_cast<uint16_t>((callers_ & ~mode_bits) | mode));
  }
  ~DoublePrecision() { set(callers_); }
  DoublePrecision(const DoublePrecision&) = delete;
  DoublePrecision& operator=(const DoublePrecision&) = delete;

 private:
  static constexpr uint16_t mode_bits = 0x0f00, mode = 0x0200;

  static void set(uint16_t word) { asm volatile("fldcw %0" : : "m"(word) : "memory"); }

  uint16_t callers_;
};

}  // namespace dakvm::x87
