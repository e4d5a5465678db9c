// Bit-level helpers of the scalar kernels.
#pragma once

#include <cstdint>

extern "C" int32_t _gax_disnan_scalar(double x);  // 1 for a NaN, 0 for everything else
