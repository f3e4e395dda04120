// frmVersion, "バージョン情報": the program's name and version, zeph's level, a credit line, and
// zeph's face, which blinks twice when clicked.
#pragma once

#include "game/game_state.h"
#include "screen/forms/form_parts.h"

#include <QImage>
#include <QPushButton>
#include <QTimer>
#include <string>

namespace morvane {

constexpr int kZephBlinkTickMs = 50;
constexpr int kZephFaceSize = 32;

// The two lines under the name: the version, then zeph's level or the Master line above 10.
std::string versionCaption(int16_t zephLevel);
// The frame of the blink at counter c, or -1 when the blink is over.
int zephBlinkFrame(int c);

class VersionForm : public QDialog {
    Q_OBJECT
  public:
    VersionForm(const GameState& g, QWidget* mainWindow);

    QLabel* Label1() const { return Label1_; }
    QPushButton* Command1() const { return Command1_; }
    PictureButton* picZeph() const { return picZeph_; }
    QTimer* Timer1() const { return Timer1_; }
    // The face as it stands, and the blink's counter.
    const QImage& face() const { return face_; }
    int frameCounter() const { return frameCounter_; }

    void Command1_Click();
    void picZeph_Click();
    void Timer1_Timer();

  private:
    QLabel* Label1_;
    QPushButton* Command1_;
    PictureButton* picZeph_;
    QImage face_;
    QImage picZephs_; // the five frames side by side; never shown
    QTimer* Timer1_;
    int frameCounter_ = 0;
};

} // namespace morvane
