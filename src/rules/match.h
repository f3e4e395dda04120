// Matches: the sides and their names, who breaks, the caption of the shot button.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

// The shot button's size of type while a match or the demo names the shooter.
constexpr float kVersusShotFontSize = 12;

void nameSides(GameState& g, const char* first, const char* second);
void setTwoPlayerDefaults(GameState& g);
void setCpuMatchDefaults(GameState& g);
// Opens the set-up form; on OK racks the first game, on Cancel goes back to the menu.
void startVersus(GameState& g);
// "Your Shot" for the player named "You", else the name followed by "'s Shot".
std::string shotCaptionFor(const std::string& name);
void showShooterOnButton(GameState& g, int16_t turn);
// The winner of the game shoots first in the next one and has one more game won.
void creditGameWin(GameState& g, int16_t turn);
// players(0) breaks and neither side has won a game.
void resetMatchScore(GameState& g);
// A new match of the same length and names: players(0) breaks, nobody has a game.
void startNextMatch(GameState& g);
void setShotButtonFont(GameState& g, float size);

} // namespace morvane
