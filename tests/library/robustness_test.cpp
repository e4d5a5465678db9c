// What a hostile program does to the library: traps, signals, threads, odd modes, huge arrays.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <csetjmp>
#include <csignal>
#include <thread>

#include "arrays.hpp"

namespace dakvm::test {
namespace {

using registry::Function;
using registry::Operands;
using registry::Type;

// One function with arguments of its own, and the results that a call alone gives.
template <class T>
class Job {
 public:
  Job(const Function& f, size_t length, double special, uint32_t seed)
      : f_(f),
        a_(mixed_words<T>(length, f.family.low, f.family.high, special, seed)),
        b_(mixed_words<T>(length, f.family.low, f.family.high, special, seed + 1)),
        dst1_(length),
        dst2_(length) {
    run();
    expected_ = dst1_;
  }
  int32_t run() {
    return f_(Operands<T>{numbers<T>(a_.data()), numbers<T>(b_.data()), numbers<T>(dst1_.data()),
                          numbers<T>(dst2_.data()), static_cast<T>(f_.family.low)},
              static_cast<int32_t>(a_.size()));
  }
  bool repeats() {
    run();
    return dst1_ == expected_;
  }
  const std::vector<Word<T>>& results() const { return dst1_; }

 private:
  const Function& f_;
  std::vector<Word<T>> a_, b_, dst1_, dst2_, expected_;
};

template <class Body>
void for_each_function(Body body) {
  for (const Function& f : registry::functions) {
    SCOPED_TRACE(f.name);
    if (f.type == Type::f64)
      body(f, double{});
    else
      body(f, float{});
  }
}

sigjmp_buf trapped;
void on_trap(int) { siglongjmp(trapped, 1); }

// Whether SIGFPE arrives when the exception of this flag is unmasked. By itself: no variable of the
// caller is lost by the jump.
template <class T>
[[gnu::noinline]] bool traps(Job<T>& job, uint16_t modes, uint16_t flag) {
  if (sigsetjmp(trapped, 1) != 0) return true;
  set_control_word(static_cast<uint16_t>(modes & ~flag));
  job.run();
  asm volatile("fwait");
  return false;
}

// Unmasked, the exception of an element arrives as SIGFPE; afterwards the library works as before.
TEST(Robustness, UnmaskedExceptionsTrap) {
  struct sigaction action = {}, before = {};
  action.sa_handler = on_trap;
  sigaction(SIGFPE, &action, &before);
  const uint16_t modes = control_word();
  for_each_function([&]<class T>(const Function& f, T) {
    Job<T> job(f, 100, 0.3, 5);
    clear_flags();
    job.run();
    const uint16_t raised = raised_flags();
    for (const uint16_t flag : {invalid, divide_by_zero, overflow, underflow, inexact}) {
      clear_flags();
      const bool arrived = traps(job, modes, flag);
      asm volatile("fninit");
      set_control_word(modes);
      // Unmasked underflow traps for exact tiny results too, which raise no flag when masked.
      if (flag != underflow || (raised & flag) != 0) {
        EXPECT_EQ(arrived, (raised & flag) != 0) << "flag " << flag;
      }
      EXPECT_TRUE(job.repeats());
    }
  });
  sigaction(SIGFPE, &before, nullptr);
}

Job<double>* interrupting;
std::atomic<int> interruptions, wrong;
void on_alarm(int) {
  if (!interrupting->repeats()) ++wrong;
  ++interruptions;
}

// A handler that calls the library does not disturb the call that it interrupts.
TEST(Robustness, SignalHandlersMayCall) {
  Job<double> other(function_named("Exp", Type::f64, "A53"), 50, 0.1, 9);
  interrupting = &other;
  interruptions = wrong = 0;
  struct sigaction action = {}, before = {};
  action.sa_handler = on_alarm;
  action.sa_flags = SA_RESTART;
  sigaction(SIGALRM, &action, &before);
  const itimerval often = {{0, 500}, {0, 500}}, never = {};
  setitimer(ITIMER_REAL, &often, nullptr);
  int rounds = 0;
  do {
    for_each_function([]<class T>(const Function& f, T) {
      Job<T> job(f, 300, 0.05, 21);
      ASSERT_TRUE(job.repeats());
    });
  } while (interruptions < 100 && ++rounds < 1000);
  setitimer(ITIMER_REAL, &never, nullptr);
  sigaction(SIGALRM, &before, nullptr);
  EXPECT_GE(interruptions, 100);
  EXPECT_EQ(wrong, 0);
}

TEST(Robustness, ThreadsShareNothing) {
  std::atomic<int> wrong_results = 0;
  std::vector<std::thread> threads;
  for (uint32_t t = 0; t < 8; ++t)
    threads.emplace_back([&wrong_results, t] {
      for_each_function([&]<class T>(const Function& f, T) {
        Job<T> job(f, 400, 0.1, 100 + t % 2);
        for (int k = 0; k < 10; ++k)
          if (!job.repeats()) ++wrong_results;
      });
    });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(wrong_results, 0);
}

// Directed rounding and 53-bit precision cost accuracy, no more than that.
TEST(Robustness, ModesKeepResultsNear) {
  for_each_function([]<class T>(const Function& f, T) {
    Job<T> nearest(f, 500, 0, 31);
    for (const int precision : {2, 3})
      for (const int rounding : {0, 1, 2, 3}) {
        const ScopedModes modes(precision, rounding);
        Job<T> job(f, 500, 0, 31);
        for (size_t i = 0; i < 500; ++i) {
          const double got = *numbers<T>(&job.results()[i]);
          const double expected = *numbers<T>(&nearest.results()[i]);
          const double size = std::max(1.0, std::abs(expected));
          // An error of the argument grows by the slope, which near a pole is that of a reciprocal.
          const double slope = f.family.name == "Tan" ? size * size : size;
          ASSERT_LE(std::abs(got - expected), 0x1p-8 * slope)
              << precision << " " << rounding << " element " << i;
        }
      }
  });
}

// 2^31 - 1 elements, in place: one file mapped again and again, so that each of its numbers is
// inverted as often as there are mappings.
TEST(Robustness, LongestCall) {
  if (sizeof(size_t) == 4) GTEST_SKIP() << "arrays of this length do not fit an address space";
  constexpr size_t piece = size_t{1} << 24, length = 0x7fffffff;
  constexpr size_t pieces = (length * sizeof(float) + piece - 1) / piece;
  const int file = memfd_create("pieces", 0);
  ASSERT_EQ(ftruncate(file, piece), 0);
  auto* base = static_cast<char*>(
      mmap(nullptr, pieces * piece, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
  ASSERT_NE(base, MAP_FAILED);
  for (size_t k = 0; k < pieces; ++k)
    ASSERT_NE(
        mmap(base + k * piece, piece, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0),
        MAP_FAILED);
  auto* x = reinterpret_cast<float*>(base);
  for (size_t i = 0; i < piece / sizeof(float); ++i) x[i] = i % 2 == 0 ? 2.0F : -0.25F;
  EXPECT_EQ(daksInv_32f_A24(x, x, static_cast<int32_t>(length)), DAKVM_STATUS_OK);
  // An even number of mappings; the last element of the last one is not reached.
  ASSERT_EQ(pieces % 2, 0U);
  for (size_t i = 0; i < piece / sizeof(float); ++i) {
    const float once = i % 2 == 0 ? 2.0F : -0.25F;
    const float expected = i + 1 == piece / sizeof(float) ? 1 / once : once;
    ASSERT_EQ(x[i], expected) << i;
  }
  munmap(base, pieces * piece);
  close(file);
}

}  // namespace
}  // namespace dakvm::test
