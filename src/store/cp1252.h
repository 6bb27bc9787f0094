#pragma once
// The settings files are single-byte Windows-1252 text. The core keeps the bytes as they are; these
// conversions are for the edges only (file names, the terminal, the widgets).

#include <string>
#include <string_view>

namespace qb::store {

// Every byte maps to one code point and back, the five bytes that Windows-1252 leaves undefined
// included (they map to the C1 controls of the same value), so a round trip never loses a byte.
char32_t Cp1252ToCodePoint(unsigned char byte);

// The byte of a code point, or -1 where Windows-1252 has none.
int CodePointToCp1252(char32_t codePoint);

std::string Cp1252ToUtf8(std::string_view bytes);

// Characters that Windows-1252 cannot hold become '?', as the scripts' home system does it.
// Malformed UTF-8 sequences become '?' too.
std::string Utf8ToCp1252(std::string_view utf8);

}  // namespace qb::store
