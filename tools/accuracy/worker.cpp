// Evaluates functions of a library over words from standard input: worker [LIBRARY], protocol.hpp.
// A process of its own, so that a 64-bit oracle can measure a 32-bit library.
#include <dlfcn.h>

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "protocol.hpp"
#include "registry/registry.hpp"
#include "tests/library/x87_state.hpp"

namespace dakvm::accuracy {
namespace {

using registry::Function;
using registry::Operands;

template <class T>
using Word = std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t>;

// Scalar entries by what they take and where their results go.
template <class T>
using Unary = long double (*)(T);
template <class T>
using Binary = double (*)(T, T);
template <class T>
using Indexed = void (*)(int32_t, const T*, T*, int32_t*);
template <class T>
using IndexedTwice = void (*)(int32_t, const T*, T*, T*, int32_t*);

template <class T>
void evaluate(Unary<T> entry, const Operands<T>& o, int32_t i) {
  o.dst1[i] = static_cast<T>(entry(o.src1[i]));
}
template <class T>
void evaluate(Binary<T> entry, const Operands<T>& o, int32_t i) {
  o.dst1[i] = static_cast<T>(entry(o.src1[i], o.src2[i]));
}
template <class T>
void evaluate(Indexed<T> entry, const Operands<T>& o, int32_t i) {
  int32_t status = 0;
  entry(i, o.src1, o.dst1, &status);
}
template <class T>
void evaluate(IndexedTwice<T> entry, const Operands<T>& o, int32_t i) {
  int32_t status = 0;
  entry(i, o.src1, o.dst1, o.dst2, &status);
}

constexpr uint32_t quiet_single = 0x00400000, infinity_single = 0x7f800000;
constexpr uint64_t quiet_double = 0x0008000000000000, infinity_double = 0x7ff0000000000000;

// An exponent is passed by value, where compilers differ about a signalling NaN: it is made quiet.
uint32_t made_quiet(uint32_t word) {
  return (word & 0x7fffffff) > infinity_single ? word | quiet_single : word;
}
uint64_t made_quiet(uint64_t word) {
  return (word & ~(uint64_t{1} << 63)) > infinity_double ? word | quiet_double : word;
}

bool read_all(void* to, size_t length) { return std::fread(to, 1, length, stdin) == length; }
bool write_all(const void* from, size_t length) {
  return std::fwrite(from, 1, length, stdout) == length;
}

template <class T>
class Arrays {
 public:
  bool read(const Request& request, int sources) {
    count_ = request.count;
    for (auto& words : in_) words.resize(count_);
    if (request.consecutive == 0)
      return read_all(in_[0].data(), count_ * sizeof(T)) &&
             (sources == 1 || read_all(in_[1].data(), count_ * sizeof(T)));
    Word<T> word;
    if (!read_all(&word, sizeof word)) return false;
    for (auto& each : in_[0]) each = word++;
    return true;
  }

  template <class F>
  void call(const Request& request, F f) {
    for (auto& words : out_) words.assign(count_, 0);
    statuses_.clear();
    flags_.clear();
    const test::ScopedModes modes(static_cast<int>(request.precision),
                                  static_cast<int>(request.rounding));
    const uint32_t len = request.calls == Calls::array ? count_ : 1;
    for (uint32_t i = 0; i < count_; i += len) {
      const Word<T> exponent = made_quiet(in_[1][i]);
      const auto operands = Operands<T>{number(in_[0][i]), number(in_[1][i]), number(out_[0][i]),
                                        number(out_[1][i]), *number(exponent)};
      test::clear_flags();
      statuses_.push_back(static_cast<int8_t>(f(operands, static_cast<int32_t>(len))));
      flags_.push_back(static_cast<uint8_t>(test::raised_flags()));
    }
    test::clear_flags();
  }

  bool write(int destinations) const {
    const Reply reply{1};
    return write_all(&reply, sizeof reply) && write_all(out_[0].data(), count_ * sizeof(T)) &&
           (destinations == 1 || write_all(out_[1].data(), count_ * sizeof(T))) &&
           write_all(statuses_.data(), statuses_.size()) &&
           write_all(flags_.data(), flags_.size()) && std::fflush(stdout) == 0;
  }

 private:
  static const T* number(const Word<T>& word) { return reinterpret_cast<const T*>(&word); }
  static T* number(Word<T>& word) { return reinterpret_cast<T*>(&word); }

  uint32_t count_ = 0;
  std::vector<Word<T>> in_[2], out_[2];
  std::vector<int8_t> statuses_;
  std::vector<uint8_t> flags_;
};

// The same entry point of another library.
template <class Pointer>
Pointer entry_of(void* library, std::string_view name, Pointer own) {
  return library == nullptr ? own
                            : reinterpret_cast<Pointer>(dlsym(library, std::string(name).c_str()));
}

template <class T>
bool run(const Request& request, const Function& function, void* library) {
  static Arrays<T> arrays;
  const auto& family = function.family;
  const int sources = family.form == registry::Form::scalar_exponent ? 2 : family.sources();
  if (!arrays.read(request, sources)) return false;
  const bool known = std::visit(
      [&](auto own) {
        const auto entry = entry_of(library, function.name, own);
        if (entry == nullptr) return false;
        arrays.call(request, [&](const Operands<T>& operands, int32_t len) {
          return registry::invoke<T>(entry, operands, len);
        });
        return true;
      },
      std::get<registry::Entry<T>>(function.entry));
  const Reply reply{0};
  return known ? arrays.write(family.destinations())
               : write_all(&reply, sizeof reply) && std::fflush(stdout) == 0;
}

template <class T, class Entry>
bool run_scalar(const Request& request, Entry own, void* library) {
  static Arrays<T> arrays;
  constexpr bool two_sources = std::is_same_v<Entry, Binary<T>>;
  constexpr bool two_results = std::is_same_v<Entry, IndexedTwice<T>>;
  const auto entry = entry_of(library, request.function, own);
  if (!arrays.read(request, two_sources ? 2 : 1)) return false;
  const Reply reply{0};
  if (entry == nullptr) return write_all(&reply, sizeof reply) && std::fflush(stdout) == 0;
  arrays.call(request, [&](const Operands<T>& operands, int32_t len) {
    for (int32_t i = 0; i < len; ++i) evaluate<T>(entry, operands, i);
    return 0;
  });
  return arrays.write(two_results ? 2 : 1);
}

bool answer(const Request& request, void* library) {
  const std::string_view name = request.function;
#define DAKVM_SCALAR(entry, T) \
  if (name == #entry) return run_scalar<T>(request, entry, library);
  DAKVM_SCALAR(gaxdsqrt_scalar, double)
  DAKVM_SCALAR(gaxssqrt_scalar, float)
  DAKVM_SCALAR(gaxsatan_scalar, float)
  DAKVM_SCALAR(gaxdatan2_scalar, double)
  DAKVM_SCALAR(gaxsatan2_scalar, float)
  DAKVM_SCALAR(gaxdSin_SC_HA, double)
  DAKVM_SCALAR(gaxdCos_SC_HA, double)
  DAKVM_SCALAR(gaxdSinCos_SC_HA, double)
  DAKVM_SCALAR(gaxdTan_SC_HA, double)
  DAKVM_SCALAR(gaxsSin_SC_HA, float)
  DAKVM_SCALAR(gaxsCos_SC_HA, float)
  DAKVM_SCALAR(gaxsSinCos_SC_HA, float)
  DAKVM_SCALAR(gaxsTan_SC_HA, float)
#undef DAKVM_SCALAR
  for (const Function& function : registry::functions)
    if (function.name == name)
      return function.type == registry::Type::f64 ? run<double>(request, function, library)
                                                  : run<float>(request, function, library);
  std::fprintf(stderr, "dakvm-accuracy-worker: no function %s\n", request.function);
  return false;
}

int serve(const char* path) {
  void* library = nullptr;
  if (path != nullptr && (library = dlopen(path, RTLD_NOW | RTLD_LOCAL)) == nullptr) {
    std::fprintf(stderr, "dakvm-accuracy-worker: %s\n", dlerror());
    return 1;
  }
  const auto version_of = entry_of(library, "dakvmGetLibVersion", &dakvmGetLibVersion);
  Hello hello{hello_magic, {}};
  if (version_of != nullptr) {
    const LibraryVersion& v = *version_of();
    std::snprintf(hello.version, sizeof hello.version, "%d.%d.%d.%d", static_cast<int>(v.major),
                  static_cast<int>(v.minor), static_cast<int>(v.build),
                  static_cast<int>(v.revision));
  }
  if (!write_all(&hello, sizeof hello) || std::fflush(stdout) != 0) return 1;
  for (Request request; read_all(&request, sizeof request);)
    if (!answer(request, library)) return 1;
  return 0;
}

}  // namespace
}  // namespace dakvm::accuracy

int main(int argc, char** argv) { return dakvm::accuracy::serve(argc > 1 ? argv[1] : nullptr); }
