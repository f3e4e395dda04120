#include "rules/match_setup_form.h"

#include "game/text.h"
#include "rules/match.h"
#include "rules/modes.h"

namespace morvane {

namespace {

constexpr const char* kCpuName = "zeph";
constexpr const char* kVersusModeEntry = "対戦→独り撞き(&S)";

} // namespace

MatchSetupView loadMatchSetup(const GameState& g) {
    MatchSetupView view;
    view.firstName = trimBlanks(g.players[0].name);
    view.secondName = trimBlanks(g.players[1].name);
    view.secondNameEditable = view.secondName != kCpuName;
    view.matchLength = g.matchTarget;
    view.lengthCaption = std::to_string(g.matchTarget) + "Wins Match";
    return view;
}

std::string matchLengthCaption(int16_t length) {
    return length == 1 ? "1 Win Match" : std::to_string(length) + "Wins Match";
}

std::string changeMatchLength(GameState& g, int16_t length) {
    g.matchTarget = length;
    return matchLengthCaption(length);
}

void changeVsModeOk(GameState& g, const std::string& firstName, const std::string& secondName) {
    g.gameMode = kModeVersus;
    g.players[0].name = firstName;
    g.players[1].name = secondName;
    resetMatchScore(g);
    g.controls.mnuChangeModeCaption = kVersusModeEntry;
    g.controls.shotFont = {"Arial", kVersusShotFontSize, true};
    g.controls.shotCaption = shotCaptionFor(trimBlanks(g.players[0].name));
}

void changeVsModeCancel(GameState& g) {
    g.versusCpu = false;
    resetToSoloMode(g);
    g.gameMode = kModeMenu;
}

} // namespace morvane
