// Texts of the game: the language choice, trimming, and fixed widths counted in characters.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

// The Japanese text on a Japanese system, else the English.
std::string chooseText(const GameState& g, const std::string& japanese,
                       const std::string& english);
// Cuts at the first NUL, then trims blanks from both ends.
std::string trimAtNull(const std::string& text);
std::string trimBlanks(const std::string& text);
// Number of characters of a UTF-8 text (code points, not bytes).
int codePointCount(const std::string& text);
// The first `width` characters of the text, padded with blanks on the right to `width`.
std::string fitToWidth(const std::string& text, int width);
// The decimal text of a number with a place for its sign: " 14", "-1".
std::string signedNumberText(long value);

} // namespace morvane
