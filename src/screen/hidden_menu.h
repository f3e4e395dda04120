// The menu tree of the window. No menu bar shows it: its entries are actions of the window, so
// F2 (Start) and F1 (Help contents) work on every screen, and a right click on the window (off the
// table and the ball picture, where the right button plays) opens the whole tree as a pop-up.
#pragma once

#include "game/game_state.h"
#include "startup/menu_captions.h"

#include <QAction>
#include <QMenu>
#include <QObject>

namespace morvane {

class HiddenMenu : public QObject {
    Q_OBJECT
  public:
    explicit HiddenMenu(QWidget* window);

    void setMenuCaptions(const MenuCaptions& captions);
    void syncFromState(const ControlsState& c);
    // The tree as one pop-up menu.
    QMenu* popup() { return &popup_; }

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

  private:
    QMenu popup_;
    QMenu* mnuGame_ = nullptr;
    QMenu* mnuOption_ = nullptr;
    QMenu* mnuHelp_ = nullptr;
};

} // namespace morvane
