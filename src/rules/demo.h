// The demo: after 30 idle seconds on the menu zeph plays both sides until a click or the game's
// end.
#pragma once

#include "game/game_state.h"

namespace morvane {

void timDemo_Timer(GameState& g);
void startDemo(GameState& g);
// The end of a demo shot that didn't end the game: after 30 shots in a row with no ball potted the
// game is racked anew, so that the show never repeats one foul for ever.
void moveDemoOn(GameState& g, bool ballPotted);
// A click on the table: in the demo it ends the demo, elsewhere it does nothing.
void picPool_Click(GameState& g, int index);

} // namespace morvane
