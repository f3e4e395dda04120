// zeph's table of pocket points: the six pockets, and the images of the far pockets behind one
// cushion.
#pragma once

#include "game/game_state.h"

#include <cstdint>

namespace morvane {

// Entries 1 to 6 the pockets, 7 to 9 the images; entry 0 is unused.
using PocketTable = decltype(GameState::pocketTable);

// Entries 1 to 6: the pockets as ball-centre points on the cushion lines.
void initPocketTable(GameState& g);
// Entries 7 to 9: the pockets on the far side of the table mirrored behind the cushion, each 50
// units further out than an exact mirror. A side cushion has two images; entry 9 repeats entry 8.
void mirrorPockets(PocketTable& p, int16_t cushion);

} // namespace morvane
