// frmInputBox, "Morvane": asks for the name of a solo game that earned a place in the table. The
// name counts however the form is closed.
#pragma once

#include "game/game_state.h"
#include "screen/forms/form_parts.h"

#include <QLineEdit>

namespace morvane {

class NameForm : public QDialog {
    Q_OBJECT
  public:
    NameForm(GameState& g, const QImage& okPicture, QWidget* mainWindow);

    QLabel* lblMsg() const { return lblMsg_; }
    QLineEdit* txtName() const { return txtName_; }
    PictureButton* picOK() const { return picOK_; }
    void picOK_Click();
    // Form_Unload: every way of closing the form ends here.
    void done(int result) override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    GameState& g_;
    QLabel* lblMsg_;
    QLineEdit* txtName_;
    PictureButton* picOK_;
};

} // namespace morvane
