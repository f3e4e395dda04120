// What the name form frmInputBox does to the game: its greeting, and the name it leaves for the
// solo table however it is closed.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

// A name for the solo table keeps this many characters.
constexpr int kRecordNameLength = 12;

// "Perfect Game !" for a game run out in one turn, else "Good Game !".
std::string nameFormGreeting(const GameState& g);
// Form_Unload: players(0).name := the text cut to 12 characters and padded with blanks. Nothing
// tests the text: an empty box gives a blank name.
void takeRecordName(GameState& g, const std::string& text);

} // namespace morvane
