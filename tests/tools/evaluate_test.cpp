// Function forms that need a stand-in to be tested whatever families the library has.
#include "evaluate.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "error.hpp"

namespace dakvm::tool {
namespace {

using registry::Entry;
using registry::Form;
using registry::Type;

int32_t negative_and_double(const double* src, double* dst1, double* dst2, int32_t len) {
  for (int32_t i = 0; i < len; ++i) {
    dst1[i] = -src[i];
    dst2[i] = 2 * src[i];
  }
  return DAKVM_STATUS_OK;
}

int32_t scaled(const float* src, float factor, float* dst, int32_t len) {
  for (int32_t i = 0; i < len; ++i) dst[i] = factor * src[i];
  return DAKVM_STATUS_OK;
}

const registry::Function two_outputs{{"Both", Form::two_outputs, "", "", 0, 1},
                                     Type::f64,
                                     "A53",
                                     "both",
                                     Entry<double>{&negative_and_double}};
const registry::Function with_exponent{{"Scale", Form::scalar_exponent, "", "", 0, 1},
                                       Type::f32,
                                       "A24",
                                       "scale",
                                       Entry<float>{&scaled}};

std::string result_of(const registry::Function& function, const std::string& input,
                      EvalOptions options) {
  std::string pattern = testing::TempDir() + "evaluate_XXXXXX";  // tests run side by side
  const std::filesystem::path folder = mkdtemp(pattern.data());
  options.input = folder / "evaluate_in";
  options.output = folder / "evaluate_out";
  options.force = true;
  std::ofstream(options.input, std::ios::binary) << input;
  evaluate(function, options);
  std::ostringstream result;
  result << std::ifstream(options.output, std::ios::binary).rdbuf();
  std::filesystem::remove_all(folder);
  return result.str();
}

TEST(Evaluate, TwoOutputs) {
  EXPECT_EQ(result_of(two_outputs, "1\n-2\n", {}), "-1 2\n2 -4\n");

  EvalOptions csv{.layout = Layout::csv};
  EXPECT_EQ(result_of(two_outputs, "x\n3\n", csv), "x,Both(x).1,Both(x).2\n3,-3,6\n");
  csv.csv.result_names = "n,d";
  EXPECT_EQ(result_of(two_outputs, "x\n3\n", csv), "x,n,d\n3,-3,6\n");

  const double in[] = {1, 4}, out[] = {-1, 2, -4, 8};
  const auto bytes = [](const auto& array) {
    return std::string(reinterpret_cast<const char*>(array), sizeof array);
  };
  EXPECT_EQ(result_of(two_outputs, bytes(in), {.layout = Layout::raw}), bytes(out));
}

TEST(Evaluate, Exponent) {
  EXPECT_EQ(result_of(with_exponent, "1\n2\n", {.exponent = "-0.5"}), "-0.5\n-1\n");
  for (const char* wrong : {"", "half"}) {
    try {
      result_of(with_exponent, "1\n", {.exponent = wrong});
      ADD_FAILURE() << "accepted '" << wrong << "'";
    } catch (const Error& e) {
      EXPECT_EQ(e.code(), Exit::usage) << e.what();
    }
  }
}

}  // namespace
}  // namespace dakvm::tool
