#include "rules/match.h"

#include "game/racking.h"
#include "game/table_queries.h"
#include "game/text.h"
#include "rules/modes.h"
#include "rules/new_game.h"

namespace morvane {

namespace {

constexpr int16_t kDefaultMatchTarget = 3;

} // namespace

void nameSides(GameState& g, const char* first, const char* second) {
    g.players[0].name = first;
    g.players[1].name = second;
}

void setTwoPlayerDefaults(GameState& g) {
    nameSides(g, "Player1", "Player2");
    g.matchTarget = kDefaultMatchTarget;
}

void setCpuMatchDefaults(GameState& g) {
    nameSides(g, "You", "zeph");
    g.matchTarget = kDefaultMatchTarget;
}

void resetMatchScore(GameState& g) {
    g.players[0].hasBreak = true;
    g.players[1].hasBreak = false;
    g.players[0].gamesWon = 0;
    g.players[1].gamesWon = 0;
}

void startVersus(GameState& g) {
    g.gameMode = kModeVersus;
    g.ports.screen->showChangeVsMode();
    if (g.gameMode == kModeVersus) {
        g.controls.mnuStartEnabled = false;
        rackBalls(g);
        newGame(g);
        g.controls.menuVisible = false;
    } else {
        backToMenu(g);
    }
}

std::string shotCaptionFor(const std::string& name) {
    return name == "You" ? "Your Shot" : name + "'s Shot";
}

void showShooterOnButton(GameState& g, int16_t turn) {
    g.controls.shotCaption = shotCaptionFor(getShooterName(g, turn));
}

void creditGameWin(GameState& g, int16_t turn) {
    const int16_t i = getShooterIndex(g, turn);
    g.players[i].hasBreak = true;
    g.players[i].gamesWon = int16_t(g.players[i].gamesWon + 1);
    g.players[1 - i].hasBreak = false;
}

void startNextMatch(GameState& g) {
    resetMatchScore(g);
    g.controls.shotCaption = shotCaptionFor(trimBlanks(g.players[0].name));
    g.controls.shotFont.name = "Arial";
    g.controls.shotFont.bold = true;
}

void setShotButtonFont(GameState& g, float size) {
    g.controls.shotFont.size = size;
}

} // namespace morvane
