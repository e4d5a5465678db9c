#include "bench/operations.hpp"

#include <sys/ptrace.h>
#include <sys/types.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>

namespace dakvm::bench {
namespace {

// Classifies the instruction at the head of `code`. Memory forms of D8, DC are arithmetic on floats
// and doubles, of DA, DE on integers; register forms are D8, DC, DE. The operation is in bits 3 to
// 5 of the byte after the opcode: 0 add, 1 multiply, 4 and 5 subtract, 6 and 7 divide.
void classify(const unsigned char* code, Operations& count) {
  while (*code == 0x66 || *code == 0x2e || *code == 0x3e || (*code & 0xf0) == 0x40)
    if (sizeof(void*) == 4 && (*code & 0xf0) == 0x40)
      break;  // there these are inc and dec
    else
      ++code;
  const unsigned opcode = code[0], form = code[1], operation = form >> 3 & 7;
  const bool memory = form < 0xc0;
  const bool arithmetic =
      opcode == 0xd8 || opcode == 0xdc || (opcode == 0xda && memory) || opcode == 0xde;
  if (!arithmetic) return;
  if (operation == 0 || operation == 1 || operation == 4 || operation == 5) ++count.add_multiply;
  if (operation == 6 || operation == 7) ++count.divide;
}

// The child brackets the call with two traps.
void trap() { asm volatile("int3"); }

bool stopped_by(pid_t child, int signal) {
  int status = 0;
  return waitpid(child, &status, 0) == child && WIFSTOPPED(status) && WSTOPSIG(status) == signal;
}

uintptr_t instruction_pointer(pid_t child) {
  user_regs_struct registers;
  ptrace(PTRACE_GETREGS, child, nullptr, &registers);
#ifdef __i386__
  return static_cast<uintptr_t>(registers.eip);
#else
  return registers.rip;
#endif
}

}  // namespace

std::optional<Operations> count_operations(const std::function<void()>& call) {
  const pid_t child = fork();
  if (child < 0) return std::nullopt;
  if (child == 0) {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(1);
    call();  // binds symbols, touches pages
    trap();
    call();
    trap();
    _exit(0);
  }
  Operations count;
  bool complete = false;
  if (stopped_by(child, SIGTRAP)) {
    // The code is the same in both processes, so it is read here.
    for (;;) {
      if (ptrace(PTRACE_SINGLESTEP, child, nullptr, nullptr) != 0 || !stopped_by(child, SIGTRAP))
        break;
      unsigned char code[16];
      const uintptr_t at = instruction_pointer(child);
      std::memcpy(code, reinterpret_cast<const void*>(at), sizeof code);
      if (code[0] == 0xcc) {  // the second trap
        complete = true;
        break;
      }
      ++count.all;
      classify(code, count);
    }
  }
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  if (!complete) return std::nullopt;
  return count;
}

}  // namespace dakvm::bench
