// The hover colours of the labels "Menu", "Start" and "Back": nothing tells a label that the mouse
// has left it, so the form, the table view and the information bar put them back to rest.
#pragma once

#include "game/game_state.h"

namespace morvane {

void lblMenu_MouseMove(GameState& g, int index);
void Form_MouseMove(GameState& g);
void picInfomation_MouseMove(GameState& g);

} // namespace morvane
