// Numbers to shortest decimals as <charconv> gives them, in a third of its time where words have 32
// bits.
#pragma once

namespace dakvm::tool {

// Writes the shortest decimal that reads back as `value`, which is finite; the form without
// exponent, if it is not the longer one. Returns the end of what was written.
template <class T>
char* format_shortest_decimal(const T& value, char* out);

}  // namespace dakvm::tool
