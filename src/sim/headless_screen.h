// The screen of the headless tool: it draws nothing, writes down the messages it is shown and
// what the end-of-game forms showed, and answers every modal form at once as a person would.
#pragma once

#include "game/game_state.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace morvane::sim {

// What the person at the headless screen puts into the forms.
struct FormAnswers {
    std::optional<std::string> firstName; // typed into the set-up form's first name box
    std::optional<int16_t> matchLength;   // set on the set-up form's spin button
    std::string recordName = "You";       // typed into the name form for the solo table
};

// The statistics a form showed at the end of a game: frmRecord in solo play, frmVsResult after a
// game of a match (with the winner and the score).
struct ShownStatistics {
    int16_t shots = 0;
    int16_t turns = 0;
    int16_t fouls = 0;
    int32_t gameSeconds = 0;
    std::string balls;
    int16_t winner = -1; // index in players; -1 for a solo game
    std::array<int16_t, 2> gamesWon{};
    bool matchOver = false;
};

// The statistics of the game as it stands.
ShownStatistics statisticsOf(const GameState& g);

class HeadlessScreen : public ScreenPort {
  public:
    HeadlessScreen(GameState& g, FormAnswers answers);

    std::vector<std::string> messages;
    std::vector<ShownStatistics> statistics;

    void showMessage(const std::string& text) override;
    void showPlainMessage(const std::string& text) override;
    // The statistics are noted and the form closed with OK.
    void showRecordForm() override;
    void showVsResult() override;
    // The name given, then OK.
    void showInputBox() override;
    // The length given on the spin button, the first name given, the second as it stands, OK.
    void showChangeVsMode() override;

  private:
    GameState& g_;
    FormAnswers answers_;
};

} // namespace morvane::sim
