#include "rules/game_over.h"

#include "cpu/level.h"
#include "game/controls.h"
#include "game/shot_input.h"
#include "game/table_queries.h"
#include "game/text.h"
#include "game/timers.h"
#include "records/ranking.h"
#include "records/score_file.h"
#include "rules/match.h"
#include "rules/modes.h"
#include "rules/new_game.h"

namespace morvane {

namespace {

constexpr int16_t kMostTurnsForARecord = 10;

void showScoreScreen(GameState& g) {
    g.controls.scoreVisible = true;
}

void endSoloGame(GameState& g) {
    g.turnCount = int16_t(g.turnCount + 1);
    g.ports.screen->showRecordForm();
    if (g.turnCount <= kMostTurnsForARecord && doseLankInSolo(g)) {
        g.ports.screen->showInputBox();
        sortSoloRecord(g);
        showScoreScreen(g);
        saveSoloRecord(g);
    }
    g.ports.screen->drawInformation();
}

std::string winnerMessage(const std::string& winner) {
    return winner == "You" ? "You are Winner!" : winner + " is Winner!";
}

void endMatchAgainstZeph(GameState& g, int16_t winner) {
    creditZephMatch(g, winner == 0);
    saveZephLevel(g);
    if (doseLankInVSCpu(g)) {
        sortVsCPURecord(g);
        showScoreScreen(g);
        saveVsCpuRecord(g);
    }
}

void endVersusGame(GameState& g) {
    creditGameWin(g, g.turnCount);
    const int16_t w = g.players[0].hasBreak ? 0 : 1;
    g.ports.screen->showMessage(winnerMessage(trimBlanks(g.players[w].name)));
    g.ports.screen->showVsResult();
    g.turnCount = int16_t(g.turnCount + 1);
    const bool matchOver = g.players[w].gamesWon >= g.matchTarget;
    if (matchOver) {
        if (g.versusCpu)
            endMatchAgainstZeph(g, w);
        startNextMatch(g);
    } else if (g.players[1].hasBreak && g.versusCpu) {
        setTimerEnabled(g, kTimCom, true);
    }
}

} // namespace

void endGame(GameState& g) {
    g.ports.screen->drawTray();
    setTimerEnabled(g, kTimTimeCounter, false);
    switch (g.gameMode) {
    case kModeSolo:
        endSoloGame(g);
        break;
    case kModeVersus:
        endVersusGame(g);
        break;
    case kModeDemo:
        backToMenu(g);
        break;
    default:
        break;
    }
    newGame(g);
    g.ports.screen->drawInformation();
    setShotControls(g, true);
    g.controls.target.visible = true;
    centrePointDot(g);
}

} // namespace morvane
