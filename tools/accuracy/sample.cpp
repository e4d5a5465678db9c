#include "sample.hpp"

#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

#include "near_half_pi.hpp"

namespace dakvm::accuracy {
namespace {

struct HardInput {
  std::string_view family, type;
  double x, y = 0;
};
constexpr HardInput hard[] = {
#include "tests/accuracy/hard.inc"
};

struct WorstInput {
  std::string_view function;
  double x, y, ulp;
};
constexpr WorstInput worst[] = {
#include "tests/accuracy/worst.inc"
};

// A seed of its own for every 2^20 samples.
constexpr uint64_t chunk = 1 << 20, next_seed = 0x9e3779b97f4a7c15;

template <class T>
std::vector<Word<T>> sample(double from, double to, uint64_t samples, uint64_t seed, bool ends) {
  const T low = static_cast<T>(from), high = static_cast<T>(to);
  std::uniform_int_distribution<int64_t> places(place(low), place(high));
  std::uniform_real_distribution<T> values(low / 2, high / 2);
  std::vector<Word<T>> words;
  for (uint64_t done = 0; done < samples; done += chunk, seed += next_seed) {
    std::mt19937_64 random(seed);
    for (uint64_t i = 0; i < std::min(samples - done, chunk) / 2; ++i) {
      words.push_back(word_of(number_at<T>(places(random))));
      words.push_back(word_of(2 * values(random)));
    }
  }
  for (const T end : {low, high})
    for (int64_t step = -2000; ends && step <= 2000; ++step) {
      const int64_t at = place(end) + step;
      if (at >= place(low) && at <= place(high)) words.push_back(word_of(number_at<T>(at)));
    }
  return words;
}

template <class T>
T parse_as(const std::string& text) {
  parse_number(text);  // for its complaint
  if constexpr (sizeof(T) == 4)
    return std::strtof(text.c_str(), nullptr);
  else
    return std::strtod(text.c_str(), nullptr);
}

template <class T>
void append(Inputs<T>& inputs, double x, double y) {
  inputs.in[0].push_back(word_of(static_cast<T>(x)));
  inputs.in[1].push_back(word_of(static_cast<T>(y)));
}

}  // namespace

template <class T>
Inputs<T> sample(const Function& function, double low, double high, uint64_t samples, uint64_t seed,
                 bool ends) {
  Inputs<T> inputs;
  for (int s = 0; s < function.sources(); ++s)
    inputs.in[s] = sample<T>(low, high, samples, 2 * seed - 1 + static_cast<uint64_t>(s), ends);
  if (function.traits->periodic && ends)
    for (const T x : near_half_pi::numbers<T>())
      for (const T at : {x, -x})
        if (at >= static_cast<T>(low) && at <= static_cast<T>(high))
          inputs.in[0].push_back(word_of(at));
  return inputs;
}

template <class T>
Inputs<T> read_inputs(const Function& function, const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error(path + " cannot be read");
  Inputs<T> inputs;
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    ++number;
    std::istringstream words(line);
    std::vector<std::string> cells;
    for (std::string cell; words >> cell;) cells.push_back(cell);
    if (cells.empty() || cells[0][0] == '#') continue;
    if (cells.size() != static_cast<size_t>(function.sources()))
      throw std::runtime_error(path + ":" + std::to_string(number) + ": " + function.name +
                               " takes " + std::to_string(function.sources()) + " numbers a line");
    for (size_t s = 0; s < cells.size(); ++s)
      inputs.in[s].push_back(word_of(parse_as<T>(cells[s])));
  }
  if (inputs.size() == 0) throw std::runtime_error(path + " has no numbers");
  return inputs;
}

template <class T>
Inputs<T> hard_inputs(const Function& function) {
  Inputs<T> inputs;
  const std::string family = function.family == "Powx" ? "Pow" : function.family;
  const char* const type = sizeof(T) == 8 ? "64f" : "32f";
  for (const HardInput& row : hard)
    if (row.family == family && row.type == type) append(inputs, row.x, row.y);
  const std::string names = "daks" + family + "_" + type + "_";
  for (const WorstInput& row : worst)
    if (row.function.starts_with(names)) append(inputs, row.x, row.y);
  return inputs;
}

template Inputs<double> sample(const Function&, double, double, uint64_t, uint64_t, bool);
template Inputs<float> sample(const Function&, double, double, uint64_t, uint64_t, bool);
template Inputs<double> read_inputs(const Function&, const std::string&);
template Inputs<float> read_inputs(const Function&, const std::string&);
template Inputs<double> hard_inputs(const Function&);
template Inputs<float> hard_inputs(const Function&);

}  // namespace dakvm::accuracy
