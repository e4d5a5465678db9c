// A call of any function, with any length, alignment and overlap of its arrays and any words in
// them, gives what the same function gives one element at a time in the same memory.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <type_traits>
#include <vector>

#include "registry/registry.hpp"

namespace {

using dakvm::registry::Function;
using dakvm::registry::Operands;
using dakvm::registry::Type;

// Bytes of the input, zeros behind its end.
class Bytes {
 public:
  Bytes(const uint8_t* data, size_t size) : data_(data), size_(size) {}
  template <class Integer>
  Integer take() {
    Integer value{};
    const size_t n = size_ < sizeof value ? size_ : sizeof value;
    std::memcpy(&value, data_, n);
    data_ += n;
    size_ -= n;
    return value;
  }
  void fill(std::vector<char>& memory) {
    for (size_t i = 0; i < memory.size(); ++i)
      memory[i] = size_ > 0 ? static_cast<char>(data_[i % size_]) : char{0};
  }

 private:
  const uint8_t* data_;
  size_t size_;
};

template <class T>
void compare(const Function& f, Bytes bytes) {
  const int32_t length = bytes.take<uint8_t>() % 100 + 1;
  constexpr size_t room = 4096;
  size_t at[4];  // the arrays begin anywhere in one memory
  for (size_t& offset : at)
    offset = bytes.take<uint16_t>() % (room - static_cast<size_t>(length) * sizeof(T));
  std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t> word =
      bytes.take<std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t>>();
  T exponent;
  std::memcpy(&exponent, &word, sizeof exponent);
  if (exponent != exponent) exponent = 1.5;  // by value, a signalling NaN would become quiet
  if (f.family.destinations() == 2) {
    // What two results at one place mean is left open.
    const size_t apart = at[2] > at[3] ? at[2] - at[3] : at[3] - at[2];
    if (apart < static_cast<size_t>(length) * sizeof(T)) return;
  }
  std::vector<char> whole(room);
  bytes.fill(whole);
  std::vector<char> single = whole;
  const auto operands = [&](std::vector<char>& memory, int32_t i) {
    const auto place = [&](size_t k) { return reinterpret_cast<T*>(&memory[at[k]]) + i; };
    return Operands<T>{place(0), place(1), place(2), place(3), exponent};
  };
  const int32_t status = f(operands(whole, 0), length);
  int32_t last = DAKVM_STATUS_OK;
  for (int32_t i = 0; i < length; ++i) {
    const int32_t one = f(operands(single, i), 1);
    if (one != DAKVM_STATUS_OK) last = one;
  }
  if (status != last || std::memcmp(whole.data(), single.data(), room) != 0) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Bytes bytes(data, size);
  const Function& f =
      dakvm::registry::functions[bytes.take<uint8_t>() % dakvm::registry::functions.size()];
  if (f.type == Type::f64)
    compare<double>(f, bytes);
  else
    compare<float>(f, bytes);
  return 0;
}
