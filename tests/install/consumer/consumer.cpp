// A C++20 program of somebody else.
#include <dakvmpx.hpp>
#include <vector>

int main() {
  const std::vector<double> x = {0.0, 1.0};
  std::vector<double> y(2);
  const auto status = dakvmpx::Exp(std::span(x), std::span(y));
  return status == dakvmpx::Status::ok && y[0] == 1.0 && y[1] == 0x1.5bf0a8b145769p+1 ? 0 : 1;
}
