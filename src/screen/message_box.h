// frmMsgBox, "Massage from Morvane": one line of text and an OK picture, sized to the text, shown
// modally over the main window. Any key closes it as OK does.
#pragma once

#include <QDialog>
#include <QImage>
#include <QLabel>
#include <string>

namespace morvane {

constexpr int kMsgBoxHeightTwips = 1350;
constexpr double kMsgFontPoints = 12;
constexpr int kOkWidthTwips = 990;
constexpr int kOkHeightTwips = 510;

// Where showMessage puts the form's parts, in twips.
struct MessageBoxLayout {
    double formWidth = 0;
    double labelLeft = 0;
    int labelWidth = 0; // 0: the label takes the width of its text
    int okLeft = 0;
};

MessageBoxLayout layoutMessageBox(const std::string& text, double fontPoints, int okWidthTwips);
int twipsToPixels(double twips);

class MessageBoxForm : public QDialog {
    Q_OBJECT
  public:
    MessageBoxForm(const std::string& text, const QImage& okPicture, QWidget* mainWindow);
    QLabel* lblMsg() const { return lblMsg_; }
    QLabel* picOK() const { return picOK_; }
    void picOK_Click();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLabel* lblMsg_;
    QLabel* picOK_;
};

} // namespace morvane
