// Background music: switching it on and off, and closing every track.
#pragma once

#include "table/game_state.h"

namespace morvane {

// The number of tracks that carry a tune; the rest of bgmTracks stays empty.
constexpr int kBgmTrackCount = 5;

// Sends "close " and the file of each of the five tracks, whether it is open or not.
void closeAllTracks(GameState& g);
// Music on: the menu track starts at the next tick, whatever screen is up.
void switchMusicOn(GameState& g);
// Music off: the tick stops and every track is closed; the caption keeps its last title.
void switchMusicOff(GameState& g);

} // namespace morvane
