// The x87 unit as the caller of the library sees it.
#pragma once

#include <cstdint>

namespace dakvm::test {

enum Flag : uint16_t {
  invalid = 1,
  divide_by_zero = 4,
  overflow = 8,
  underflow = 16,
  inexact = 32
};
constexpr uint16_t ieee_flags = invalid | divide_by_zero | overflow | underflow | inexact;

inline void clear_flags() { asm volatile("fnclex"); }

inline uint16_t raised_flags() {
  uint16_t word;
  asm volatile("fnstsw %0" : "=m"(word));
  return word & ieee_flags;
}

inline void set_flags(uint16_t flags) {
  struct {
    uint32_t control, status, tag, rest[4];
  } environment;
  asm volatile("fnstenv %0" : "=m"(environment) : : "memory");
  environment.status = (environment.status & ~uint32_t{ieee_flags}) | flags;
  asm volatile("fldenv %0" : : "m"(environment) : "memory");
}

inline uint16_t control_word() {
  uint16_t word;
  asm volatile("fnstcw %0" : "=m"(word));
  return word;
}

inline void set_control_word(uint16_t word) { asm volatile("fldcw %0" : : "m"(word) : "memory"); }

inline uint32_t mxcsr() {
  uint32_t word;
  asm volatile("stmxcsr %0" : "=m"(word));
  return word;
}

inline bool stack_is_empty() {
  struct {
    uint32_t control, status, tag, rest[4];
  } environment;
  asm volatile("fnstenv %0\n\tfldcw %0" : "=m"(environment) : : "memory");
  return (environment.tag & 0xffff) == 0xffff;
}

// Sets precision (0: 24, 2: 53, 3: 64 bits) and rounding (nearest, down, up, toward zero) for a
// scope.
class ScopedModes {
 public:
  ScopedModes(int precision, int rounding) : saved_(control_word()) {
    set_control_word(static_cast<uint16_t>((saved_ & ~0x0f00) | precision << 8 | rounding << 10));
  }
  ~ScopedModes() { set_control_word(saved_); }
  ScopedModes(const ScopedModes&) = delete;
  ScopedModes& operator=(const ScopedModes&) = delete;

 private:
  uint16_t saved_;
};

}  // namespace dakvm::test
