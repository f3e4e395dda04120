// picMenu, the menu screen over everything: the menu picture, the five word pictures with their
// lit twins, the three switches, the help mark and the two credit lines. It forwards every
// mouse event as a call and shows what the game state says.
#pragma once

#include "game/game_state.h"
#include "rules/menu_screen.h"
#include "screen/picture_controls.h"

#include <QImage>
#include <QWidget>
#include <array>

namespace morvane {

// A picture that takes mouse moves, left clicks and double clicks.
class HoverPicture : public QWidget {
    Q_OBJECT
  public:
    HoverPicture(const QImage& picture, QWidget* parent);
    void setPicture(const QImage& picture);

  signals:
    void mouseMoved();
    void clicked();
    void doubleClicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    QImage picture_;
    bool releaseEndsDoubleClick_ = false;
};

// The three switches, each a pair: index 0 while on, index 1 while off.
enum MenuSwitch { kSwitchBgm, kSwitchSound, kSwitchColor, kSwitchCount };

class MenuScreen : public HoverPicture {
    Q_OBJECT
  public:
    explicit MenuScreen(QWidget* parent);

    void syncFromState(const GameState& g);

    HoverPicture* picture(MenuPicture which, int index) const { return pictures_[which][index]; }
    HoverPicture* switchPicture(MenuSwitch which, int index) const {
        return switches_[which][index];
    }
    HoverLabel* lblHelp() const { return lblHelp_; }
    HoverLabel* lblCopyright(int index) const { return lblCopyright_[index]; }

  signals:
    void pictureMouseMoved(MenuPicture which, int index);
    void pictureClicked(MenuPicture which, int index);
    void switchClicked(MenuSwitch which, int index);

  private:
    void createWordPictures();
    void createSwitches();
    void createLabels();

    std::array<std::array<HoverPicture*, 2>, kMenuPictureCount> pictures_{};
    std::array<std::array<HoverPicture*, 2>, kSwitchCount> switches_{};
    HoverLabel* lblHelp_ = nullptr;
    std::array<HoverLabel*, 2> lblCopyright_{};
    int shownHelpHover_ = -1;
};

} // namespace morvane
