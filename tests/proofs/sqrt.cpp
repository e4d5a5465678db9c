// Scripts for src/algebraic/sqrt, double precision: proofs_sqrt FOLDER
//
//   seed_<p>_<k>   each row of the table: relative error of its y0, and y0 = 2 v h0 exactly
//   step_<n>       three Newton steps: what the errors of y and h become
//   correction     from there to the store: the root's error
//
// The claim of each is a hypothesis of the next. Nothing is computed beside Gappa.
#include "algebraic/sqrt/sqrt_kernel.hpp"
#include "bounds.hpp"
#include "script.hpp"
#include "trace.hpp"

namespace {

using dakvm::x87::Ext;
using gentables::Real;
using trace::first_operand;
using trace::second_operand;

constexpr dakvm::sqrt::Table table = {
#include "algebraic/sqrt/sqrt_ha_64f.inc"
};

// Bounds on |a| and |D| (see below) from the seeds on.
struct Errors {
  const char *a, *D;
};
constexpr Errors after[] = {
    {"0x1.3p-9", "0"}, {"0x1.2p-17", "0x1p-61"}, {"0x1p-33", "0x1p-60"}, {"0x1p-59", "0x1.4p-59"}};

const std::string letters =
    "\n# y is s (1 + a) and h is (1 + b)/(2 s), and D is s (a - b) but for the roundings in y and "
    "h.\n"
    "g = 0.5/s;\n";

// One element on its way, for a seed that is a constant of the script.
struct Walk {
  explicit Walk(double value) : seed(trace::constant("seed", value)) {
    element.v = trace::variable("v");
    element.scale = 1;  // a power of two: exact
    element.seed = &seed;
    element.iterate(table);
    element.split(table);
    root = element.correct(table);
    result = dakvm::x87::round_to_double(root);
    y[3] = element.y;
    h[3] = element.h;
    for (int n = 2; n >= 0; --n) {  // y[n + 1] = y[n] + r y[n]
      y[n] = first_operand(y[n + 1]);
      h[n] = first_operand(h[n + 1]);
      r[n] = first_operand(second_operand(y[n + 1]));
    }
  }

  double seed;
  dakvm::sqrt::Element<double> element;
  Ext y[4], h[4], r[3], root, result;
};

void write_seed(const std::string& folder, int p, int k) {
  const Walk walk(table.seed[p][k]);
  trace::Listing listing;
  listing.name("y0", walk.y[0]).name("h0", walk.h[0]);
  const Real low = Real(1 << p) * Real(1 + k / 256.0), high = low + Real(1 << p) / Real(256);
  write_script(folder, "seed_" + std::to_string(p) + "_" + std::to_string(k),
               fill(R"(# sqrt(v) for <<low>> <= v <= <<high>>: the seed.
<<formats>># The argument is the square of a real number s, and a double.
v = s*s;

<<kernel>><<letters>>a = (y0 - s)/s;
D = y0 - 2*v*h0;

{ s in [<<s_low>>, <<s_high>>] /\ @FLT(v, 53) ->
  |a| <= <<a>> /\ D in [0, 0] }

a -> (y0 - seed*v)/s + (seed*s - 1)         { s <> 0 };
D -> (y0 - seed*v) - 2*v*(h0 - 0.5*seed);
)",
                    {{"formats", formats},
                     {"letters", letters},
                     {"low", trace::text_of(low.nearest())},
                     {"high", trace::text_of(high.nearest())},
                     {"kernel", listing.print({walk.y[0], walk.h[0]})},
                     {"s_low", bounds::lower(gentables::sqrt(low))},
                     {"s_high", bounds::upper(gentables::sqrt(high))},
                     {"a", after[0].a}}));
}

void write_step(const std::string& folder, int n) {
  const Walk walk(table.seed[0][0]);
  trace::Listing listing;
  listing.given("y", walk.y[n]).given("h", walk.h[n]).name("r", walk.r[n]);
  listing.name("y_next", walk.y[n + 1]).name("h_next", walk.h[n + 1]);
  write_script(folder, "step_" + std::to_string(n + 1),
               fill(R"(# sqrt(v): Newton step <<n>> of 3, for all arguments.
<<formats>>v = s*s;

# y and h are what the register holds.
y = x87(real_y);
h = x87(real_h);
<<kernel>><<letters>>a = (y - s)/s;
b = (h - g)/g;
D = y - 2*v*h;
a_next = (y_next - s)/s;
D_next = y_next - 2*v*h_next;

{ s in [1, 2] /\ |a| <= <<a>> /\ |D| <= <<D>> ->
  |a_next| <= <<a_next>> /\ |D_next| <= <<D_next>> }

# Without roundings the step leaves D (1 + r) and, of a = b, -3/2 a^2 - 1/2 a^3.
D_next -> (y_next - (y + r*y)) - 2*v*(h_next - (h + r*h)) + (1 + r)*D;
a_next -> (y_next - (y + (0.5 - y*h)*y))/s
          + D/(2*s) - a*b/2 - a*(a + b + a*b)/2     { s <> 0, g <> 0 };
r -> (r - (0.5 - y*h)) - (a + b + a*b)/2            { s <> 0, g <> 0 };
b -> a - D/s                                        { s <> 0, g <> 0 };
y -> s*(1 + a)                                      { s <> 0 };
h -> g*(1 + b)                                      { g <> 0 };
)",
                    {{"n", std::to_string(n + 1)},
                     {"formats", formats},
                     {"letters", letters},
                     {"kernel", listing.print({walk.y[n + 1], walk.h[n + 1]})},
                     {"a", after[n].a},
                     {"D", after[n].D},
                     {"a_next", after[n + 1].a},
                     {"D_next", after[n + 1].D}}));
}

void write_correction(const std::string& folder) {
  const Walk walk(table.seed[0][0]);
  const Ext hi = Ext{walk.element.c} - walk.element.c_less_y;
  trace::Listing listing;
  listing.given("y", walk.y[3]).given("h", walk.h[3]);
  listing.name("c", walk.element.c).name("c_less_y", walk.element.c_less_y);
  listing.name("hi", hi).name("lo", walk.element.y - hi);
  listing.name("d", second_operand(second_operand(walk.root)));
  listing.name("root", walk.root).name("result", walk.result);
  write_script(folder, "correction",
               fill(R"(# sqrt(v): from the third step to the result, for all arguments.
<<formats>># The argument is the square of a real number s, and a double: the largest is 4 - 2^-51.
v = s*s;

# y and h are what the register holds.
y = x87(real_y);
h = x87(real_h);
<<kernel>><<letters>>a = (y - s)/s;
b = (h - g)/g;
D = y - 2*v*h;

# The root lies in [1, 2), where a unit in the last place of a double is 2^-52: the register is off
# by 2^-12 of it and very little more, the result by less than 0.50025.
{ s in [1, 0x1.fffffffffffff8p+0] /\ @FLT(v, 53) /\ |a| <= <<a>> /\ |D| <= <<D>> ->
  |root - s| <= 0x1.000002p-64 /\ |result - s| <= 0x1.00200001p-53 }

# The split: lo is exact, and with it d up to the rounding of its two small products.
c - c_less_y -> y - (c_less_y - (c - y));
lo -> (lo - (y - hi)) - ((hi - (c - c_less_y)) - (c_less_y - (c - y)));
v - y*y -> ((v - hi*hi) - (hi + hi)*(y - hi)) - (y - hi)*(y - hi);

# The correction: with the exact d, y + h d is s (1 - a (b + a/2 + a b/2)).
v - y*y -> -v*a*(2 + a)                                             { s <> 0 };
(y + h*d) - s -> h*(d - (v - y*y)) - s*a*(b + a/2 + a*b/2)          { s <> 0, g <> 0 };
b -> a - D/s                                                        { s <> 0, g <> 0 };
y -> s*(1 + a)                                                      { s <> 0 };
h -> g*(1 + b)                                                      { g <> 0 };
)",
                    {{"formats", formats},
                     {"letters", letters},
                     {"kernel", listing.print({walk.result})},
                     {"a", after[3].a},
                     {"D", after[3].D}}));
}

}  // namespace

int main(int argc, char** argv) {
  const std::string folder = scripts_folder(argc, argv);
  for (int p = 0; p < 2; ++p)
    for (int k = 0; k < 256; ++k) write_seed(folder, p, k);
  for (int n = 0; n < 3; ++n) write_step(folder, n);
  write_correction(folder);
}
