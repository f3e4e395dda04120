#include "screen/forms/version_form.h"

#include "game/version.h"

#include "game/text.h"
#include "game/zeph_level.h"
#include "picture_names.h"
#include "screen/blit.h"
#include "screen/fonts.h"
#include "screen/pictures.h"

#include <cmath>

namespace morvane {

namespace {

constexpr int kFormWidthTwips = 4980;
constexpr int kFormHeightTwips = 1905;
constexpr double kTitlePoints = 30;
constexpr double kVersionPoints = 13.5;
constexpr double kCreditPoints = 9.75;
constexpr double kOkPoints = 9.75;
constexpr double kHeightAboveForm = 0.4;
constexpr int kBlinkFrames = 5;
constexpr int kBlinkLength = 4 * kBlinkFrames;
inline constexpr const char* kCreditLine = "Nine-ball pool, written anew for Linux";

} // namespace

std::string versionCaption(int16_t zephLevel) {
    const std::string level = zephLevel >= kZephMasterLevel
                                  ? " zeph is a Master!"
                                  : " zeph's Level is" + signedNumberText(zephLevel) + ".";
    return std::string(" Ver.") + kVersion + "\n" + level;
}

// Eyes closing over five frames, opening again, and the same once more.
int zephBlinkFrame(int c) {
    if (c < 0 || c >= kBlinkLength)
        return -1;
    const int step = c % kBlinkFrames;
    const bool closing = (c / kBlinkFrames) % 2 == 0;
    return closing ? step : kBlinkFrames - 1 - step;
}

VersionForm::VersionForm(const GameState& g, QWidget* mainWindow)
    : QDialog(mainWindow),
      face_(scaledPicture(pictures::kZeph).convertToFormat(QImage::Format_RGB32)),
      picZephs_(scaledPicture(pictures::kZephFrames)), Timer1_(new QTimer(this)) {
    setUpForm(*this, QStringLiteral("バージョン情報"), QSize(kFormWidthTwips, kFormHeightTwips));
    const QRect screen = screenArea();
    const int freeHeight = int(std::nearbyint((screen.height() - height()) * kHeightAboveForm));
    move(screen.left() + (screen.width() - width()) / 2, screen.top() + freeHeight / 2);

    QLabel* title = addLabel(this, QStringLiteral("MORVANE"), QRect(180, 60, 3795, 615),
                             gameFont("Arial", kTitlePoints, true));
    title->setAlignment(Qt::AlignCenter);
    Label1_ = addLabel(this, QString::fromStdString(versionCaption(g.zephLevel)),
                       QRect(90, 720, 4785, 675), gameFont("Arial", kVersionPoints, true));
    Label1_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    addLabel(this, QString::fromUtf8(kCreditLine), QRect(600, 1440, 4335, 315),
             gameFont("Arial", kCreditPoints, true));

    Command1_ = new QPushButton(QStringLiteral("OK"), this);
    Command1_->setGeometry(twipsRect(4080, 60, 795, 435));
    Command1_->setFont(gameFont("Arial", kOkPoints, false));
    Command1_->setDefault(true);
    connect(Command1_, &QPushButton::clicked, this, &VersionForm::Command1_Click);

    picZeph_ = new PictureButton(face_, this, twipsSize(495, 495));
    picZeph_->move(twipsRect(60, 1320, 0, 0).topLeft());
    connect(picZeph_, &PictureButton::clicked, this, &VersionForm::picZeph_Click);

    Timer1_->setInterval(kZephBlinkTickMs);
    connect(Timer1_, &QTimer::timeout, this, &VersionForm::Timer1_Timer);
}

void VersionForm::Command1_Click() {
    accept();
}

// A click while the face blinks leaves the blink running as it is.
void VersionForm::picZeph_Click() {
    if (!Timer1_->isActive())
        Timer1_->start();
}

void VersionForm::Timer1_Timer() {
    int frame = zephBlinkFrame(frameCounter_);
    if (frame < 0) {
        frame = 0;
        Timer1_->stop();
        frameCounter_ = 0;
    }
    blitCopy(face_, 0, 0, picZephs_, kZephFaceSize * frame, 0, kZephFaceSize, kZephFaceSize);
    picZeph_->setPixmap(QPixmap::fromImage(face_));
    ++frameCounter_;
}

} // namespace morvane
