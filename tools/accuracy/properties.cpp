#include "properties.hpp"

#include <algorithm>
#include <random>

#include "report.hpp"

namespace dakvm::accuracy {
namespace {

constexpr size_t block_length = 1 << 16;

template <class T>
class Checks {
 public:
  Checks(const Function& function, const Setting& setting)
      : f_(function), traits_(*function.traits), worker_(setting.library) {}

  std::vector<Property> run() {
    const auto words = random_words(1 << 18);
    if (f_.is_vector()) independence(words);
    if (traits_.parity != Parity::none) symmetry(words);
    if (std::isfinite(traits_.least) || std::isfinite(traits_.largest)) range(words);
    if (traits_.course != Course::other) order();
    return found_;
  }

 private:
  // Ordinary numbers and any words, half and half.
  Inputs<T> random_words(size_t count) {
    Inputs<T> inputs;
    for (auto& words : inputs.in)
      while (words.size() < count) {
        const double share = static_cast<double>(random_() >> 11) * 0x1p-53;
        words.push_back(word_of(static_cast<T>(f_.low + (f_.high - f_.low) * share)));
        words.push_back(static_cast<Word<T>>(random_()));
      }
    return inputs;
  }

  void violation(Property& p, const Inputs<T>& inputs, size_t i) {
    if (p.violations++ != 0) return;
    Witness w;
    for (int s = 0; s < f_.sources(); ++s) w.in[s] = inputs.in[s][i];
    p.first = argument_text(f_, w);
  }

  // One call over n elements gives what n calls give, wherever an element stands.
  void independence(const Inputs<T>& words) {
    Property p{"independent of position, neighbours and length", 0, 0, ""};
    Outputs<T> alone, together;
    worker_.evaluate(f_, {}, Calls::single, words, alone);
    const bool one_exponent = f_.form == Form::scalar_exponent;
    for (const size_t length : {2, 31, 32, 33, 64, 65, 100, 1000, 65536}) {
      for (size_t run = 0; run < 8; ++run) {
        const size_t first = random_() % (words.size() - length);
        // Backwards every other time: other neighbours.
        Inputs<T> part;
        std::vector<size_t> places;
        for (size_t k = 0; k < length; ++k)
          places.push_back(run % 2 == 0 ? first + k : first + length - 1 - k);
        for (int s = 0; s < f_.sources(); ++s)
          for (const size_t at : places)
            part.in[s].push_back(words.in[s][s == 1 && one_exponent ? places[0] : at]);
        if (one_exponent) worker_.evaluate(f_, {}, Calls::single, part, alone);
        worker_.evaluate(f_, {}, Calls::array, part, together);
        for (size_t k = 0; k < length; ++k, ++p.checked)
          for (int d = 0; d < f_.destinations(); ++d)
            if (together.out[d][k] != alone.out[d][one_exponent ? k : places[k]])
              violation(p, part, k);
      }
    }
    found_.push_back(p);
  }

  void symmetry(const Inputs<T>& words) {
    Property p{traits_.parity == Parity::odd ? "odd, bit for bit" : "even, bit for bit", 0, 0, ""};
    if (f_.destinations() == 2) p.name = "first result odd, second even, bit for bit";
    Inputs<T> mirrored = words;
    for (auto& word : mirrored.in[0]) word ^= sign_bit<T>;
    Outputs<T> here, there;
    worker_.evaluate(f_, {}, Calls::array, words, here);
    worker_.evaluate(f_, {}, Calls::array, mirrored, there);
    for (int d = 0; d < f_.destinations(); ++d) {
      const Parity parity = d == 0 ? traits_.parity : traits_.parity_second;
      const Word<T> flip = parity == Parity::odd ? sign_bit<T> : 0;
      for (size_t i = 0; i < words.size(); ++i, ++p.checked)
        if (!std::isnan(number_of<T>(here.out[d][i])) && (here.out[d][i] ^ flip) != there.out[d][i])
          violation(p, words, i);
    }
    found_.push_back(p);
  }

  void range(const Inputs<T>& words) {
    Property p{"in range", 0, 0, ""};
    const T least = static_cast<T>(traits_.least), largest = static_cast<T>(traits_.largest);
    Outputs<T> results;
    worker_.evaluate(f_, {}, Calls::array, words, results);
    for (int d = 0; d < f_.destinations(); ++d)
      for (size_t i = 0; i < words.size(); ++i, ++p.checked) {
        const T result = number_of<T>(results.out[d][i]);
        if (result < least || result > largest) violation(p, words, i);
      }
    found_.push_back(p);
  }

  // Runs of consecutive numbers: each result in order with the one before.
  void order() {
    Property p{traits_.course == Course::rising ? "never falls" : "never rises", 0, 0, ""};
    constexpr int64_t reach = 16;
    Inputs<T> inputs;
    std::vector<bool> starts;
    const auto add = [&](T centre, int64_t before, int64_t after) {
      for (int64_t step = -before; step <= after; ++step) {
        const T x = number_at<T>(place(centre) + step);
        if (!std::isfinite(x)) continue;
        inputs.in[0].push_back(word_of(x));
        starts.push_back(step == -before);
      }
      if (inputs.size() >= block_length) check_order(p, inputs, starts);
    };
    for (const T sign : {T{-1}, T{1}}) {
      for (int exponent = -40; exponent <= 40; ++exponent)
        for (int k = 0; k < 256; ++k)
          add(std::ldexp(sign * static_cast<T>(256 + k), exponent - 8), reach, reach);
      for (int k = 0; k < 1 << 15; ++k) add(sign * static_cast<T>(k) / 512, reach, reach);
    }
    std::uniform_int_distribution<int64_t> places(-place(std::numeric_limits<T>::max()),
                                                  place(std::numeric_limits<T>::max()));
    for (int run = 0; run < 5000; ++run) {
      add(number_at<T>(places(random_)), 0, 63);
      const double share = static_cast<double>(random_() >> 11) * 0x1p-53;
      add(static_cast<T>(f_.low + (f_.high - f_.low) * share), 0, 63);
    }
    check_order(p, inputs, starts);
    found_.push_back(p);
  }

  void check_order(Property& p, Inputs<T>& inputs, std::vector<bool>& starts) {
    if (inputs.size() == 0) return;
    Outputs<T> results;
    worker_.evaluate(f_, {}, Calls::array, inputs, results);
    for (size_t i = 1; i < inputs.size(); ++i) {
      const T x0 = number_of<T>(inputs.in[0][i - 1]), x1 = number_of<T>(inputs.in[0][i]);
      const T before = number_of<T>(results.out[0][i - 1]), now = number_of<T>(results.out[0][i]);
      // A pole may lie at zero.
      if (starts[i] || std::isnan(before) || std::isnan(now) || (x0 <= 0 && x1 >= 0)) continue;
      ++p.checked;
      if (traits_.course == Course::rising ? now < before : now > before) violation(p, inputs, i);
    }
    inputs.in[0].clear();
    starts.clear();
  }

  const Function& f_;
  const Traits& traits_;
  Worker worker_;
  std::mt19937_64 random_{1};
  std::vector<Property> found_;
};

}  // namespace

std::vector<Property> check_properties(const Function& function, const Setting& setting) {
  return function.is_single() ? Checks<float>(function, setting).run()
                              : Checks<double>(function, setting).run();
}

}  // namespace dakvm::accuracy
