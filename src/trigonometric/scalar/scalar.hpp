// Sine, cosine, both, and tangent of one element in 53-bit precision and rounding to nearest,
// whatever the caller's control word: the scalar entries, and the way of the single-precision
// vectors with arguments that their own chains do not take.
//
// An infinity gives the default NaN and Status::domain; notification is the caller's.
#pragma once

#include "frame/status.hpp"

namespace dakvm::scalar {

Status _dSin(const double* x, double* sine);
Status _dSin(const float* x, float* sine);
Status _dCos(const double* x, double* cosine);
Status _dCos(const float* x, float* cosine);
Status _dSinCos(const double* x, double* sine, double* cosine);
Status _dSinCos(const float* x, float* sine, float* cosine);
Status _dTan(const double* x, double* tangent);
Status _dTan(const float* x, float* tangent);

}  // namespace dakvm::scalar
