// The order of the two record tables and the entry of a new game or match into them.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

// Today's date from the game's clock as "yy/mm/dd".
std::string todayText(GameState& g);

// Working row 11 filled from the game just ended.
void fillSoloWorkingRow(GameState& g);
void fillVsCpuWorkingRow(GameState& g);

// Whether the game just ended beats row 10. Each asks on row 11, which it fills; a match lost to
// zeph never enters and leaves row 11 as it was.
bool doseLankInSolo(GameState& g);
bool doseLankInVSCpu(GameState& g);

// Fill row 11 anew, mark it as the new row and bubble it to its place. Rows 1 to 10 are then the
// table and row 11 the row that fell out; any disorder of rows 1 to 10 is put right too.
void sortSoloRecord(GameState& g);
void sortVsCPURecord(GameState& g);

// place := the row's number for rows 1 to 10 of both tables, so no row stands marked as new.
void unmarkNewRows(GameState& g);

} // namespace morvane
