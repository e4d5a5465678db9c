// Decimal numbers to binary and back, faster than <charconv> where words have 32 bits: writing by a
// factor of three or four, reading by a tenth. Both give what <charconv> gives, or leave the number
// to it.
#pragma once

namespace dakvm::tool {

// The nearest number to the decimal without sign between `text` and `end`. False: the text is
// something else, or an extended division or product does not tell on which side of the middle of
// two neighbours it lies.
template <class T>
bool parse_plain_decimal(const char* text, const char* end, T& value);

// Writes the shortest decimal that reads back as `value`, which is finite; the form without
// exponent, if it is not the longer one. Returns the end of what was written.
template <class T>
char* format_shortest_decimal(const T& value, char* out);

}  // namespace dakvm::tool
