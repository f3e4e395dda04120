// picScore, the record screen: both tables drawn afresh at each paint, and "Menu" at the top
// right. A click on the label leaves for the menu; a click anywhere else closes the screen.
#pragma once

#include "game/game_state.h"
#include "screen/picture_controls.h"

#include <QImage>
#include <QWidget>

namespace morvane {

// Draws both tables on a black picture, the ball marks taken from the sheet.
void showScore(const GameState& g, const QImage& sheet, QPainter& painter);

class ScoreScreen : public QWidget {
    Q_OBJECT
  public:
    ScoreScreen(const GameState& g, const QImage& sheet, QWidget* parent);
    void syncFromState();
    HoverLabel* lblExitScore() const { return lblExitScore_; }

  signals:
    void clicked();
    void exitClicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    const GameState& g_;
    const QImage& sheet_;
    HoverLabel* lblExitScore_ = nullptr;
};

} // namespace morvane
