// Tables of src/exponential/log:
// gentables_log ln_rows | ln_50_64f | ln_ha_64f | log10_50_64f | log10_ha_64f
#include <cmath>
#include <cstring>

#include "gentables.hpp"
#include "natural_log.hpp"

using namespace gentables;

namespace {

constexpr double series[] = {0x1.5555555555558p-1, 0x1.999999999522ep-2, 0x1.2492492e02b0fp-2,
                             0x1.c71c62d1c74bdp-3, 0x1.7462b9b7ccdd6p-3, 0x1.39fdc7dfcb5e0p-3,
                             0x1.2b5f0a4037c5ap-3};
constexpr double decimal[] = {0x1.a7a6cbf2e4107p-10, -0x1.27af2dc77b115p+0, 0x1.c6a02dc963a31p+0,
                              -0x1.8930964d42479p+1, 0x1.6ab9f7b1efe5cp+2,  -0x1.5c90e698cfb68p+3,
                              0x1.58992e1b1aa78p+4,  -0x1.5b3214e75eea2p+5};
constexpr double k = 0x1.bcp-2;

// What the two tables with rows differ in.
struct Kind {
  int factor_exponent;    // R and Q are multiples of its power of two
  int splitter_exponent;  // so is the splitter itself
  double near_one;
  double factor_scale;
  Real (*log)(const Real&);
};

Real natural_log(const Real& x) { return log(x); }
Real decimal_log(const Real& x) { return log(x) / log(Real(10)); }

constexpr Kind natural_kind = {-11, 21, 5 * 0x1p-9, 1, natural_log};
constexpr Kind decimal_kind = {-7, 23, 3 * 0x1p-9, k, decimal_log};

// log10(1 + v) as the kernels sum it, exactly.
Real decimal_sum(const Real& v) {
  const Real w = v * Real(k);
  Real sum = Real(decimal[7]);
  for (int i = 6; i >= 0; --i) sum = sum * w + Real(decimal[i]);
  return w + w * sum;
}

// The row's short reciprocal of 1 + j/64.
double reciprocal(const Kind& kind, int j) {
  return (Real(64) / Real(64 + j)).multiple_of_power(kind.factor_exponent);
}

// The first part of -log(reciprocal), and the multiple of which power of two it is.
double high_part(const Kind& kind, int j) {
  // The first natural row is cut shorter than it need be; the low part takes it up.
  const int exponent = j == 1 && kind.factor_scale == 1 ? -37 : -42;
  return (Real() - kind.log(Real(reciprocal(kind, j)))).multiple_of_power(exponent);
}

// |v| over the interval of every row, and the sums that the kernel takes to be exact.
void check_rows(const Kind& kind) {
  const int last_bit = kind.splitter_exponent - 52;
  Real reach;
  for (int j = 0; j <= 64; ++j) {
    const double R = reciprocal(kind, j), factor = kind.factor_scale * R;
    for (const double half : {-1.0, 1.0}) {
      double m = 1 + (j + half / 2) / 64;
      m = m < 1 ? 1 : m > 2 ? 2 : m;
      const Real v = abs(Real(m) * Real(R) - Real(1));
      if (reach < v) reach = v;
    }
    // mh factor is a multiple of 2^(last_bit - shift) below 2, hi + a one of 2^-52 below 2^10.
    const int shift = kind.factor_scale == 1 ? 11 : 15;
    check(std::fmod(factor, std::ldexp(1, -shift)) == 0, "a factor has too many bits");
    check(shift - last_bit <= 52, "hi + a is not exact");
    check(std::fmod(high_part(kind, j), 0x1p-42) == 0, "a high part has too many bits");
  }
  const bool is_natural = kind.factor_scale == 1;
  check(reach < Real(is_natural ? 0.0084 : 0.0118), "the reduced range is wider than stated");
  const auto sum = is_natural ? natural_sum : decimal_sum;
  check_error(
      largest(Real() - reach, reach, [&](const Real& v) { return sum(v) - kind.log(Real(1) + v); }),
      is_natural ? -68 : -66, "error of the polynomial after the table");
  const Real bound = Real(kind.near_one);
  check_error(largest(Real() - bound, bound,
                      [&](const Real& v) {
                        const Real exact = kind.log(Real(1) + v);
                        return v.nearest() == 0 ? Real() : sum(v) / exact - Real(1);
                      }),
              -61, "relative error of the polynomial near one");
}

void print_rows(const Kind& kind) {
  check_rows(kind);
  for (int j = 0; j <= 64; ++j) {
    const double R = reciprocal(kind, j), hi = j == 0 ? 0 : high_part(kind, j);
    const Real lo = Real() - kind.log(Real(R)) - Real(hi);
    std::printf("  {%a, %a, %a},\n", kind.factor_scale * R, hi, j == 0 ? 0 : lo.nearest());
  }
}

void print_constants(const Kind& kind) {
  scalar("log_2_hi", high_part(kind, 64));
  scalar("log_2_lo", (kind.log(Real(2)) - Real(high_part(kind, 64))).nearest());
  scalar("shifter", 0x1p+46 + 1);
  scalar("splitter", std::ldexp(1, kind.splitter_exponent));
  scalar("near_one", kind.near_one);
  scalar("raise", 0x1p+60);
  scalar("zero", 0);
  scalar("one", 1);
}

void low(bool is_natural) {
  const Real s = (sqrt(Real(2)) - Real(1)) / (sqrt(Real(2)) + Real(1));
  check_error(largest(Real(), s,
                      [&](const Real& t) {
                        const Real f = Real(2) * t / (Real(1) - t), z = t * t;
                        Real sum = Real(series[6]);
                        for (int i = 5; i >= 0; --i) sum = sum * z + Real(series[i]);
                        const Real got = f - t * (f - z * sum), exact = log(Real(1) + f);
                        return t.nearest() == 0 ? Real() : got / exact - Real(1);
                      }),
              -56, "relative error of the series");
  if (is_natural) {
    scalar("ln2", ln2().nearest());
  } else {
    scalar("log10_2", decimal_log(Real(2)).nearest());
    scalar("log10_e", (Real(1) / log(Real(10))).nearest());
  }
  scalar("sqrt2", sqrt(Real(2)).nearest());
  scalar("raise", 0x1p+60);
  scalar("zero", 0);
  scalar("one", 1);
  scalar("two", 2);
  coefficients("a", 1, series, 7);
}

}  // namespace

int main(int argc, char** argv) {
  const char* table = argc == 2 ? argv[1] : "";
  if (std::strcmp(table, "ln_50_64f") == 0) {
    low(true);
  } else if (std::strcmp(table, "log10_50_64f") == 0) {
    low(false);
  } else if (std::strcmp(table, "ln_rows") == 0) {
    print_rows(natural_kind);
  } else if (std::strcmp(table, "ln_ha_64f") == 0) {
    natural_rows();
    print_constants(natural_kind);
    natural_coefficients();
  } else if (std::strcmp(table, "log10_ha_64f") == 0) {
    check(k == (Real(1) / log(Real(10))).nearest(8), "k is not log10(e) in 8 bits");
    std::printf(".rows = {\n");
    print_rows(decimal_kind);
    std::printf("},\n");
    print_constants(decimal_kind);
    scalar("k", k);
    coefficients("d", 1, decimal, 8);
  } else {
    std::fprintf(stderr,
                 "usage: gentables_log ln_rows|ln_50_64f|ln_ha_64f|log10_50_64f|log10_ha_64f\n");
    return 2;
  }
}
