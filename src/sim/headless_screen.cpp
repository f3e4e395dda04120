#include "sim/headless_screen.h"

#include "game/table_queries.h"
#include "game/text.h"
#include "rules/match_setup_form.h"
#include "rules/name_form.h"

#include <utility>

namespace morvane::sim {

HeadlessScreen::HeadlessScreen(GameState& g, FormAnswers answers)
    : g_(g), answers_(std::move(answers)) {}

void HeadlessScreen::showMessage(const std::string& text) {
    messages.push_back(text);
}

void HeadlessScreen::showPlainMessage(const std::string& text) {
    messages.push_back(text);
}

ShownStatistics statisticsOf(const GameState& g) {
    ShownStatistics shown;
    shown.shots = g.shotCount;
    shown.turns = g.turnCount;
    shown.fouls = g.foulCount;
    shown.gameSeconds = g.gameSeconds;
    shown.balls = getPocketedString(g);
    shown.gamesWon = {g.players[0].gamesWon, g.players[1].gamesWon};
    return shown;
}

void HeadlessScreen::showRecordForm() {
    statistics.push_back(statisticsOf(g_));
}

void HeadlessScreen::showVsResult() {
    ShownStatistics shown = statisticsOf(g_);
    shown.winner = g_.players[0].hasBreak ? 0 : 1;
    shown.matchOver = shown.gamesWon[shown.winner] >= g_.matchTarget;
    statistics.push_back(shown);
}

void HeadlessScreen::showInputBox() {
    takeRecordName(g_, answers_.recordName);
}

void HeadlessScreen::showChangeVsMode() {
    const MatchSetupView view = loadMatchSetup(g_);
    if (answers_.matchLength)
        changeMatchLength(g_, *answers_.matchLength);
    // The box takes no more than its length of characters.
    const std::string first = answers_.firstName ? *answers_.firstName : view.firstName;
    changeVsModeOk(g_, trimBlanks(fitToWidth(first, kPlayerNameBoxLength)), view.secondName);
}

} // namespace morvane::sim
