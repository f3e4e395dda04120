// The small controls of the game strip: a picture box that shows a surface, the hit point
// selector, and the hover labels at the top right. They forward their events and keep no state.
#pragma once

#include "game/game_state.h"

#include <QLabel>
#include <QWidget>
#include <functional>

namespace morvane {

// A picture box showing one surface; `beforePaint` may redraw the surface first, for a box that
// keeps no picture of its own.
class SurfaceView : public QWidget {
    Q_OBJECT
  public:
    SurfaceView(const QImage& surface, QWidget* parent, std::function<void()> beforePaint = {});

  signals:
    void mouseMoved();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    const QImage& surface_;
    std::function<void()> beforePaint_;
};

// picSetPoint: the cue ball picture, the ball's outline shpPointBall and the red dot shpPoint.
class SetPointView : public QWidget {
    Q_OBJECT
  public:
    SetPointView(const GameState& g, const QImage& picture, QWidget* parent);
    void syncFromState();

  signals:
    void mouseDown(float x, float y);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    const GameState& g_;
    const QImage& picture_;
    float paintedLeft_ = -1;
    float paintedTop_ = -1;
};

// A transparent label that takes mouse moves and clicks.
class HoverLabel : public QLabel {
    Q_OBJECT
  public:
    HoverLabel(const QString& text, QWidget* parent);

  signals:
    void mouseMoved();
    void clicked();

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};

} // namespace morvane
