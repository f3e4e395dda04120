// The score file MVSCORE.INI: the solo table, the table of matches against zeph, and zeph's level.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

// The score file's full path in the game's folder.
std::string scoreFilePath();

// Rows 1 to 10 of a table from the file, a missing key giving its default, key by key. Loading
// does no sort: the rows stand in the file's order.
void loadSoloRecord(GameState& g);
void loadVsCpuRecord(GameState& g);
// Rows 1 to 10 of a table to the file, all six keys of every row in the file's order, written
// at once with the rest of the file as it stood. Each save is counted in the game state; one that
// fails leaves the file as it was, says so in one line on stderr and gives false.
bool saveSoloRecord(GameState& g);
bool saveVsCpuRecord(GameState& g);

// zephLevel (kept within 1 to 11) and zephProgress from section ZEPH, and back.
void loadZephLevel(GameState& g);
bool saveZephLevel(GameState& g);

// How many of the nine places of a Balls text hold anything but "0".
int16_t getNumOfBallFromBalls(const std::string& strBalls);
// YouWon / (YouWon + CPUWon), or 0 when no game was played.
float winRate(int16_t youWon, int16_t cpuWon);

} // namespace morvane
