// Tables of src/inverse/asinacos: gentables_asinacos asin_ha_64f | acos_ha_64f
#include <cstring>

#include "table_root.hpp"

using namespace gentables;

namespace {

// asin(y) = y + y^3 (S1 + S2 v + v^2 (B0 + ... + B11 v^11)), v = y^2
constexpr double S1[] = {0x1.5555558p-3, -0x1.5555569702859p-30};
constexpr double S2[] = {0x1.3333330000000p-4, 0x1.999d1d5678e0ap-31};
constexpr double B[] = {0x1.6db6db6d48c00p-5, 0x1.f1c71ca831c87p-6,  0x1.6e8b9af35a9fep-6,
                        0x1.1c4f854d7ce2ep-6, 0x1.c980e69cfb0f6p-7,  0x1.7ba3f46a7a74cp-7,
                        0x1.36c4e1149074ep-7, 0x1.47ff9bd880160p-7,  0x1.65df0e15d97b4p-11,
                        0x1.96bbf93f1f13fp-6, -0x1.ac6672d8262e1p-6, 0x1.13996dc3edd7ep-5};
// 2 asin(sqrt(w/2)) = sqrt(w/2) (L0 + L1 w + L2 w^2 + w^3 (R0 + ... + R11 w^11))
constexpr double L0[] = {0x1p+1, 0x1.20073430af345p-63};
constexpr double L1[] = {0x1.5555558p-3, -0x1.5555574765c14p-30};
constexpr double L2[] = {0x1.3333330000000p-5, 0x1.999e109d761b0p-32};
constexpr double R[] = {0x1.6db6db6d35892p-7,  0x1.f1c71caf00453p-9,   0x1.6e8b9a32aa2b8p-10,
                        0x1.1c4f937a8a022p-11, 0x1.c97f757f5a67ap-13,  0x1.7bb135a197cb3p-14,
                        0x1.366e321244193p-15, 0x1.49906cf8ca535p-16,  0x1.15d894603528bp-21,
                        0x1.9bfbe359fdaabp-17, -0x1.b2ea540703226p-18, 0x1.156909893ac75p-18};

Real pair(const double (&p)[2]) { return Real(p[0]) + Real(p[1]); }

template <size_t count>
Real sum(const double (&c)[count], const Real& x) {
  Real result;
  for (size_t k = count; k-- > 0;) result = result * x + Real(c[k]);
  return result;
}

Real asin(const Real& x) {
  Real result;
  mpfr_asin(result.get(), x.get(), MPFR_RNDN);
  return result;
}

void check_polynomials() {
  check_error(largest(Real(0x1p-20), Real(0.5),
                      [](const Real& y) {
                        const Real v = y * y;
                        const Real tail = pair(S1) + v * (pair(S2) + v * sum(B, v));
                        return (y + y * v * tail) / asin(y) - Real(1);
                      }),
              -63.6, "relative error of the polynomial for small arguments");
  check_error(largest(Real(0x1p-40), Real(0.5),
                      [](const Real& w) {
                        const Real root = sqrt(w / Real(2));
                        const Real Q = pair(L0) + w * (pair(L1) + w * (pair(L2) + w * sum(R, w)));
                        return root * Q / (Real(2) * asin(root)) - Real(1);
                      }),
              -63.1, "relative error of the polynomial for large arguments");
}

void pair_of(const char* name, const Real& value) {
  std::printf(".%s_hi = %a,\n.%s_lo = %a,\n", name, value.nearest(), name,
              (value - Real(value.nearest())).nearest());
}
void pair_of(const char* name, const double (&p)[2]) {
  std::printf(".%s_hi = %a,\n.%s_lo = %a,\n", name, p[0], name, p[1]);
}
void coefficients(const char* letter, const double* values) {
  for (int k = 0; k < 12; ++k) std::printf(".%s%d = %a,\n", letter, k, values[k]);
}

}  // namespace

int main(int argc, char** argv) {
  const char* table = argc == 2 ? argv[1] : "";
  const bool is_acos = std::strcmp(table, "acos_ha_64f") == 0;
  if (!is_acos && std::strcmp(table, "asin_ha_64f") != 0) {
    std::fprintf(stderr, "usage: gentables_asinacos asin_ha_64f|acos_ha_64f\n");
    return 2;
  }
  check_polynomials();
  print_root_rows();
  scalar("splitter", 0x1p+27);
  print_root_constants();
  if (!is_acos) scalar("least_normal", 0x1p-1022);
  scalar("tiny", 0x1p-53);
  pair_of("half_pi", pi() / Real(2));
  if (is_acos) pair_of("pi", pi());
  scalar("one", 1);
  scalar("half", 0.5);
  if (is_acos) scalar("zero", 0);
  pair_of("s1", S1);
  pair_of("s2", S2);
  coefficients("b", B);
  pair_of("l0", L0);
  pair_of("l1", L1);
  pair_of("l2", L2);
  coefficients("r", R);
  print_root_series();
}
