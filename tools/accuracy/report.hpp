// A measurement for people and for programs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "measure.hpp"

namespace dakvm::accuracy {

// What was measured, and how.
struct Report {
  Measurement measurement;
  std::string what;  // "on [-708, 709.783]", "over all floats"
  std::string method;
  double low = 0, high = 0;
  uint64_t samples = 0, seed = 0;  // as asked for; 0: not sampled
  Modes modes;
  std::optional<double> bound;  // none: nothing is claimed

  bool holds() const;
};

enum class Format { text, csv, json };

std::string as_text(const Report& report);
std::string as_csv(const std::vector<Report>& reports);
std::string as_json(const std::vector<Report>& reports);

// "0x1.8p+3, 0x1p+1" for people; the words of a witness in hexadecimal.
std::string argument_text(const Function& function, const Witness& witness);
std::string argument_words(const Function& function, const Witness& witness);
std::string percent_text(const Tally& tally);

// "[-708, 709.782713]"
std::string interval_text(double low, double high);

char rounding_letter(Rounding rounding);
int precision_bits(Precision precision);

}  // namespace dakvm::accuracy
