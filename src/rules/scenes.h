// Which music the screen wants: 0 menu, 1 records, 2 solo, 3 against zeph, 4 two players.
#pragma once

#include "game/game_state.h"

namespace morvane {

enum MusicScene : int16_t {
    kSceneNone = -1,
    kSceneMenu = 0,
    kSceneRecords = 1,
    kSceneSolo = 2,
    kSceneVersusCpu = 3,
    kSceneTwoPlayers = 4,
};

// Asks for another track; the music timer changes it at its next tick.
void setMusicScene(GameState& g, int16_t scene);

} // namespace morvane
