// The five modes and the moves between them: the play buttons, the labels at the top of the
// game, the hidden menu's mode entries, and the way back to the menu.
#pragma once

#include "game/game_state.h"

namespace morvane {

void picSoloPlay_Click(GameState& g, int index);
void picVSPlay_Click(GameState& g, int index);
void picVSCPU_Click(GameState& g, int index);
void backToMenu(GameState& g);
void lblMenu_Click(GameState& g, int index);
void mnuChangeMode_Click(GameState& g);
void mnuCurrentCondition_Click(GameState& g);
void resetToSoloMode(GameState& g);
// Which of "Menu", "Start" and "Back" show for the present mode.
void changGameMenu(GameState& g);

} // namespace morvane
