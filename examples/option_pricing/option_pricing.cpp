// European options by the Black-Scholes formula, a million of them:
//
//   d1 = (ln(S/K) + (r + sigma^2/2) T) / (sigma sqrt(T)),  d2 = d1 - sigma sqrt(T)
//   call = S N(d1) - K e^(-r T) N(d2),  put = K e^(-r T) N(-d2) - S N(-d1),  N(d) = erfc(-d/sqrt
//   2)/2
//
// The book is priced in blocks that stay in the cache; each line of the formula is one call of the
// library or one loop. Checks itself: put-call parity for every option, and known prices.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <dakvmpx.hpp>
#include <random>
#include <vector>

namespace {

constexpr double rate = 0.05, volatility = 0.2;
constexpr double sqrt_half = 0.70710678118654752;

struct Book {
  explicit Book(size_t n) : spot(n), strike(n), years(n), call(n), put(n), discounted(n) {}
  std::vector<double> spot, strike, years;    // given
  std::vector<double> call, put, discounted;  // priced; the discounted strike is K e^(-r T)
};

// Any status is an error here: all arguments are finite and positive.
void require(dakvmpx::Status status) {
  if (status != dakvmpx::Status::ok) {
    std::fprintf(stderr, "status %d\n", static_cast<int>(status));
    std::exit(1);
  }
}

// N(d) for the negated, scaled arguments -d/sqrt 2, in place.
void normal_distribution(std::span<double> d) {
  require(dakvmpx::Erfc(std::span<const double>(d), d));
  for (double& x : d) x *= 0.5;
}

void price_block(Book& book, size_t first, size_t n) {
  constexpr size_t longest = 512;
  double a[longest], b[longest], c[longest], d[longest];
  const auto in = [n](double* x) { return std::span<const double>(x, n); };
  const auto out = [n](double* x) { return std::span<double>(x, n); };
  const double *S = &book.spot[first], *K = &book.strike[first], *T = &book.years[first];
  double* discounted = &book.discounted[first];

  require(dakvmpx::Div(std::span(S, n), std::span(K, n), out(a)));
  require(dakvmpx::Ln(in(a), out(a)));              // a = ln(S/K)
  require(dakvmpx::Sqrt(std::span(T, n), out(b)));  // b = sqrt(T)
  for (size_t i = 0; i < n; ++i) c[i] = -rate * T[i];
  require(dakvmpx::Exp(in(c), std::span(discounted, n)));
  for (size_t i = 0; i < n; ++i) {
    const double width = volatility * b[i];
    const double d1 = (a[i] + (rate + 0.5 * volatility * volatility) * T[i]) / width;
    discounted[i] *= K[i];
    a[i] = -sqrt_half * d1;
    b[i] = -sqrt_half * (d1 - width);
    c[i] = -a[i];
    d[i] = -b[i];
  }
  for (double* x : {a, b, c, d}) normal_distribution(out(x));  // N of d1, d2, -d1, -d2
  for (size_t i = 0; i < n; ++i) {
    book.call[first + i] = S[i] * a[i] - discounted[i] * b[i];
    book.put[first + i] = discounted[i] * d[i] - S[i] * c[i];
  }
}

void price(Book& book) {
  constexpr size_t block = 512;
  for (size_t i = 0; i < book.spot.size(); i += block)
    price_block(book, i, std::min(block, book.spot.size() - i));
}

// Call less put is S - K e^(-r T), whatever the volatility. The four values of N are computed
// apart.
double worst_parity(const Book& book) {
  double worst = 0;
  for (size_t i = 0; i < book.spot.size(); ++i) {
    const double expected = book.spot[i] - book.discounted[i];
    worst = std::max(worst, std::fabs(book.call[i] - book.put[i] - expected) / book.spot[i]);
  }
  return worst;
}

bool known_prices() {
  struct Known {
    double spot, strike, years, call, put;
  };
  // r = 5 %, sigma = 20 %; by the same formula with math.erfc of Python.
  constexpr Known known[] = {
      {100, 100, 1, 10.4505835721856, 5.57352602225697},
      {49, 50, 0.3846, 2.40046108696567, 2.44814693395039},
  };
  Book book(std::size(known));
  for (size_t i = 0; i < std::size(known); ++i) {
    book.spot[i] = known[i].spot;
    book.strike[i] = known[i].strike;
    book.years[i] = known[i].years;
  }
  price(book);
  bool right = true;
  for (size_t i = 0; i < std::size(known); ++i) {
    std::printf("S = %g, K = %g, T = %g: call %.12f, put %.12f\n", known[i].spot, known[i].strike,
                known[i].years, book.call[i], book.put[i]);
    right = right && std::fabs(book.call[i] - known[i].call) < 1e-12 &&
            std::fabs(book.put[i] - known[i].put) < 1e-12;
  }
  return right;
}

}  // namespace

int main() {
  if (!known_prices()) {
    std::fputs("a known price is wrong\n", stderr);
    return 1;
  }

  Book book(1'000'000);
  std::mt19937 random(1973);
  const auto between = [&](double low, double high) {
    return low + (high - low) * 0x1p-32 * random();
  };
  for (size_t i = 0; i < book.spot.size(); ++i) {
    book.spot[i] = between(50, 150);
    book.strike[i] = book.spot[i] * between(0.7, 1.4);
    book.years[i] = between(0.02, 5);
  }
  const auto start = std::chrono::steady_clock::now();
  price(book);
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
  const double worst = worst_parity(book);
  std::printf("%zu options in %.0f ms; put-call parity holds to %.1e of the spot\n",
              book.spot.size(), time.count(), worst);
  return worst < 2e-15 ? 0 : 1;
}
