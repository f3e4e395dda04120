// frmVsResult, "Morvane": the score of a match, after each game and on request. The side that has
// reached the length of the match stands in magenta; any key closes the form as OK does.
#pragma once

#include "game/game_state.h"
#include "screen/forms/form_parts.h"

#include <array>
#include <string>

namespace morvane {

// The line at the top: "A defeated B" once the match is decided, else who took this game, or
// "Now, Break Time!" in the middle of one.
struct ResultHeadline {
    std::string text;
    bool decided = false;
};
ResultHeadline resultHeadline(const GameState& g);

class ResultForm : public QDialog {
    Q_OBJECT
  public:
    ResultForm(const GameState& g, const QImage& okPicture, QWidget* mainWindow);

    QLabel* lblWinner() const { return lblWinner_; }
    QLabel* lblPlayerName(int index) const { return lblPlayerName_[index]; }
    QLabel* lblWins(int index) const { return lblWins_[index]; }
    PictureButton* picOK() const { return picOK_; }
    void picOK_Click();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QLabel* lblWinner_;
    std::array<QLabel*, 2> lblPlayerName_{};
    std::array<QLabel*, 2> lblWins_{};
    PictureButton* picOK_;
};

} // namespace morvane
