// The switches of the command line, found anywhere in it and in any case.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

// debugStart if "/debug" occurs anywhere in the text, noMidi if "/nomidi" does. Nothing else is
// parsed: the text is searched as it stands, lowered.
void readCommandLine(GameState& g, const std::string& commandLine);

// The arguments after the program's name, joined by blanks as one command line.
std::string joinArguments(int argc, const char* const argv[]);

} // namespace morvane
