// picPool(0), the table view: it shows the last frame with the two markers drawn above it, and
// hands the mouse to the handlers. It keeps no state of the game.
#pragma once

#include "game/game_state.h"

#include <QLabel>
#include <QWidget>

namespace morvane {

class PoolView : public QWidget {
    Q_OBJECT
  public:
    PoolView(const GameState& g, const QImage& view, QWidget* parent);
    QLabel* zephsMessage() const { return lblZephsMessage_; }
    // Shows the markers and the remark as the state has them; repaints only what moved.
    void syncFromState();

  signals:
    void mouseDown(int button, float x, float y);
    void mouseMove(int buttons, float x, float y);
    void mouseUp(int button, float x, float y);
    void clicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    const GameState& g_;
    const QImage& view_;
    QLabel* lblZephsMessage_;
    MarkerState paintedTarget_;
    MarkerState paintedQBall_;
};

} // namespace morvane
