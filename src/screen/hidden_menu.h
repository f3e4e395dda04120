// The menu tree of the window. No menu bar shows it: its entries are actions of the window, so
// F2 (Start) and F1 (Help contents) work on every screen, and a right click on the window (off the
// table and the ball picture, where the right button plays) opens the whole tree as a pop-up.
// A right click outside the open pop-up closes it and opens it afresh where that click fell.
#pragma once

#include "game/game_state.h"
#include "startup/menu_captions.h"

#include <QAction>
#include <QMenu>
#include <QObject>
#include <array>

namespace morvane {

class HiddenMenu : public QObject {
    Q_OBJECT
  public:
    explicit HiddenMenu(QWidget* window);

    void setMenuCaptions(const MenuCaptions& captions);
    void syncFromState(const ControlsState& c);
    // The tree as one pop-up menu.
    QMenu* popup() { return &popup_; }
    // Opens the pop-up at a point of the screen without waiting for it to close.
    void popUpAt(QPoint globalPos);

    QAction* mnuStart = nullptr;
    QAction* mnuRetry = nullptr;
    QAction* mnuRecord = nullptr;
    QAction* mnuVS = nullptr;
    QAction* mnuExit = nullptr;
    QAction* mnuChangeMode = nullptr;
    QAction* mnuCurrentCondition = nullptr;
    QAction* mnuSound = nullptr;
    QAction* mnuHelpCont = nullptr;
    QAction* mnuKey = nullptr;
    QAction* mnuAbout = nullptr;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // The pop-up and its three submenus.
    std::array<QMenu*, 4> tree();
    bool anyMenuContains(QPoint globalPos);
    static bool isRightDoubleClick(const QEvent* event);
    // The right click that closed the pop-up, as the window's own right click there.
    void rightClickAgainAt(QPoint globalPos);

    QWidget* window_;
    QMenu popup_;
    QMenu* mnuGame_ = nullptr;
    QMenu* mnuOption_ = nullptr;
    QMenu* mnuHelp_ = nullptr;
};

} // namespace morvane
