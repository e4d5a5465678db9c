// Scripts for src/inverse/atan, double precision: proofs_atan FOLDER
//
//   split_<i>       Dekker's split of a number in [1, 2)
//   quotient_<j>    each breakpoint: t_hi + T_lo is (y - c)/(1 + y c), nearly
//   sum_<j>         and from there to the last sum
//   origin_<i>      below 1/8, where there is no breakpoint
//
// A split is the same for every power of two and both signs. What it claims is a hypothesis where a
// number is split. Beside Gappa this program finds, rounded up, the distance of the table's rows
// from the angles they stand for, by MPFR, and the largest error of the polynomial, from the power
// series of the difference (bounds.hpp).
#include <cmath>

#include "bounds.hpp"
#include "inverse/atan/atan_64f.hpp"
#include "script.hpp"
#include "trace.hpp"

namespace {

using dakvm::x87::Ext;
using dakvm::x87::Split;
using gentables::Real;
using trace::first_operand;
using trace::second_operand;

constexpr dakvm::atan::Table table = {
    .arc =
        {
#include "inverse/atan/arc.inc"
        },
#include "inverse/atan/atan_ha_64f.inc"
};

// What is claimed in units of the last place of the result: before the store; half a unit more
// after it. A number is less than 2^53 of these units.
constexpr double origin_error = 0.003, row_error = 0.0022;

// Relative distance of a split's head, which has 26 bits.
const std::string split_error = "0x1.1p-26";

dakvm::atan::Table named_table() {
  dakvm::atan::Table t = table;
  t.arc.c1 = trace::constant("c1", t.arc.c1);
  t.arc.c2 = trace::constant("c2", t.arc.c2);
  t.arc.c3 = trace::constant("c3", t.arc.c3);
  t.arc.c4 = trace::constant("c4", t.arc.c4);
  t.arc.c5 = trace::constant("c5", t.arc.c5);
  t.arc.c6 = trace::constant("c6", t.arc.c6);
  t.arc.c7 = trace::constant("c7", t.arc.c7);
  return t;
}

// A bound on |t + t s P(s) - atan(t)|/|t| for low <= |t| <= high: of the difference of the two
// power series in s up to s^30, and 2^-180 for the rest, which is below s^31/63 with s <= 2^-6.
Real polynomial_error(const Real& low, const Real& high) {
  const auto& a = table.arc;
  const double c[] = {1, a.c1, a.c2, a.c3, a.c4, a.c5, a.c6, a.c7};
  std::vector<Real> difference;
  for (int k = 0; k <= 30; ++k)
    difference.push_back((k <= 7 ? Real(c[k]) : Real()) -
                         Real(k % 2 == 0 ? 1 : -1) / Real(2 * k + 1));
  return bounds::of_series(difference, low * low, high * high) + Real(0x1p-180);
}

// The head of what Dekker's split makes of x.
Ext head_of(Ext x) {
  Split split;
  split.multiply(x, table.splitter);
  split.subtract(x);
  return split.high();
}

// One element on its way to the last sum.
struct Walk {
  Walk(double angle_hi, double angle_lo, double c) : t(named_table()), row{angle_hi, angle_lo} {
    element.y = trace::variable("y");
    element.c = c;
    element.row = &row;
    u = Ext{element.y} - c;
    trace::fits_double(u);  // a claim of the quotient scripts
    element.reduce(t);
    element.form_denominator(t);
    element.split_denominator(t);
    element.split_denominator_rest(t);
    u_hi = element.u_split.high();
    D_hi = element.D_split.high();
    trace::fits_double(D_hi);  // with its 26 bits
    element.invert(t);
    element.split_reciprocal(t);
    r_hi = element.r_split.high();
    element.correct_reciprocal(t);
    element.divide(t);
    element.round_quotient(t);
    element.add_breakpoint(t);
    element.add_rest(t);
    sum = first_operand(element.magnitude);
    gentables::check(trace::same(u_hi, head_of(u)), "u_hi is not the head of u");
    gentables::check(trace::same(D_hi, head_of(element.D)), "D_hi is not the head of D");
    gentables::check(trace::same(r_hi, head_of(Ext{1} / D_hi)), "r_hi is not the head of 1/D_hi");
  }

  dakvm::atan::Table t;
  dakvm::atan::Row row;
  dakvm::atan::Element element;
  Ext u, u_hi, D_hi, r_hi, sum;
};

void write_splits(const std::string& folder) {
  const char* const ends[] = {"1",
                              "0x1.0000000000001p+0",
                              "1.5",
                              "0x1.ffffffp+0",
                              "0x1.ffffffep+0",
                              "0x1.fffffffffffffffep+0"};
  Split split;
  const Ext x = trace::variable("x");
  split.multiply(x, table.splitter);
  split.subtract(x);
  trace::Listing listing;
  listing.name("product", split.product)
      .name("remainder", split.remainder)
      .name("hi", split.high());
  const std::string kernel = listing.print({split.high()});
  for (size_t i = 0; i + 1 < std::size(ends); ++i)
    write_script(folder, "split_" + std::to_string(i),
                 fill(R"(# Dekker's split, for <<low>> <= x <= <<high>>.
<<formats>>x = x87(real_x);
<<kernel>>
# A multiple of 2^-25 that is at most 2 has 26 bits.
{ x in [<<low>>, <<high>>] ->
  @FIX(hi, -25) /\ hi in [1, 2] /\ |hi -/ x| <= <<error>> }

product - x -> (product - 134217729*x) + 134217728*x;
product - remainder -> x - (remainder - (product - x));
hi - x -> (hi - (product - remainder)) - (remainder - (product - x));
)",
                      {{"low", ends[i]},
                       {"high", ends[i + 1]},
                       {"formats", formats},
                       {"kernel", kernel},
                       {"error", split_error}}));
}

// A half binade and its middle.
struct Interval {
  double low, c, high;
};
Interval interval_of(int j) {
  const double unit = std::ldexp(0.25, j / 2 - 3), c = (j % 2 == 0 ? 5 : 7) * unit;
  return {c - unit, c, c + unit};
}

void write_row(const std::string& folder, int j) {
  const auto [low, c, high] = interval_of(j);
  const auto [angle_hi, angle_lo] = table.arc.rows[j];
  const Walk walk(trace::constant("angle_hi", angle_hi), trace::constant("angle_lo", angle_lo),
                  trace::constant("c", c));
  const auto& e = walk.element;
  // T grows with y: it is largest at the ends.
  Real reach;
  for (const double end : {low, high}) {
    const Real T = gentables::abs(Real(end - c) / (Real(1) + Real(end) * Real(c)));
    if (reach < T) reach = T;
  }
  const double largest_t = mpfr_get_d((reach * Real(1 + 0x1p-30)).get(), MPFR_RNDU);
  const std::string t_text = trace::text_of(largest_t);
  const std::string T_lo_bound = trace::text_of(largest_t * 0x1p-24);
  const std::string T_error = trace::text_of(largest_t * 0x1p-74);

  trace::Listing quotient;
  quotient.given("u_hi", walk.u_hi).given("D_hi", walk.D_hi).given("r_hi", walk.r_hi);
  const Ext e_sum = first_operand(e.e), T_sum = first_operand(e.T_lo);
  quotient.name("u", walk.u).name("yc", first_operand(e.q)).name("q", e.q).name("D", e.D);
  quotient.name("D_lo", first_operand(second_operand(e_sum))).name("e", e.e);
  quotient.name("r_lo", first_operand(first_operand(T_sum)));
  quotient.name("u_lo", first_operand(first_operand(second_operand(T_sum))));
  quotient.name("t_hi", e.t_hi).name("T_lo", e.T_lo);
  write_script(folder, "quotient_" + std::to_string(j),
               fill(R"(# atan(y), <<low>> <= y <= <<high>>: the quotient T = (y - c)/(1 + y c).
<<formats>>y = dbl(real_y);
<<kernel>>
# Exact: the denominator and the quotient, the rest e of r_hi D, and 1/D up to e^3.
Dx = 1 + y*c;
T = u/Dx;
ex = 1 - Dx*r_hi;
rho = r_hi + (1 + ex)*ex*r_hi;
r = x87(1/D_hi);

# The heads have 26 bits, and no lower bits than numbers of this size have.
{ y in [<<low>>, <<high>>] /\ |T| <= <<reach>> /\
  @FLT(u_hi, 26) /\ @FIX(u_hi, -200) /\ |u_hi -/ u| <= <<split>> /\
  @FLT(D_hi, 26) /\ @FIX(D_hi, -200) /\ |D_hi -/ D| <= <<split>> /\
  @FLT(r_hi, 26) /\ @FIX(r_hi, -200) /\ |r_hi -/ r| <= <<split>> ->
  u - (y - c) in [0, 0] /\ @FLT(u, 53) /\ @FIX(u, -1074) /\
  |T_lo| <= <<T_lo_bound>> /\ |T - (t_hi + T_lo)| <= <<T_error>> }

# e, small because r_hi D is 1 up to the roundings between them
ex -> -(r_hi*D - 1) - (Dx - D)*r_hi;
r_hi*D -> (1 + (r_hi - r)/r)*(1 + (r - 1/D_hi)/(1/D_hi))/(1 + (D_hi - D)/D)
                                                       { r <> 0, D_hi <> 0, D <> 0 };
Dx - D -> (yc - q) + (1 + q - D) - (yc - y*c);
D_lo - (Dx - D_hi) -> (D_lo - ((yc - q) + ((q - D) + 1) + (D - D_hi))) + (yc - y*c);
e - ex -> (e - ((1 - D_hi*r_hi) - D_lo*r_hi)) - r_hi*(D_lo - (Dx - D_hi));

# the product of r_hi + r_lo and u_hi + u_lo
r_lo - (1 + ex)*ex*r_hi -> (r_lo - (e + 1)*e*r_hi) + (e - ex)*(1 + e + ex)*r_hi;
T - (t_hi + T_lo) -> T*ex*ex*ex
  - ((t_hi - r_hi*u_hi)
     + (T_lo - (r_lo*u_hi + (u_lo*r_lo + r_hi*u_lo)))
     + (r_lo - (1 + ex)*ex*r_hi)*(u_hi + u_lo)
     + rho*(u_lo - (u - u_hi)))                                  { Dx <> 0 };
)",
                    {{"low", trace::text_of(low)},
                     {"high", trace::text_of(high)},
                     {"formats", formats},
                     {"kernel", quotient.print({e.t_hi, e.T_lo})},
                     {"reach", t_text},
                     {"split", split_error},
                     {"T_lo_bound", T_lo_bound},
                     {"T_error", T_error}}));

  trace::Listing listing;
  const Ext S_rest = first_operand(first_operand(walk.sum));
  const Ext rest = second_operand(first_operand(walk.sum));
  const Ext t_rest = first_operand(first_operand(rest));
  const Ext higher = second_operand(first_operand(rest));
  listing.given("t_hi", e.t_hi).given("T_lo", e.T_lo).name("t", e.t_value).name("S", e.S);
  listing.name("s", Ext{e.t_value} * e.t_value).name("higher", higher).name("t_rest", t_rest);
  listing.name("S_rest", S_rest).name("rest", rest).name("sum", walk.sum);
  const std::string kernel = listing.print({walk.sum});
  const Real angle_error =
      gentables::abs(gentables::atan(Real(c)) - Real(angle_hi) - Real(angle_lo));
  const Real error = polynomial_error(Real(), Real(largest_t)) * Real(largest_t);
  const Real least = gentables::atan(Real(low));
  write_script(
      folder, "sum_" + std::to_string(j),
      fill(R"(# atan(y), <<low>> <= y <= <<high>>: from the quotient T to the last sum.
<<formats>>t_hi = dbl(real_t_hi);
T_lo = dbl(real_T_lo);
<<kernel>>
# atan(y) is A + B + theta (T - t), with A = atan(c), B = atan(t), and theta between t and T a slope
# of the arc tangent: at least 1 - t^2.
exact = A + B + theta*(T - t);
H = <<H>>;

# The arc tangent is at least <<least>>: before the store, the error is below <<units>> units in
# the last place.
{ |T| <= <<reach>> /\ |T_lo| <= <<T_lo_bound>> /\ |T - (t_hi + T_lo)| <= <<T_error>> /\
  |A - (angle_hi + angle_lo)| <= <<angle_error>> /\
  |t + H - B| <= <<error>> /\
  theta in [<<slope>>, 1] ->
  |sum - exact| <= <<bound>> }

T_lo + t_hi -> T - (T - (t_hi + T_lo));
T_lo + (t_hi - t) -> -(t - (T_lo + t_hi));
t_rest - (T - t) -> (t_rest - (T_lo + (t_hi - t))) - (T - (t_hi + T_lo));
T - t -> (T - (t_hi + T_lo)) - (t - (T_lo + t_hi));
angle_hi - S -> -t - (S - (angle_hi + t));
t + (angle_hi - S) -> -(S - (angle_hi + t));
S_rest + rest + S - exact ->
    (S_rest - (t + (angle_hi - S)))
  + (rest - (t_rest + higher + angle_lo))
  + (t_rest - (T - t)) + (1 - theta)*(T - t)
  + (higher - H) + (t + H - B)
  - (A - (angle_hi + angle_lo));
)",
           {{"low", trace::text_of(low)},
            {"high", trace::text_of(high)},
            {"formats", formats},
            {"kernel", kernel},
            {"H", listing.exact(higher, e.t_value)},
            {"least", bounds::lower(least)},
            {"units", trace::text_of(row_error)},
            {"reach", t_text},
            {"T_lo_bound", T_lo_bound},
            {"T_error", T_error},
            {"angle_error", bounds::upper(angle_error)},
            {"error", bounds::upper(error)},
            {"slope", bounds::lower(Real(1) - Real(largest_t) * Real(largest_t) * Real(1.0001))},
            {"bound", bounds::lower(Real(row_error) * Real(0x1p-53) * least)}}));
}

// low <= y <= high, in a binade that begins at 2^exponent.
void write_origin(const std::string& folder, int exponent, double low, double high) {
  static int count = 0;
  const Walk walk(0, 0, 0);
  const auto& e = walk.element;
  trace::Listing listing;
  listing.given("y_hi", walk.u_hi).name("t", e.t_value).name("sum", walk.sum);
  listing.name("t_hi", e.t_hi).name("T_lo", e.T_lo);
  const Ext S_rest = first_operand(first_operand(walk.sum));
  const Ext rest = second_operand(first_operand(walk.sum)), higher = second_operand(rest);
  listing.name("S_rest", S_rest).name("rest", rest).name("t_rest", first_operand(rest));
  listing.name("s", Ext{e.t_value} * e.t_value).name("higher", higher);
  const Real least = gentables::atan(Real(low));
  const std::string kernel = listing.print({walk.sum});
  write_script(folder, "origin_" + std::to_string(count++),
               fill(R"(# atan(y), <<low>> <= y <= <<high>>: no breakpoint, T is y.
<<formats>>y = dbl(real_y);
<<kernel>>
# The exact result is B = atan(y).
H = <<H>>;

# The arc tangent is at least <<least>>: before the store, the error is below <<units>> units in
# the last place.
{ y in [<<low>>, <<high>>] /\ @FIX(y_hi, <<last_bit>>) /\ |y_hi -/ y| <= <<split>> /\
  |t + H - B| <= <<error>> ->
  t - y in [0, 0] /\ |sum - B| <= <<bound>> }

T_lo + t_hi -> y + ((T_lo - (y - y_hi)) + (t_hi - y_hi));
t - y -> (t - (T_lo + t_hi)) + ((T_lo - (y - y_hi)) + (t_hi - y_hi));
T_lo + (t_hi - t) -> -(t - (T_lo + t_hi));
t + (0 - t) -> 0;
S_rest + rest + t - B ->
    (S_rest - (t + (0 - t)))
  + (rest - (t_rest + higher)) + (t_rest - (T_lo + (t_hi - t)))
  - (t - (T_lo + t_hi)) + (higher - H) + (t + H - B);
)",
                    {{"low", trace::text_of(low)},
                     {"high", trace::text_of(high)},
                     {"formats", formats},
                     {"kernel", kernel},
                     {"H", listing.exact(higher, e.t_value)},
                     {"least", bounds::lower(least)},
                     {"units", trace::text_of(origin_error)},
                     {"last_bit", std::to_string(exponent - 25)},
                     {"split", split_error},
                     {"error", bounds::upper(polynomial_error(Real(low), Real(high)) * Real(high))},
                     {"bound", bounds::lower(Real(origin_error) * Real(0x1p-53) * least)}}));
}

}  // namespace

int main(int argc, char** argv) {
  const std::string folder = scripts_folder(argc, argv);
  write_splits(folder);
  for (int j = 0; j < 114; ++j) write_row(folder, j);
  for (int exponent = -53; exponent < -4; ++exponent)
    write_origin(folder, exponent, std::ldexp(1, exponent), std::ldexp(2, exponent));
  for (int i = 16; i < 32; ++i)  // where the polynomial's error grows fast
    write_origin(folder, -4, std::ldexp(i, -8), std::ldexp(i + 1, -8));
}
