// frmChangeVsMode, "Morvane": the names of the two sides and the length of the match. OK starts
// the match with them, Cancel goes back to the menu; a form closed any other way leaves the match
// to start with the values that stand.
#pragma once

#include "game/game_state.h"
#include "screen/forms/form_parts.h"
#include "screen/forms/spin_arrows.h"

#include <QLineEdit>
#include <array>

namespace morvane {

class MatchForm : public QDialog {
    Q_OBJECT
  public:
    MatchForm(GameState& g, const QImage& okPicture, const QImage& cancelPicture,
              QWidget* mainWindow);

    QLineEdit* txtPlayerName(int index) const { return txtPlayerName_[index]; }
    QLabel* lblXwins() const { return lblXwins_; }
    SpinArrows* VScroll1() const { return VScroll1_; }
    PictureButton* picOK() const { return picOK_; }
    PictureButton* picCancel() const { return picCancel_; }

    void picOK_Click();
    void picCancel_Click();
    void VScroll1_Change(int value);

  protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    GameState& g_;
    std::array<QLineEdit*, 2> txtPlayerName_{};
    QLabel* lblXwins_;
    SpinArrows* VScroll1_;
    PictureButton* picOK_;
    PictureButton* picCancel_;
};

} // namespace morvane
