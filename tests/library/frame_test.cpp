// The frame, over every function of the registry: what holds whatever the function computes.
#include <sys/mman.h>
#include <unistd.h>

#include <array>

#include "arrays.hpp"
#include "notifications.hpp"

namespace dakvm::test {
namespace {

using registry::Form;
using registry::Function;
using registry::Operands;
using registry::Type;

// A function with the arrays that a call of it takes, `len` elements each.
template <class T>
class Call {
 public:
  Call(const Function& function, int32_t len, double special, uint32_t seed)
      : function_(function), len_(len) {
    const auto& family = function.family;
    for (auto& source : sources_)
      source = mixed_words<T>(static_cast<size_t>(len), family.low, family.high, special, seed++);
    for (auto& destination : destinations_) {
      destination.resize(static_cast<size_t>(len) + 2);
      std::memset(destination.data(), untouched, destination.size() * sizeof(T));
    }
  }

  Operands<T> operands() {
    return {numbers<T>(sources_[0].data()), numbers<T>(sources_[1].data()),
            numbers<T>(destinations_[0].data() + 1), numbers<T>(destinations_[1].data() + 1),
            static_cast<T>(function_.family.low)};
  }
  Single<T> single(int32_t i) const {
    return evaluate_one<T>(function_, sources_[0][static_cast<size_t>(i)],
                           function_.family.form == Form::scalar_exponent
                               ? word_of(static_cast<T>(function_.family.low))
                               : sources_[1][static_cast<size_t>(i)]);
  }
  Word<T> result(int which, int32_t i) const {
    return destinations_[which][static_cast<size_t>(i + 1)];
  }
  bool frame_is_untouched() const {
    Word<T> canary;
    std::memset(&canary, untouched, sizeof canary);
    for (const auto& d : destinations_)
      if (d.front() != canary || d.back() != canary) return false;
    return true;
  }

 private:
  const Function& function_;
  int32_t len_;
  std::array<std::vector<Word<T>>, 2> sources_, destinations_;
};

template <class Body>
void with_type(const Function& function, Body body) {
  SCOPED_TRACE(function.name);
  if (function.type == Type::f64)
    body(double{});
  else
    body(float{});
}

template <class Body>
void for_each_function(Body body) {
  for (const Function& function : registry::functions)
    with_type(function, [&](auto t) { body(function, t); });
}

TEST(Frame, ChecksLengthThenPointersAndTouchesNothing) {
  for_each_function([]<class T>(const Function& f, T) {
    Call<T> call(f, 1, 0, 1);
    for (const int32_t len : {0, -1, INT32_MIN}) {
      EXPECT_EQ(f(Operands<T>{}, len), DAKVM_STATUS_SIZE_ERR);
      EXPECT_EQ(f(call.operands(), len), DAKVM_STATUS_SIZE_ERR);
    }
    const auto with_null = [&](auto member) {
      auto operands = call.operands();
      operands.*member = nullptr;
      EXPECT_EQ(f(operands, 1), DAKVM_STATUS_NULL_PTR_ERR);
    };
    with_null(&Operands<T>::src1);
    with_null(&Operands<T>::dst1);
    if (f.family.sources() == 2) with_null(&Operands<T>::src2);
    if (f.family.destinations() == 2) with_null(&Operands<T>::dst2);
    Word<T> canary;
    std::memset(&canary, untouched, sizeof canary);
    EXPECT_EQ(call.result(0, 0), canary);
  });
}

// The trigonometric functions of floats leave infinities to the scalar entries.
std::string notified_name(const Function& f) {
  const bool by_entry =
      f.type == Type::f32 &&
      std::string_view("Sin Cos SinCos Tan").find(f.family.name) != std::string::npos;
  return by_entry ? "s" + std::string(f.family.name) + "_HA" : "";
}

// Results, status, flags and notifications of a call are those of its elements one by one.
TEST(Frame, IsElementByElementInIndexOrder) {
  for_each_function([]<class T>(const Function& f, T) {
    uint32_t seed = 0;
    for (const int32_t len : {1, 2, 31, 32, 33, 63, 64, 65, 100, 1000})
      for (const double special : {0.0, 0.02, 0.5, 1.0}) {
        SCOPED_TRACE(len);
        Call<T> call(f, len, special, seed += 2);
        notifications.clear();
        notified_length = len;
        const auto o = call.operands();
        clear_flags();
        const int32_t status = f(o, len);
        const uint16_t flags = raised_flags();
        const auto seen = notifications;
        notified_length = 0;
        ASSERT_TRUE(stack_is_empty());

        int32_t last = DAKVM_STATUS_OK;
        uint16_t all_flags = 0;
        size_t notified = 0;
        for (int32_t i = 0; i < len; ++i) {
          const auto single = call.single(i);
          for (int d = 0; d < f.family.destinations(); ++d)
            ASSERT_EQ(call.result(d, i), single.result[d]) << "element " << i;
          all_flags |= single.flags;
          if (single.status == DAKVM_STATUS_OK) continue;
          last = single.status;
          ASSERT_LT(notified, seen.size());
          const auto& n = seen[notified++];
          EXPECT_EQ(n.code, single.status);
          EXPECT_EQ(n.name, notified_name(f));
          EXPECT_EQ(n.index, i);
          EXPECT_EQ(n.arrays[0], o.src1);
          EXPECT_EQ(n.arrays[1], f.family.sources() == 2 ? o.src2 : o.src1);
          EXPECT_EQ(n.arrays[2], o.dst1);
          EXPECT_EQ(n.arrays[3], f.family.destinations() == 2 ? o.dst2 : o.dst1);
          EXPECT_EQ(n.stored, call.result(0, i)) << "notified before its store";
          EXPECT_FALSE(n.next_is_stored) << "notified after the next element's store";
        }
        EXPECT_EQ(status, last);
        EXPECT_EQ(flags, all_flags);
        EXPECT_EQ(notified, seen.size());
        EXPECT_TRUE(call.frame_is_untouched());
      }
  });
}

// Source and destination at any distance from each other, whole elements or not.
TEST(Frame, OverlappingArraysBehaveAsIfOneByOne) {
  for_each_function([]<class T>(const Function& f, T) {
    constexpr int32_t len = 80;
    constexpr int reach = 40;
    const auto words = mixed_words<T>(len + 2 * reach + 2, f.family.low, f.family.high, 0.1, 7);
    const auto other = mixed_words<T>(len, f.family.low, f.family.high, 0.1, 8);
    std::vector<int> distances;
    for (int d = -reach; d <= reach; ++d) {
      distances.push_back(d * static_cast<int>(sizeof(T)));
      if (d % 13 == 0)
        for (const int odd : {-3, -1, 1, 2}) distances.push_back(distances.back() + odd);
    }
    for (const int distance : distances)
      for (int source = 0; source < f.family.sources(); ++source) {
        SCOPED_TRACE(distance);
        auto whole = words, stepwise = words;
        std::vector<Word<T>> second(len + 1);
        const auto operands = [&](auto& memory) {
          auto* src = reinterpret_cast<char*>(memory.data() + reach + 1);
          auto* overlapping = reinterpret_cast<const T*>(src);
          auto* apart = numbers<T>(other.data());
          return Operands<T>{source == 0 ? overlapping : apart, source == 0 ? apart : overlapping,
                             reinterpret_cast<T*>(src + distance), numbers<T>(second.data()),
                             static_cast<T>(f.family.low)};
        };
        const int32_t status = f(operands(whole), len);
        int32_t last = 0;
        auto step = operands(stepwise);
        for (int32_t i = 0; i < len; ++i) {
          if (const int32_t s = f(step, 1); s != 0) last = s;
          ++step.src1, ++step.src2, ++step.dst1, ++step.dst2;
        }
        ASSERT_EQ(whole, stepwise);
        EXPECT_EQ(status, last);
      }
  });
}

// Inaccessible pages right before and behind the arrays, and starts at every address modulo 16.
TEST(Frame, ReadsAndWritesNothingOutsideTheArrays) {
  const auto page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
  auto* base =
      static_cast<char*>(mmap(nullptr, 9 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
  ASSERT_NE(base, MAP_FAILED);
  std::array<char*, 4> room;
  for (size_t k = 0; k < 4; ++k) {
    room[k] = base + (2 * k + 1) * page;
    ASSERT_EQ(mprotect(room[k], page, PROT_READ | PROT_WRITE), 0);
  }
  for_each_function([&]<class T>(const Function& f, T) {
    for (const size_t len : {1u, 5u, 33u, 100u})
      for (size_t shift = 0; shift < 17; ++shift) {
        // The last round stands against the end of the room.
        const size_t at = shift == 16 ? page - len * sizeof(T) : shift;
        const auto a = mixed_words<T>(len, f.family.low, f.family.high, 0.1, 3);
        const auto b = mixed_words<T>(len, f.family.low, f.family.high, 0.1, 4);
        std::memcpy(room[0] + at, a.data(), len * sizeof(T));
        std::memcpy(room[1] + at, b.data(), len * sizeof(T));
        std::vector<Word<T>> expected(len), second(len), got(len);
        const auto low = static_cast<T>(f.family.low);
        const auto n = static_cast<int32_t>(len);
        f(Operands<T>{numbers<T>(a.data()), numbers<T>(b.data()), numbers<T>(expected.data()),
                      numbers<T>(second.data()), low},
          n);
        f(Operands<T>{reinterpret_cast<T*>(room[0] + at), reinterpret_cast<T*>(room[1] + at),
                      reinterpret_cast<T*>(room[2] + at), reinterpret_cast<T*>(room[3] + at), low},
          n);
        std::memcpy(got.data(), room[2] + at, len * sizeof(T));
        ASSERT_EQ(got, expected);
      }
  });
  munmap(base, 9 * page);
}

// In the caller's own precision and rounding, and back to it.
TEST(Frame, KeepsTheCallersModes) {
  for_each_function([]<class T>(const Function& f, T) {
    std::vector<std::vector<Word<T>>> results;
    for (const int precision : {0, 2, 3})
      for (const int rounding : {0, 1, 2, 3}) {
        Call<T> call(f, 200, 0.2, 11);
        const ScopedModes modes(precision, rounding);
        const uint16_t before = control_word();
        const uint32_t before_mxcsr = mxcsr();
        f(call.operands(), 200);
        EXPECT_EQ(control_word(), before);
        EXPECT_EQ(mxcsr(), before_mxcsr);
        EXPECT_TRUE(stack_is_empty());
        for (int32_t i = 0; i < 200; ++i) ASSERT_EQ(call.result(0, i), call.single(i).result[0]);
        auto& all = results.emplace_back();
        for (int32_t i = 0; i < 200; ++i) all.push_back(call.result(0, i));
      }
    // Nearest and upward differ in 64 bits: the caller's rounding was in force.
    EXPECT_NE(results[8], results[10]);
  });
}

}  // namespace

}  // namespace dakvm::test
