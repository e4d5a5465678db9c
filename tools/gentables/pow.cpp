// Tables of src/exponential/pow: gentables_pow 64f | 32f
#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "gentables.hpp"

using namespace gentables;

namespace {

double from_bits(uint64_t bits) { return std::bit_cast<double>(bits); }

void fixed(const char* name, uint64_t bits, double value) {
  check(from_bits(bits) == value, "a bit pattern is not its number");
  scalar(name, value);
}

bool is_multiple(double x, int exponent) { return Real(x).multiple_of_power(exponent) == x; }

// Reciprocals, and their logarithms in two parts, the high one a multiple of 2^exponent.
struct Stage {
  std::vector<double> R;
  std::vector<Real> logarithm;

  void add(double r, const Real& log) {
    R.push_back(r);
    logarithm.push_back(log);
  }
  void print(const char* number, int exponent) const {
    std::printf(".R%s = {\n", number);
    for (const double r : R) std::printf("  %a,\n", r);
    std::printf("},\n.L%s = {\n", number);
    for (const Real& log : logarithm) {
      const double hi = log.multiple_of_power(exponent);
      const double lo = (log - Real(hi)).nearest();
      check(is_multiple(hi, exponent), "a high part is too long");
      check_error(Real(hi) + Real(lo) - log, exponent - 53, "a logarithm");
      std::printf("  {%a, %a},\n", hi, lo);
    }
    std::printf("},\n");
  }
};

void powers_of_two() {
  std::printf(".pow2 = {\n");
  for (int j = 0; j < 128; ++j) {
    const Real power = exp2(Real(j) / Real(128));
    const double hi = power.nearest();
    std::printf("  {%a, %a},\n", hi, (power - Real(hi)).nearest());
  }
  std::printf("},\n");
}

// log2 R of the stored R, checked against what it is meant to invert.
Real minus_log2(double r) { return Real() - log2(Real(r)); }

// The largest error of 2^r - 1 by a polynomial c1 r + c2 r^2 + ... over |r| <= 1/256.
void check_exponential(const std::vector<double>& c, double log2_bound) {
  check_error(largest(Real(-0x1p-8), Real(0x1p-8),
                      [&](const Real& r) {
                        Real sum;
                        for (size_t k = c.size(); k-- > 0;) sum = (sum + Real(c[k])) * r;
                        return sum - expm1(r * ln2());
                      }),
              log2_bound, "error of the polynomial of 2^r");
}

void table_64f() {
  constexpr double K = 0x1.715474p+0;
  check(K == from_bits(0x3ff7154740000000), "K");
  Stage first, second, third;
  for (int i = 0; i <= 32; ++i) {
    const double r = (Real(32) / Real(32 + i)).multiple_of_power(-15);
    first.add(r, minus_log2(r) - Real(i >= 16 ? 1 : 0));
  }
  for (int i = 0; i <= 32; ++i) {
    const Real p = i <= 8 ? Real(1) + Real(i) / Real(512) : Real(1) - Real(32 - i) / Real(1024);
    const double r = (Real(1) / p).multiple_of_power(-15);
    second.add(r, minus_log2(r));
  }
  for (int i = 0; i <= 128; ++i) {
    const Real p =
        i <= 62 ? Real(1) + Real(i) * Real(0x1p-15) : Real(1) - Real(128 - i) * Real(0x1p-16);
    const double r = (Real(K) / p).multiple_of_power(-22);
    check(r < 2, "R3 has more than 23 bits");
    third.add(r, minus_log2(r) + log2(Real(K)));
  }
  check(first.R[1] == 0.969696044921875 && first.R[16] == 0.666656494140625 && first.R[32] == 0.5 &&
            second.R[1] == 0.998046875 && second.R[16] == 1.015869140625 &&
            second.R[31] == 1.0009765625 && second.R[32] == 1 && third.R[0] == K &&
            third.R[128] == K && third.R[1] == 1.4426507949829102 &&
            third.R[64] == 1.4441051483154297,
        "a reciprocal does not follow the rule");
  check(first.logarithm[16].multiple_of_power(-40) == -0.4150154853314234, "L1 of row 16");

  // The ends of each interval of the mantissa, through all three reductions: the product of the
  // reciprocals is a double, the indices stay in their rows, and the remainder is small.
  Real worst;
  for (int at = 0; at < 1 << 20; at += 3)
    for (const double m : {1 + at * 0x1p-20, 1 + (at + 3) * 0x1p-20 - 0x1p-52}) {
      if (m >= 2) continue;
      const auto high = [](double x) {
        return static_cast<uint32_t>(std::bit_cast<uint64_t>(x) >> 32);
      };
      const auto i1 = ((high(m) & 0xfc000) + 0x4000) >> 15;
      const long double product1 = static_cast<long double>(m) * first.R[i1];
      const auto i2 = ((high(static_cast<double>(product1)) & 0xfc00) + 0x400) >> 11;
      const auto i3 = ((high(static_cast<double>(product1 * second.R[i2])) & 0xff0) + 0x10) >> 5;
      check(i2 <= 8 || i2 >= 16, "a second index lies between the two parts of its table");
      check(i3 <= 32 || i3 >= 63, "a third index lies between the two parts of its table");
      const double Rp =
          static_cast<double>(static_cast<long double>(first.R[i1]) * second.R[i2] * third.R[i3]);
      check(is_multiple(first.R[i1], -15) && is_multiple(second.R[i2], -15) &&
                is_multiple(third.R[i3], -22) && Rp < 2,
            "the product of the reciprocals is not exact");
      const Real u = abs(Real(m) * Real(Rp) - Real(K));
      if (worst < u) worst = u;
    }
  check_error(worst, -14, "remainder of the reduction");

  first.print("1", -40);
  second.print("2", -40);
  third.print("3", -40);
  powers_of_two();
  const double e1 = from_bits(0x3e79c3a6966457e8), e2 = from_bits(0xbfd62e4346694107),
               e3 = from_bits(0x3fc47fd462b6dee1), e4 = from_bits(0xbfb550472a9012d8);
  check(e1 == 9.597935033233503e-08 && e2 == -0.3465736568077919 && e3 == 0.16015105075870564 &&
            e4 == -0.08325619496470027,
        "polynomial of the logarithm");
  check(abs(Real(1) / (Real(K) * ln2()) - Real(1) - Real(e1)) < exp2(Real(-73)), "e1");
  check_error(largest(Real() - worst, worst,
                      [&](const Real& v) {
                        const Real q =
                            (((Real(e4) * v + Real(e3)) * v + Real(e2)) * v + Real(e1)) * v;
                        return v + q - log2(Real(1) + v / Real(K));
                      }),
              -74, "error of the polynomial of log2");
  scalar("e1", e1);
  scalar("e2", e2);
  scalar("e3", e3);
  scalar("e4", e4);
  fixed("f1", 0x3fe62e42fefa39ef, 0.6931471805599453);
  fixed("f2", 0x3fcebfbdff82c58f, 0.24022650695910072);
  fixed("f3", 0x3fac6b08d704a0c0, 0.05550410866482158);
  fixed("f4", 0x3f83b2ab6fba4e77, 0.009618129107628477);
  fixed("f5", 0x3f55d87fe78a6731, 0.0013333558146428443);
  check_exponential({0.6931471805599453, 0.24022650695910072, 0.05550410866482158,
                     0.009618129107628477, 0.0013333558146428443},
                    -59);
  std::printf(".out_of_range = {%a, %a},\n", from_bits(0x7fe0000000000000),
              from_bits(0x0010000000000000));
  scalar("zero", 0);
  scalar("one", 1);
  scalar("minus_one", -1);
  fixed("shifter", 0x42c8000000000000, 52776558133248.0);
  fixed("K", 0x3ff7154740000000, 1.442694902420044);
  fixed("splitter", 0x41a0000002000000, 134217729.0);
  fixed("raise", 0x4c70000000000000, 0x1p+200);
  fixed("lower", 0x3370000000000000, 0x1p-200);
}

void table_32f() {
  Stage reciprocals;
  Real worst;
  for (int i = 0; i <= 128; ++i) {
    const double r = (Real(128) / Real(128 + i)).multiple_of_power(-12);
    reciprocals.add(r, minus_log2(r) - Real(i >= 53 ? 1 : 0));
    for (const double m :
         {std::max(1.0, 1 + (i - 0.5) / 128), std::min(2.0, 1 + (i + 0.5) / 128)}) {
      const Real f = abs(Real(m) * Real(r) - Real(1));
      if (worst < f) worst = f;
    }
  }
  check_error(worst, -7.8, "remainder of the reduction");
  reciprocals.print("", -30);
  powers_of_two();
  const Real inv_ln2 = Real(1) / ln2();
  const double chi = inv_ln2.nearest(12);
  scalar("chi", chi);
  scalar("clo", (inv_ln2 - Real(chi)).nearest());
  std::vector<double> c;
  for (int k = 2; k <= 9; ++k) {
    c.push_back((Real(k % 2 == 0 ? -1 : 1) / Real(k)).nearest());
    std::printf(".c%d = %a,\n", k, c.back());
  }
  check_error(largest(Real() - worst, worst,
                      [&](const Real& f) {
                        Real sum;
                        for (size_t k = c.size(); k-- > 0;) sum = (sum + Real(c[k])) * f;
                        return sum * f + f - log2(Real(1) + f) * ln2();
                      }),
              -77, "error of the polynomial of the logarithm");
  // (ln2)^k / k!, the first of them in two parts.
  std::vector<double> f;
  Real term = ln2();
  for (int k = 1; k <= 6; ++k, term = term * ln2() / Real(k)) {
    f.push_back(term.nearest());
    std::printf(".f%d = %a,\n", k, f.back());
    if (k == 1) scalar("f1_tail", (term - Real(f.back())).nearest());
  }
  const Real tail = ln2() - Real(f[0]);
  check_error(largest(Real(-0x1p-8), Real(0x1p-8),
                      [&](const Real& r) {
                        Real sum;
                        for (size_t k = f.size(); k-- > 0;) sum = (sum + Real(f[k])) * r;
                        return sum + tail * r - expm1(r * ln2());
                      }),
              -70, "error of the polynomial of 2^r");
  scalar("shifter", 0x1.8p+45);
  scalar("grid", 12);
  scalar("zero", 0);
  scalar("one", 1);
  scalar("minus_one", -1);
  scalar("raise", 0x1p+64);
}

}  // namespace

int main(int argc, char** argv) {
  const char* table = argc == 2 ? argv[1] : "";
  if (std::strcmp(table, "64f") == 0) {
    table_64f();
  } else if (std::strcmp(table, "32f") == 0) {
    table_32f();
  } else {
    std::fprintf(stderr, "usage: gentables_pow 64f|32f\n");
    return 2;
  }
}
