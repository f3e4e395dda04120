// picPool(0), the table view: it shows the last frame with the two markers drawn above it, and
// hands the mouse to the handlers. It keeps no state of the game.
#pragma once

#include "game/game_state.h"

#include <QLabel>
#include <QWidget>

#include <map>
#include <utility>

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
    void drawMarker(QPainter& painter, const MarkerState& marker, QRgb colour);

    const GameState& g_;
    const QImage& view_;
    QLabel* lblZephsMessage_;
    MarkerState paintedTarget_;
    MarkerState paintedQBall_;
    std::map<std::pair<QRgb, qreal>, QImage> outlines_; // by colour and pixel ratio
};

} // namespace morvane
