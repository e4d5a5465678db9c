// Scripts for src/exponential/exp, double precision, high accuracy: proofs_exp FOLDER
//
//   reduction_near, reduction_far   N = 0 and the others: r is x - N ln2/64, nearly
//   row_<j>                         each row of the table: from r to the result, at M = 0
//
// Beside Gappa this program finds, each rounded up,
//   the distance of step_hi + step_lo from ln2/64 and of value (1 + tail) from 2^(j/64): by MPFR;
//   the largest error of the polynomial, from the power series of the difference (bounds.hpp).
// And it checks that r has the right sign where that matters.
#include "bounds.hpp"
#include "exponential/exp/exp_kernel.hpp"
#include "script.hpp"
#include "trace.hpp"

namespace {

using dakvm::x87::Ext;
using gentables::Real;
using trace::first_operand;
using trace::second_operand;

constexpr dakvm::exp::HighTable table = {
#include "exponential/exp/exp_ha_64f.inc"
};

// What the reduction scripts claim, and the rows take for granted.
constexpr double reach = 0x1.6312p-8;        // |r| and |x - N ln2/64|
constexpr double reduction_error = 0x1p-71;  // of r

// What the rows claim, in units of the last place of a double result.
constexpr double register_error = 0.003, result_error = 0.503;

// The table with names in place of numbers, all but the rows.
dakvm::exp::HighTable named_table() {
  dakvm::exp::HighTable t = table;
  t.inv_step = trace::constant("inv_step", t.inv_step);
  t.shifter = trace::constant("shifter", t.shifter);
  t.step_hi = trace::constant("step_hi", t.step_hi);
  t.step_lo = trace::constant("step_lo", t.step_lo);
  t.c2 = trace::constant("c2", t.c2);
  t.c3 = trace::constant("c3", t.c3);
  t.c4 = trace::constant("c4", t.c4);
  t.c5 = trace::constant("c5", t.c5);
  t.c6 = trace::constant("c6", t.c6);
  return t;
}

// A bound on |P(r) - (e^r - 1)| over the reduced range: of the difference of the two power series
// up to r^30, and 2^-200 for the rest, which is below 2 reach^31.
Real polynomial_error() {
  const double c[] = {0, 1, table.c2, table.c3, table.c4, table.c5, table.c6};
  std::vector<Real> difference;
  Real factorial(1);
  for (int k = 0; k <= 30; ++k) {
    if (k > 0) factorial = factorial * Real(k);
    const Real exact = k > 0 ? Real(1) / factorial : Real();
    difference.push_back((k <= 6 ? Real(c[k]) : Real()) - exact);
  }
  return bounds::of_series(difference, Real(-reach), Real(reach)) + Real(0x1p-200);
}

// For N = 64 M, where e^x lies close to a power of two, r has the sign of x - N ln2/64 and is at
// least 2^-71: no double is so close to N ln2/64 that the error of r could change that. (At M = 0,
// r is x.) Row 0 relies on it.
constexpr double least_r = 0x1p-71;

void check_signs() {
  for (int M = -1076; M <= 1025; ++M) {
    const Real multiple = Real(M) * gentables::ln2();
    if (M != 0)
      gentables::check(
          Real(least_r + reduction_error) < gentables::abs(multiple - Real(multiple.nearest())),
          "an argument is so close to a multiple of ln 2 that r may have no sign");
  }
}

// One element on its way, in row j.
struct Walk {
  explicit Walk(int j) : t(named_table()) {
    t.pow2[j][0] = trace::constant("value", t.pow2[j][0]);
    t.pow2[j][1] = trace::constant("tail", t.pow2[j][1]);
    const double x = trace::variable("x");
    element.start(t, &x);
    element.round_to_integer(t);
    element.row = static_cast<uint32_t>(j);
    element.scale = 1;  // a power of two: exact
    r = element.remainder(t);
    rebuilt = element.rebuild(t);
    result = dakvm::x87::round_to_double(rebuilt);
  }

  dakvm::exp::HighTable t;
  dakvm::exp::HighElement element;
  Ext r, rebuilt, result;
};

void write_reduction(const std::string& folder, const std::string& which,
                     const std::string& range) {
  const Walk walk(0);
  trace::Listing listing;
  listing.name("u", walk.element.u).name("s", walk.element.s);
  listing.name("n", Ext{walk.element.s} - walk.t.shifter).name("r", walk.r);
  const Real step = gentables::ln2() / Real(64), inverse = Real(1) / step;
  write_script(
      folder, "reduction_" + which,
      fill(R"(# e^x: the reduction, for <<range>>.
<<formats>>x = dbl(real_x);
<<kernel>>
# The step is ln2/64, the steps are 64/ln2, and R is what r should be.
steps = 1/step;
R = x - n*step;

{ |x| in <<range>> /\ step in [<<step_low>>, <<step_high>>] /\
  |step - (step_hi + step_lo)| <= <<step_error>> /\
  |steps - inv_step| <= <<inverse_error>> ->
  |r| <= <<reach>> /\ |R| <= <<reach>> /\ |r - R| <= <<reduction_error>> }

R -> step*((x*inv_step - n) + x*(steps - inv_step))           { step <> 0 };
x*inv_step - n -> (u - n) - (u - x*inv_step);
u - n -> (u + shifter - s) - (n - (s - shifter));
r - R -> (r - ((x - n*step_hi) - n*step_lo)) + n*(step - (step_hi + step_lo));
)",
           {{"formats", formats},
            {"range", range},
            {"kernel", listing.print({walk.r})},
            {"step_low", bounds::lower(step)},
            {"step_high", bounds::upper(step)},
            {"step_error",
             bounds::upper(gentables::abs(step - Real(table.step_hi) - Real(table.step_lo)))},
            {"inverse_error", bounds::upper(gentables::abs(inverse - Real(table.inv_step)))},
            {"reach", trace::text_of(reach)},
            {"reduction_error", trace::text_of(reduction_error)}}));
}

// Row j, for r in the range, where a unit in the last place of e^x 2^-M is `unit`.
void write_row(const std::string& folder, int j, const std::string& suffix,
               const std::string& range, double unit, const Real& polynomial) {
  const Walk walk(j);
  const Ext sum = first_operand(walk.result);
  const Ext rest = second_operand(sum);
  const Ext q = first_operand(first_operand(rest));
  const double value = table.pow2[j][0], tail = table.pow2[j][1];
  trace::Listing listing;
  const Ext higher = second_operand(q);
  listing.given("r", walk.r).name("q", q).name("rest", rest);
  listing.name("higher", higher).name("w", first_operand(higher));
  listing.name("sum", sum).name("result", walk.result);
  const Real table_error =
      gentables::abs(gentables::exp2(Real(j) / Real(64)) - Real(value) * (Real(1) + Real(tail)));
  // Between r and R the slope of e^t is at most e^reach.
  const Real error = polynomial + Real(reduction_error) * gentables::exp(Real(reach));
  write_script(folder, "row_" + std::to_string(j) + suffix,
               fill(R"(# e^x 2^-M for N = 64 M + <<j>>, r in <<range>>.
<<formats>>r = x87(real_r);
<<kernel>>
# The exact result is E (1 + W), with E = 2^(<<j>>/64), W = e^R - 1, and R what r should be.
exact = E*(1 + W);
P = <<P>>;

# In units of the last place of a double result, <<unit>>: below <<register_error>> before the store,
# below <<result_error>> after it.
{ r in <<range>> /\
  |E - value*(1 + tail)| <= <<table_error>> /\
  |P - W| <= <<error>> ->
  |sum - exact| <= <<register_bound>> /\ |result - exact| <= <<result_bound>> }

(value + rest) - exact ->
    (rest - (q + tail)*value)
  + value*((q - P) + (P - W))        # the polynomial and its roundings
  - value*tail*W                     # left out by the kernel
  - (E - value*(1 + tail))*(1 + W);
<<sign>>)",
                    {{"j", std::to_string(j)},
                     {"sign", j != 0 ? "" : R"(
# q has the sign of r.
r + higher -> r*(1 + higher/r)                        { r <> 0 };
higher/r -> w*(1 + (higher - w*r)/(w*r))              { r <> 0, w <> 0 };
)"},
                     {"formats", formats},
                     {"kernel", listing.print({walk.result})},
                     {"P", listing.exact(q, walk.r)},
                     {"range", range},
                     {"table_error", bounds::upper(table_error)},
                     {"error", bounds::upper(error)},
                     {"register_error", trace::text_of(register_error)},
                     {"result_error", trace::text_of(result_error)},
                     {"unit", unit == 0x1p-53 ? "2^-53" : "2^-52"},
                     {"register_bound", trace::text_of(register_error * unit)},
                     {"result_bound", trace::text_of(result_error * unit)}}));
}

}  // namespace

int main(int argc, char** argv) {
  const std::string folder = scripts_folder(argc, argv);
  check_signs();
  write_reduction(folder, "near", "[0x1p-52, 0x1p-8]");
  write_reduction(folder, "far", "[0x1p-8, 746]");
  const Real polynomial = polynomial_error();
  const std::string rho = trace::text_of(reach), least = trace::text_of(least_r);
  write_row(folder, 0, "_below_1", "[-" + rho + ", -" + least + "]", 0x1p-53, polynomial);
  write_row(folder, 0, "_above_1", "[" + least + ", " + rho + "]", 0x1p-52, polynomial);
  for (int j = 1; j < 64; ++j)
    write_row(folder, j, "", "[-" + rho + ", " + rho + "]", 0x1p-52, polynomial);
}
