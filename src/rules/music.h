// Background music: the table of tracks, the timer that starts, changes and restarts them, and
// switching the music on and off. The tracks are driven by command strings ("open ", "play ",
// "close " and the file name) and the program never asks whether a track has ended: it counts
// its own ticks.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

// The number of tracks that carry a tune; the rest of bgmTracks stays empty.
constexpr int kBgmTrackCount = 5;

// Fills the five tracks and asks for the menu track at the next tick. The last step of start-up.
void initBgmTable(GameState& g);
// Hands a command to the music player; its answer is not looked at.
void sendMci(GameState& g, const std::string& command);
// Opens and plays the track of bgmScene and names it in the window's caption.
void startBgmTrack(GameState& g);
// Twice a second: changes the track when the scene wants another, and plays it again from the
// start when its time has run out, though only while no ball is moving.
void timBGM_Timer(GameState& g);

// Sends "close " and the file of each of the five tracks, whether it is open or not.
void closeAllTracks(GameState& g);
// Music on: the menu track starts at the next tick, whatever screen is up.
void switchMusicOn(GameState& g);
// Music off: the tick stops and every track is closed; the caption keeps its last title.
void switchMusicOff(GameState& g);

} // namespace morvane
