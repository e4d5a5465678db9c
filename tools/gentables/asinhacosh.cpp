// Tables of src/inverse/asinhacosh: gentables_asinhacosh asinh | acosh
#include <cstring>

#include "natural_log.hpp"
#include "table_root.hpp"

using namespace gentables;

namespace {

constexpr double small_arsinh[] = {-0x1.555555555551bp-3, 0x1.333333330fac0p-4,
                                   -0x1.6db6dafab4472p-5, 0x1.f1c671225ed56p-6,
                                   -0x1.6e4b04cd3b907p-6, 0x1.10437f0a10cfbp-6};
constexpr double near_one[] = {
    -0x1.5555555555555p-4,  0x1.3333333333147p-6,  -0x1.6db6db6d6156fp-8,  0x1.f1c71bfecd52dp-10,
    -0x1.6e8b7818c0c1dp-11, 0x1.1c45756012e6ap-12, -0x1.c73d6f559c80fp-14, 0x1.50e16464bfb1bp-15};

void check_polynomials() {
  check_error(largest(Real(0x1p-57), Real(0.125),
                      [](const Real& y) {
                        const Real got = y + y * y * y * evaluate(small_arsinh, 6, y * y);
                        const Real exact = log(y + sqrt(y * y + Real(1)));
                        return got / exact - Real(1);
                      }),
              -60.7, "relative error of the polynomial for small arguments");
  check_error(largest(Real(0x1p-52), Real(0.0625),
                      [](const Real& w) {
                        const Real root = sqrt(Real(2) * w);
                        const Real got = root * (Real(1) + w * evaluate(near_one, 8, w));
                        const Real exact = log(Real(1) + w + sqrt(w * (w + Real(2))));
                        return got / exact - Real(1);
                      }),
              -63.2, "relative error of the polynomial near one");
  // The root's tail, up to 2^-8.98 of the root, and the root up to 0.89 of V.
  const Real reach = Real(0.0084) + Real(0.89) * exp2(Real(-8.98));
  check_error(largest(Real() - reach, reach,
                      [](const Real& u) { return natural_sum(u) - log(Real(1) + u); }),
              -65, "error of the logarithm's polynomial");
}

void begin() {
  check_polynomials();
  print_root_rows();
  natural_rows();
  print_root_series();
  natural_coefficients();
}

void end() {
  print_root_constants();
  natural_constants();
  scalar("halver", 0x1p+27 + 1);
}

}  // namespace

int main(int argc, char** argv) {
  const char* table = argc == 2 ? argv[1] : "";
  if (std::strcmp(table, "asinh") == 0) {
    begin();
    coefficients("h", 1, small_arsinh, 6);
    scalar("tiny", 0x1p-57);
    scalar("small", 0.125);
    scalar("large", 0x1p+28);
    scalar("one", 1);
    scalar("two", 2);
    end();
  } else if (std::strcmp(table, "acosh") == 0) {
    begin();
    coefficients("k", 1, near_one, 8);
    scalar("near_one", 1.0625);
    scalar("large", 0x1p+28);
    scalar("one", 1);
    scalar("two", 2);
    scalar("zero", 0);
    end();
  } else {
    std::fprintf(stderr, "usage: gentables_asinhacosh asinh|acosh\n");
    return 2;
  }
}
