// Table of src/trigonometric/reduce: 4/pi in chunks, pi/4 in pieces.
#include <cstddef>

#include "gentables.hpp"

using namespace gentables;

namespace {

// Wide enough for the 1225 bits of 4/pi that the chunks hold.
constexpr int wide_bits = 1400;

bool has_bits(double x, int bits) { return Real(x).nearest(bits) == x; }

// Prints `heads`, each of so few bits, and behind them what they lack of pi/4.
template <size_t count>
void print_pieces(const char* name, const double (&heads)[count], int bits) {
  std::printf("constexpr double %s[%zu] = {", name, count + 1);
  Real rest = pi() / Real(4);
  for (const double head : heads) {
    check(has_bits(head, bits), "a piece of pi/4 has too many bits");
    rest = rest - Real(head);
    std::printf("%a, ", head);
  }
  std::printf("%a};\n", rest.nearest());
  check_error(rest, -(bits - 1) * static_cast<int>(count), "what the short pieces lack of pi/4");
}

// floor(4/pi 2^bits), modulo 2^25.
unsigned long chunk_of(int bits) {
  mpfr_t x;
  mpz_t whole;
  mpfr_init2(x, wide_bits);
  mpz_init(whole);
  mpfr_const_pi(x, MPFR_RNDN);
  mpfr_ui_div(x, 4, x, MPFR_RNDN);
  mpfr_mul_2si(x, x, bits, MPFR_RNDN);
  mpfr_get_z(whole, x, MPFR_RNDD);
  const unsigned long chunk = mpz_fdiv_ui(whole, 1ul << 25);
  mpz_clear(whole);
  mpfr_clear(x);
  return chunk;
}

}  // namespace

int main() {
  std::printf("constexpr double _PI04_INV = %a;\n", (Real(4) / pi()).nearest());
  print_pieces("_PI04_29x5", {0x1.921fb54p-1, 0x1.10b4612p-31, -0x1.676733cp-61, 0x1.1701b84p-89},
               29);
  print_pieces("_PI04_21x6",
               {0x1.921fap-1, 0x1.54443p-21, -0x1.73dcap-44, -0x1.3b39ap-64, 0x1.45c07p-87}, 21);
  print_pieces("_PI04_25x2", {0x1.921fb4p-1}, 25);
  std::printf("constexpr double _DP[50] = {\n  0.0,\n");
  for (int k = 1; k < 50; ++k) {
    const unsigned long chunk = chunk_of(25 * k - 1);
    // The bits that the kernel clears from the leading sum leave a multiple of 8 as long as its
    // second chunk reaches into the upper half.
    check(k > 40 || chunk >> 12 != 0, "a chunk that is too small");
    std::printf("  %a,\n", (Real(static_cast<double>(chunk)) * exp2(Real(201 - 25 * k))).nearest());
  }
  std::printf("};\n");
}
