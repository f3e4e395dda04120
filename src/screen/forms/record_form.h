// frmRecord, "Your Record": the statistics of a solo game, drawn on the form as the picture boxes
// print, with the pocketed balls in a row under them. In the middle of a game it is a running
// account that says "Now, Break Time!".
#pragma once

#include "game/game_state.h"
#include "screen/forms/form_parts.h"

#include <array>
#include <string>

namespace morvane {

struct RecordLine {
    std::string word;
    std::string value;
};

// "GAME FINISHED!!" once the nine ball is down, else "Now, Break Time!".
std::string recordTitle(const GameState& g);
// Shots, Turns and Fouls as "00000", and Time as minutes and seconds "00:00".
std::array<RecordLine, 4> recordLines(const GameState& g);

class RecordForm : public QDialog {
    Q_OBJECT
  public:
    // picBalls: the ball sprites, the balls at rest in row 0 with the mask at column 200.
    RecordForm(const GameState& g, const QImage& picBalls, const QImage& okPicture,
               QWidget* parent = nullptr);

    const QImage& surface() const { return surface_; }
    // Where the first ball of the row stands.
    QPoint ballsOrigin() const { return ballsOrigin_; }
    PictureButton* picOK() const { return picOK_; }
    void picOK_Click();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void drawRecordForm();
    void drawRecordBalls(const std::string& balls, QPoint origin);

    const GameState& g_;
    QImage picBalls_;
    QImage surface_;
    QPoint ballsOrigin_;
    PictureButton* picOK_;
};

} // namespace morvane
