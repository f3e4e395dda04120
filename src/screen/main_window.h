// MFMORVANE, the one window: 540 by 378 pixels of client area on black. The table view with the
// strip of shot controls under it, the information bar and the labels "Back", "Start" and "Menu"
// above it; over the game the record screen, and over everything the menu screen. Every control
// paints from the game state and hands its events to the handlers; after each handler the controls
// are brought into line with the state in one place.
#pragma once

#include "game/game_state.h"
#include "screen/hidden_menu.h"
#include "screen/menu_screen_view.h"
#include "screen/picture_controls.h"
#include "screen/pool_view.h"
#include "screen/qt_screen.h"
#include "screen/score_view.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QWidget>
#include <array>
#include <cstdint>
#include <optional>

namespace morvane {

constexpr int kClientWidth = 540;
constexpr int kClientHeight = 378;

class MainWindow : public QWidget {
    Q_OBJECT
  public:
    MainWindow(GameState& g, QtScreen& screen);

    // Captions, enabled flags, values, markers and label colours from the game state; only the
    // markers when nothing else has changed since the last time.
    void syncControlsFromState();

    PoolView* picPool() const { return picPool_; }
    SetPointView* picSetPoint() const { return picSetPoint_; }
    QLabel* lblPower() const { return lblPower_; }
    QScrollBar* HScroll1() const { return HScroll1_; }
    QPushButton* cmdShot() const { return cmdShot_; }
    QLabel* lblBIP() const { return lblBIP_; }
    SurfaceView* picPocketedBalls() const { return picPocketedBalls_; }
    SurfaceView* picInfomation() const { return picInfomation_; }
    HoverLabel* lblMenu(int index) const { return lblMenu_[index]; }
    MenuScreen* picMenu() const { return picMenu_; }
    ScoreScreen* picScore() const { return picScore_; }
    HiddenMenu* hiddenMenu() const { return menu_; }

  signals:
    // picExit, mnuExit or the window's close box: the program is to end.
    void exitRequested();

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void createControls(QtScreen& screen);
    void arrangeControls();
    void connectHandlers();
    void connectMenuScreen();
    void connectScoreScreen();
    void connectHiddenMenu();
    void menuPictureClicked(MenuPicture which, int index);
    // Runs a handler on the game state, then shows what it changed.
    template <typename Handler> void handle(Handler handler) {
        handler(g_);
        syncControlsFromState();
    }

    GameState& g_;
    PoolView* picPool_ = nullptr;
    SetPointView* picSetPoint_ = nullptr;
    QLabel* lblPower_ = nullptr;
    QScrollBar* HScroll1_ = nullptr;
    QPushButton* cmdShot_ = nullptr;
    QLabel* lblBIP_ = nullptr;
    SurfaceView* picPocketedBalls_ = nullptr;
    SurfaceView* picInfomation_ = nullptr;
    std::array<HoverLabel*, 3> lblMenu_{};
    MenuScreen* picMenu_ = nullptr;
    ScoreScreen* picScore_ = nullptr;
    HiddenMenu* menu_ = nullptr;
    std::array<int, 3> shownHover_{-1, -1, -1};  // the colour each label shows: 1 hover
    std::optional<ControlsState> shownControls_; // what the controls were last brought to
    bool syncing_ = false;
};

} // namespace morvane
