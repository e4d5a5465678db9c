// Absolute values and the NaN test, on bit patterns: no flag is raised, whatever the argument.
//
// The public header is not included: it declares the results double and float, which on i386 is the
// same register as the long double returned here.
#include "frame/_gax_abs_scalar.hpp"

#include "x87/bits.hpp"

using dakvm::x87::as_returned;
using dakvm::x87::Bits;
using dakvm::x87::Returned;

DAKVM_EXPORT Returned<float> gax_sabs_scalar(float x) {
  return as_returned(Bits<float>{Bits<float>::read(&x).magnitude()});
}

DAKVM_EXPORT Returned<double> gax_dabs_scalar(double x) {
  const auto bits = Bits<double>::read(&x);
  return as_returned(Bits<double>{bits.low, bits.magnitude()});
}

int32_t _gax_disnan_scalar(double x) { return Bits<double>::read(&x).is_nan() ? 1 : 0; }
