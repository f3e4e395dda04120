// What the match set-up form frmChangeVsMode does to the game: its boxes as they open, the length
// of the match on its spin button, OK and Cancel. The window's dialog and the headless tool both
// call these.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

// A name box holds at most this many characters.
constexpr int kPlayerNameBoxLength = 12;

// The form as it opens: both names trimmed, the length caption with no blank ("1Wins Match"
// too, until the spin button moves), and the second box locked when it holds zeph.
struct MatchSetupView {
    std::string firstName;
    std::string secondName;
    bool secondNameEditable = true;
    int16_t matchLength = 0;
    std::string lengthCaption;
};

MatchSetupView loadMatchSetup(const GameState& g);

// The caption of the length after the spin button has moved: "1 Win Match", else N "Wins Match".
std::string matchLengthCaption(int16_t length);
// VScroll1_Change: the match is played to this many won games; returns the new caption.
std::string changeMatchLength(GameState& g, int16_t length);

// picOK_Click: versus mode with these names, players(0) breaks, nobody has a game yet, and the
// shot button names the first player.
void changeVsModeOk(GameState& g, const std::string& firstName, const std::string& secondName);
// picCancel_Click: no match against zeph, the solo controls back, and the menu to come.
void changeVsModeCancel(GameState& g);

} // namespace morvane
