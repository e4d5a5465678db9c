// The version record and its getter.
#include "dakvmpx.h"
#include "x87/x87.hpp"

namespace {
constexpr LibraryVersion version = {
    4, 1, 7, 25, {'p', 'x'}, "libdakvmpx.so", "v4.1", "Jul 26 2004"};
}

DAKVM_EXPORT const LibraryVersion* dakvmGetLibVersion(void) { return &version; }
