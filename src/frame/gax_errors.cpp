// Error notification: gaxdError and gaxsError, and the handler behind them.
#include "frame/gax_errors.hpp"

#include "frame/status.hpp"
#include "x87/x87.hpp"

using dakvm::ErrorContext;
using dakvm::Status;
using dakvm::x87::load;
using dakvm::x87::narrow;
using dakvm::x87::opaque;

namespace {

constexpr char no_affix[] = "";

constexpr double zero = 0.0;
constexpr double one = 1.0;
constexpr double largest = 0x1.fffffffffffffp+1023;
// One unit above the least normal number: its square is inexact as well as tiny, and a tiny result
// raises underflow only when it is inexact.
constexpr double least = 0x1.0000000000001p-1022;

// Copies at most `limit` characters to `buffer` from `position` on; returns the position behind
// them.
uint32_t append(const char* text, uint32_t limit, char* buffer, uint32_t position) {
  for (uint32_t i = 0; i < limit && text[i] != '\0'; ++i) buffer[position++] = text[i];
  return position;
}

// Exception flags of the x87 unit.
constexpr uint16_t invalid = 0x01, divide_by_zero = 0x04, overflow = 0x08, underflow = 0x10,
                   inexact = 0x20;

// Flags are sticky: an operation whose flags are set, and whose exceptions are masked, would change
// nothing. Mostly the element's own result has raised them, and one more such operation takes some
// 500 cycles.
bool are_set(uint16_t flags) {
  uint16_t status, control;
  asm volatile("fnstsw %0" : "=m"(status));
  asm volatile("fnstcw %0" : "=m"(control));
  return (status & control & flags) == flags;
}

// The operation comes with the store, which is what can overflow or underflow: an Ext holds every
// product of doubles.
template <class Operation>
void raise(uint16_t flags, Operation&& operation) {
  if (!are_set(flags)) opaque(narrow<double>(operation()));
}

void notify(int32_t code, int32_t index, const char* name) {
  ErrorContext context;
  context.code = code;
  context.index = index;
  // An opaque length, so that no compiler sees past the end of the name.
  context.name_length = static_cast<int32_t>(
      _gaxCreateFuncNameStr(no_affix, name, no_affix, opaque(static_cast<char*>(context.name))));
  _gaxStdErrorHandlerExcept(&context);
}

}  // namespace

uint32_t _gaxCreateFuncNameStr(const char* prefix, const char* name, const char* suffix,
                               char* buffer) {
  uint32_t length = append(prefix, 8, buffer, 0);
  length = append(name, 64, buffer, length);
  length = append(suffix, 8, buffer, length);
  buffer[length] = '\0';
  return length;
}

void _gaxStdErrorHandlerExcept(const ErrorContext* context) {
  switch (static_cast<Status>(context->code)) {
    case Status::domain:
      return raise(invalid, [] { return load(&zero) / load(&zero); });
    case Status::singularity:
      return raise(divide_by_zero, [] { return load(&one) / load(&zero); });
    case Status::overflow:
      return raise(overflow | inexact, [] { return load(&largest) * load(&largest); });
    case Status::underflow:
      return raise(underflow | inexact, [] { return load(&least) * load(&least); });
    default:
      return;
  }
}

DAKVM_EXPORT void gaxdError(int32_t code, int32_t index, const double*, const double*, double*,
                            double*, const char* name) {
  notify(code, index, name);
}

DAKVM_EXPORT void gaxsError(int32_t code, int32_t index, const float*, const float*, float*, float*,
                            const char* name) {
  notify(code, index, name);
}
