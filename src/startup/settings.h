// The settings file MORVANE.INI and the three switches of the menu screen that it keeps from run
// to run: music, sound effects and the set of pictures.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

std::string settingsFilePath();

// Clears from the game's folder the temporary files that saves of the settings and the score file
// cut off by a crash or a kill left behind; a save still under way in another copy keeps its own.
void removeUnfinishedSaves();

// hiColor from HiColor (default -1): which set of pictures this run loads.
void readHiColorSetting(GameState& g);
// soundOn from SOUND (default 1) and bgmOn from BGM (default -1).
void readSoundAndMusicSettings(GameState& g);

// Each switch shows the picture of index 0 when on and of index 1 when off, and a click on the
// picture on show asks for the other state. Each handler writes its key at once.
void picSound_Click(GameState& g, int16_t index);
void mnuSound_Click(GameState& g);
void picBGM_Click(GameState& g, int16_t index);
// Changes only what the next start will load; says so while the main window shows.
void picColor_Click(GameState& g, int16_t index);

// At start-up, after the settings are read: the three handlers as if clicked, music, then sound,
// then pictures, so that every start leaves all three keys in the file; then the sound menu's
// check mark.
void bringSwitchesIntoLine(GameState& g);

} // namespace morvane
