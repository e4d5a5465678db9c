// Results that never change: a hash per function over 2^20 fixed inputs, of the bits of the
// results, the statuses and the flags. The same from every compiler, at every optimisation, on both
// architectures. `golden_test --print` prints the rows of golden.inc.
#include <cstdio>

#include "tests/library/arrays.hpp"

namespace dakvm::test {
namespace {

struct Golden {
  std::string_view function;
  uint64_t hash;
};
constexpr Golden goldens[] = {
#include "golden.inc"
};

class Hash {
 public:
  void add(uint64_t word) {
    value_ = (value_ ^ word) * 0x9e3779b97f4a7c15;
    value_ ^= value_ >> 32;
  }
  uint64_t value() const { return value_; }

 private:
  uint64_t value_ = 0xcbf29ce484222325;
};

constexpr size_t part_length = 1 << 18;

// Subnormal numbers of every magnitude, of either sign.
template <class T>
std::vector<Word<T>> subnormal_words(uint32_t seed) {
  std::mt19937_64 random(seed);
  std::vector<Word<T>> words;
  while (words.size() < part_length) {
    const uint64_t word = random();
    const auto fraction = static_cast<Word<T>>(word) & (sign_mask<T> - 1 - exponent_mask<T>);
    words.push_back(fraction >> (word >> 32) % (sizeof(T) == 8 ? 52 : 23) |
                    (word >> 63 ? sign_mask<T> : 0));
  }
  return words;
}

// Numbers within two places of k 2^e, k below 256: bounds of kernels, seams of their tables. Half
// of them lie in [2^-12, 2^12).
template <class T>
std::vector<Word<T>> boundary_words(uint32_t seed) {
  constexpr int fraction_bits = sizeof(T) == 8 ? 52 : 23;
  constexpr uint64_t bias = sizeof(T) == 8 ? 1023 : 127;
  std::mt19937_64 random(seed);
  std::vector<Word<T>> words;
  while (words.size() < part_length) {
    const uint64_t word = random();
    const uint64_t exponent =
        word & 1 ? bias - 12 + (word >> 1) % 24 : (word >> 1) % (2 * bias + 2);
    const auto round =
        static_cast<Word<T>>(exponent << fraction_bits | (word >> 20 & 127) << (fraction_bits - 7));
    const auto near = static_cast<Word<T>>(round + (word >> 40) % 5 - 2);
    words.push_back((near & ~sign_mask<T>) | (word >> 63 ? sign_mask<T> : 0));
  }
  return words;
}

// Four parts: ordinary numbers with special ones between them, the number line with every kind of
// special one, subnormal numbers, bounds. A second argument comes from the same part or, every other
// time, from the part after the next.
template <class T>
std::vector<Word<T>> inputs(const registry::Family& family, uint32_t seed) {
  auto words = mixed_words<T>(part_length, family.low, family.high, 0.25, seed);
  for (const auto& part : {mixed_words<T>(part_length, family.low, family.high, 1, seed + 10),
                           subnormal_words<T>(seed + 20), boundary_words<T>(seed + 30)})
    words.insert(words.end(), part.begin(), part.end());
  return words;
}

template <class T>
uint64_t hash_of(const registry::Function& function) {
  const auto& family = function.family;
  const auto a = inputs<T>(family, 1);
  const auto b = inputs<T>(family, 2);
  Hash hash;
  for (size_t i = 0; i < a.size(); ++i) {
    const size_t other = (i + i % 2 * 2 * part_length) % b.size();
    const auto single = evaluate_one<T>(function, a[i], b[other]);
    for (int d = 0; d < family.destinations(); ++d) hash.add(single.result[d]);
    hash.add(static_cast<uint64_t>(single.status) << 16 | single.flags);
  }
  return hash.value();
}

uint64_t hash_of(const registry::Function& function) {
  return function.type == registry::Type::f64 ? hash_of<double>(function)
                                              : hash_of<float>(function);
}

TEST(Golden, EveryFunctionHasARow) {
  ASSERT_EQ(std::size(goldens), registry::functions.size());
  for (size_t i = 0; i < std::size(goldens); ++i)
    EXPECT_EQ(goldens[i].function, registry::functions[i].name);
}

class GoldenHash : public testing::TestWithParam<Golden> {};

TEST_P(GoldenHash, Holds) {
  for (const auto& function : registry::functions)
    if (function.name == GetParam().function) {
      EXPECT_EQ(GetParam().hash, hash_of(function));
      return;
    }
  FAIL() << "no such function";
}

INSTANTIATE_TEST_SUITE_P(Golden, GoldenHash, testing::ValuesIn(goldens),
                         [](const auto& info) { return std::string(info.param.function); });

}  // namespace

void print_goldens() {
  for (const auto& function : registry::functions)
    std::printf("{\"%s\", 0x%016llx},\n", function.name.data(),
                static_cast<unsigned long long>(hash_of(function)));
}

}  // namespace dakvm::test

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--print") {
    dakvm::test::print_goldens();
    return 0;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
