// Results that never change: a hash per function over a fixed set of arguments, the same from every
// compiler and for both architectures. `golden_test --print` prints the rows of golden.inc.
#include <cstdio>

#include "arrays.hpp"

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
    for (int byte = 0; byte < 8; ++byte, word >>= 8)
      value_ = (value_ ^ (word & 0xff)) * 0x100000001b3;
  }
  uint64_t value() const { return value_; }

 private:
  uint64_t value_ = 0xcbf29ce484222325;
};

template <class T>
uint64_t hash_of(const registry::Function& function) {
  const auto& family = function.family;
  Hash hash;
  // Ordinary numbers, all kinds of them, and the whole of the number line.
  for (const double special : {0.0, 0.3, 1.0}) {
    constexpr size_t len = 20000;
    const auto a = mixed_words<T>(len, family.low, family.high, special, 1);
    const auto b = mixed_words<T>(len, family.low, family.high, special, 2);
    for (size_t i = 0; i < len; ++i) {
      const auto single = evaluate_one<T>(function, a[i], b[i]);
      for (int d = 0; d < family.destinations(); ++d) hash.add(single.result[d]);
      hash.add(static_cast<uint64_t>(single.status) << 16 | single.flags);
    }
  }
  return hash.value();
}

uint64_t hash_of(const registry::Function& function) {
  return function.type == registry::Type::f64 ? hash_of<double>(function)
                                              : hash_of<float>(function);
}

TEST(Golden, HashesHold) {
  ASSERT_EQ(std::size(goldens), registry::functions.size());
  for (size_t i = 0; i < std::size(goldens); ++i) {
    EXPECT_EQ(goldens[i].function, registry::functions[i].name);
    EXPECT_EQ(goldens[i].hash, hash_of(registry::functions[i])) << goldens[i].function;
  }
}

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
