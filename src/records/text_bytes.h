// Texts from outside the game (a file edited by hand, a name on the command line) made into the
// UTF-8 that the game holds all its texts in, whatever their bytes.
#pragma once

#include <string>
#include <string_view>

namespace morvane {

// True when the bytes are well-formed UTF-8.
bool isUtf8(std::string_view bytes);

// UTF-8 as it is. Other bytes are read as Shift-JIS (code page 932, the code page of score files
// written on Japanese systems) when the whole text decodes so; else each byte that isn't part of
// a well-formed UTF-8 sequence becomes U+FFFD.
std::string utf8FromAnyBytes(std::string_view bytes);

} // namespace morvane
