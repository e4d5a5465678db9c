// What the tables share whose kernels take the root of src/inverse/table_root.hpp.
#pragma once

#include "gentables.hpp"

namespace gentables {

// (1 + e)^(-1/2) - 1 = e (G0 + ... + G6 e^6), the first binomial coefficients
constexpr double root_series[] = {-0.5,        0.375,        -0.3125,       0.2734375,
                                  -0.24609375, 0.2255859375, -0.20947265625};

// The rows are a file of their own, because several tables have them.
inline void print_root_rows() {
  std::printf(".root_seed = {\n#include \"inverse/table_root_rows.inc\"\n},\n");
}

inline void print_root_series() {
  for (int k = 0; k < 7; ++k) std::printf(".g%d = %a,\n", k, root_series[k]);
}

inline void print_root_constants() {
  scalar("root_splitter", 0x1p+22 + 1);
  scalar("root_shifter", 0x1p+44 + 1);
}

}  // namespace gentables
