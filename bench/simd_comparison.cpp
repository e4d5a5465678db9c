// What the x87 unit cannot reach: the time of an element in AVX2 functions of SLEEF and of glibc's
// libmvec, beside this library's x86-64 build. Prints a Markdown table.
#include <immintrin.h>
#include <sleef.h>

#include <cstdio>
#include <memory>

#include "bench/timing.hpp"
#include "bench/workload.hpp"

// The vector functions that gcc calls for loops under -ffast-math.
#define DAKVM_ROWS(row)                                                                         \
  row(Exp, exp) row(Ln, log) row(Log10, log10) row(Sin, sin) row(Cos, cos) row(Tan, tan)        \
      row(Asin, asin) row(Acos, acos) row(Atan, atan) row(Sinh, sinh) row(Cosh, cosh)           \
          row(Tanh, tanh) row(Asinh, asinh) row(Acosh, acosh) row(Atanh, atanh) row(Cbrt, cbrt) \
              row(Erf, erf)
#define DAKVM_DECLARE(family, name) extern "C" __m256d _ZGVdN4v_##name(__m256d);
DAKVM_ROWS(DAKVM_DECLARE)

namespace {

using namespace dakvm;

using Vector = __m256d (*)(__m256d);

void run(Vector f, const registry::Operands<double>& o, int32_t length) {
  for (int32_t i = 0; i < length; i += 4)
    _mm256_storeu_pd(o.dst1 + i, f(_mm256_loadu_pd(o.src1 + i)));
}

struct Row {
  const char *family, *name;
  Vector sleef, libmvec;
};
const Row rows[] = {
#define DAKVM_ROW(family, name)                                                      \
  {#family, #name, [](__m256d x) -> __m256d { return Sleef_##name##d4_u10avx2(x); }, \
   _ZGVdN4v_##name},
    DAKVM_ROWS(DAKVM_ROW)};

}  // namespace

int main() {
  if (!__builtin_cpu_supports("avx2") || !__builtin_cpu_supports("fma")) {
    std::fprintf(stderr, "simd_comparison: this processor has no AVX2\n");
    return 1;
  }
  bench::Session session;
  for (const Row& row : rows) {
    const registry::Function* own = registry::find(row.family, registry::Type::f64, "A53");
    if (own == nullptr) continue;
    const auto add = [&](const char* how, auto call) {
      auto arrays =
          std::make_shared<bench::Arrays<double>>(own->family, bench::main_workload(own->family));
      session.add(std::string(row.family) + how, arrays->elements(), [=] { arrays->walk(call); });
    };
    add(" own", [=](const auto& o, int32_t length) { (*own)(o, length); });
    add(" sleef", [f = row.sleef](const auto& o, int32_t length) { run(f, o, length); });
    add(" libmvec", [f = row.libmvec](const auto& o, int32_t length) { run(f, o, length); });
  }
  const auto times = session.measure(15, false);
  std::puts("| function | this library, x87 | SLEEF, AVX2, 1.0 ulp | libmvec, AVX2, 4 ulp |");
  std::puts("|---|---:|---:|---:|");
  for (const Row& row : rows) {
    const auto time = [&](const char* how) { return times.find(std::string(row.family) + how); };
    if (time(" own") == times.end()) continue;
    std::printf("| %s | %.2f | %.2f | %.2f |\n", row.name, time(" own")->second.median,
                time(" sleef")->second.median, time(" libmvec")->second.median);
  }
}
