// The processor stub and the two functions that read a value at its declared precision.
#include "dakvmpx.h"
#include "x87/x87.hpp"

DAKVM_EXPORT int32_t dll_cpu_version(void) { return 0; }

DAKVM_EXPORT double STRICT_DOUBLE(double x) { return dakvm::x87::opaque(x); }
DAKVM_EXPORT float STRICT_FLOAT(float x) { return dakvm::x87::opaque(x); }
