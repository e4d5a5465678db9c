// What travels between dakvm-accuracy, a 64-bit program, and its worker, which has the library's
// word size. A request is followed by the argument words, one array behind the other; a reply by
// the result words, in the same way, and by the statuses and flags.
#pragma once

#include <cstdint>

namespace dakvm::accuracy {

enum class Calls : uint32_t {
  single,  // one call an element, a status and flags for each
  array,   // one call, one status and the flags of all
};

// Rounding as in the control word.
enum class Rounding : uint32_t { nearest, down, up, zero };
// Precision as in the control word: 24, 53 and 64 significant bits.
enum class Precision : uint32_t { bits24 = 0, bits53 = 2, bits64 = 3 };

struct Request {
  char function[40];
  uint32_t count;
  Calls calls;
  Rounding rounding;
  Precision precision;
  uint32_t consecutive;  // not 0: one argument word follows, the others count on from it
};

// Sent once, when the worker is ready.
struct Hello {
  uint32_t magic;
  char version[60];
};
constexpr uint32_t hello_magic = 0x64616b76;

struct Reply {
  uint32_t known;  // 0: there is no such function, and nothing follows
};

// x87 exception flags.
enum Flag : uint8_t { invalid = 1, divide_by_zero = 4, overflow = 8, underflow = 16, inexact = 32 };

}  // namespace dakvm::accuracy
