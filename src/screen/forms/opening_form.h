// frmOpening: the splash with no border that stands in the middle of the screen at start-up. It
// goes on the sixth tick of its one-second timer, or at once at a click, and its going is what
// shows the main window. It is shown without waiting.
#pragma once

#include "game/game_state.h"

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace morvane {

constexpr int kOpeningWidth = 229;
constexpr int kOpeningHeight = 168;
constexpr int kOpeningTickMs = 1000;
// The counter stands at this on the tick that closes the splash.
constexpr int kOpeningLastCount = 5;
inline constexpr const char* kOpeningFile256 = "mvopn256.bmp";

class OpeningForm : public QWidget {
    Q_OBJECT
  public:
    // showMainWindow runs once, when the splash goes.
    OpeningForm(const GameState& g, std::function<void()> showMainWindow,
                QWidget* parent = nullptr);

    const QImage& picture() const { return picture_; }
    QTimer* Timer1() const { return Timer1_; }
    int tickCount() const { return tickCount_; }
    void Timer1_Timer();
    void Form_Click();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    void unloadAndShowMain();

    QImage picture_;
    QTimer* Timer1_;
    int tickCount_ = 0;
    std::function<void()> showMainWindow_;
};

} // namespace morvane
