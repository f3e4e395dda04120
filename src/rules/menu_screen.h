// The menu screen: the five word pictures that light under the mouse, the help mark, the
// double click that reads the solo records again; and the record screen's three ways in and out.
#pragma once

#include "game/game_state.h"

namespace morvane {

// The five hover pairs, as they stand in menuPicLit.
enum MenuPicture { kPicSoloPlay, kPicVsCpu, kPicVsPlay, kPicRecord, kPicExit, kMenuPictureCount };

// Every pair shows its index 0 and hides its index 1.
void setAllMenuPicOff(GameState& g);
// The mouse over one picture of a pair: over index 0 the pair lights, over index 1 nothing.
void menuPicture_MouseMove(GameState& g, MenuPicture picture, int index);
// Whether a picture of a pair shows now.
bool isMenuPictureShown(const GameState& g, MenuPicture picture, int index);
// The mouse over the menu's own background: everything unlit, and the menu is the mode.
void picMenu_MouseMove(GameState& g);
void lblHelp_MouseMove(GameState& g);
void picMenu_DblClick(GameState& g);
// The help mark, the credit lines and F1: the help page in the desktop's browser.
void lblHelp_Click(GameState& g);

// The record screen from the menu, with no row marked as new.
void picRecord_Click(GameState& g, int index);
// "Menu" on the record screen: back to the menu, leaving any game behind the screen.
void lblExitScore_Click(GameState& g);
// A click elsewhere on the record screen: it closes and what was behind it shows again.
void picScore_Click(GameState& g);
void mnuVS_Click(GameState& g);

} // namespace morvane
