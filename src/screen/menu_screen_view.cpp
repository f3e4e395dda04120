#include "screen/menu_screen_view.h"

#include "picture_names.h"
#include "screen/blit.h"
#include "screen/fonts.h"
#include "screen/pictures.h"

#include <QMouseEvent>
#include <QPainter>

namespace morvane {

namespace {

// The box is larger than its 540 by 365 picture and black below it, so the menu covers the whole
// window.
constexpr QRect kMenuArea{0, 0, 540, 400};
constexpr std::array<QRect, kMenuPictureCount> kPictureAreas{
    QRect{16, 56, 163, 41}, QRect{216, 56, 135, 41}, QRect{376, 56, 143, 41},
    QRect{408, 112, 126, 39}, QRect{456, 328, 70, 39}};
constexpr std::array<const char* const*, kMenuPictureCount> kPictureNames{
    pictures::kSoloPlay, pictures::kVsCpu, pictures::kVsPlay, pictures::kRecord, pictures::kExit};
constexpr std::array<const char*, kMenuPictureCount> kPictureTips{
    "独り撞きモード", "成長する思考ルーチン\"zeph\"と対戦", "お友達とどうぞ", "記録",
    "MORVANEを終了"};

constexpr std::array<QRect, kSwitchCount> kSwitchAreas{
    QRect{40, 120, 40, 40}, QRect{24, 160, 40, 40}, QRect{8, 200, 40, 40}};
constexpr std::array<const char* const*, kSwitchCount> kSwitchNames{
    pictures::kBgm, pictures::kSound, pictures::kColor};
constexpr std::array<const char*, kSwitchCount> kSwitchTips{"BGMのOn/Off", "サウンドのOn/Off",
                                                            "True Color/256 Colorの切り替え"};

constexpr QRect kHelpArea{512, 0, 25, 33};
constexpr double kHelpPoints = 20.25;
constexpr QRgb kHelpRest = qRgb(128, 0, 128);
constexpr QRgb kHelpHover = qRgb(255, 0, 255);
constexpr std::array<QRect, 2> kCopyrightAreas{QRect{0, 336, 537, 17}, QRect{0, 352, 537, 17}};
constexpr double kCopyrightPoints = 9.75;
constexpr QRgb kCopyrightCyan = qRgb(0, 192, 192);
constexpr std::array<const char*, 2> kCopyrightLines{"MORVANE for Linux  by the Morvane developers",
                                                     "BGMs by lirra 1998"};

QString colourStyle(QRgb colour) {
    return QString("color: %1; background: transparent;").arg(QColor(colour).name());
}

} // namespace

HoverPicture::HoverPicture(const QImage& picture, QWidget* parent)
    : QWidget(parent), picture_(picture) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void HoverPicture::setPicture(const QImage& picture) {
    picture_ = picture;
    update();
}

void HoverPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    paintPicture(painter, picture_);
}

void HoverPicture::mouseMoveEvent(QMouseEvent*) {
    emit mouseMoved();
}

// A click is the left button let go over the picture; the release that ends a double click is
// no second click.
void HoverPicture::mouseReleaseEvent(QMouseEvent* event) {
    const bool endsDoubleClick = releaseEndsDoubleClick_;
    releaseEndsDoubleClick_ = false;
    if (event->button() == Qt::LeftButton && !endsDoubleClick &&
        rect().contains(event->position().toPoint()))
        emit clicked();
}

void HoverPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    releaseEndsDoubleClick_ = true;
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
}

MenuScreen::MenuScreen(QWidget* parent) : HoverPicture(scaledPicture(pictures::kMenu), parent) {
    setGeometry(kMenuArea);
    createWordPictures();
    createSwitches();
    createLabels();
}

void MenuScreen::createWordPictures() {
    for (int p = 0; p < kMenuPictureCount; ++p) {
        for (int index = 0; index < 2; ++index) {
            auto* picture = new HoverPicture(scaledPicture(kPictureNames[p][index]), this);
            picture->setGeometry(kPictureAreas[p]);
            if (index == 1)
                picture->setToolTip(QString::fromUtf8(kPictureTips[p]));
            const auto which = MenuPicture(p);
            connect(picture, &HoverPicture::mouseMoved, this,
                    [this, which, index] { emit pictureMouseMoved(which, index); });
            connect(picture, &HoverPicture::clicked, this,
                    [this, which, index] { emit pictureClicked(which, index); });
            pictures_[p][index] = picture;
        }
    }
}

void MenuScreen::createSwitches() {
    for (int s = 0; s < kSwitchCount; ++s) {
        for (int index = 0; index < 2; ++index) {
            auto* picture = new HoverPicture(scaledPicture(kSwitchNames[s][index]), this);
            picture->setGeometry(kSwitchAreas[s]);
            picture->setToolTip(QString::fromUtf8(kSwitchTips[s]));
            const auto which = MenuSwitch(s);
            connect(picture, &HoverPicture::clicked, this,
                    [this, which, index] { emit switchClicked(which, index); });
            switches_[s][index] = picture;
        }
    }
}

void MenuScreen::createLabels() {
    lblHelp_ = new HoverLabel(QStringLiteral("?"), this);
    lblHelp_->setGeometry(kHelpArea);
    lblHelp_->setFont(gameFont("Arial", kHelpPoints, true));
    lblHelp_->setToolTip(QString::fromUtf8("ヘルプ"));
    for (int i = 0; i < 2; ++i) {
        lblCopyright_[i] = new HoverLabel(QString::fromUtf8(kCopyrightLines[i]), this);
        lblCopyright_[i]->setGeometry(kCopyrightAreas[i]);
        lblCopyright_[i]->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        lblCopyright_[i]->setFont(gameFont("Arial", kCopyrightPoints, true));
        lblCopyright_[i]->setStyleSheet(colourStyle(kCopyrightCyan));
        // Labels lie under the pictures: the credit lines run across the lower part of Exit.
        lblCopyright_[i]->lower();
    }
}

void MenuScreen::syncFromState(const GameState& g) {
    const ControlsState& c = g.controls;
    setVisible(c.menuVisible);
    for (int p = 0; p < kMenuPictureCount; ++p) {
        for (int index = 0; index < 2; ++index)
            pictures_[p][index]->setVisible(isMenuPictureShown(g, MenuPicture(p), index));
    }
    const std::array<bool, kSwitchCount> on{c.bgmPicOn, c.soundPicOn, c.colorPicOn};
    for (int s = 0; s < kSwitchCount; ++s) {
        switches_[s][0]->setVisible(on[s]);
        switches_[s][1]->setVisible(!on[s]);
    }
    if (shownHelpHover_ != int(c.lblHelpHover)) {
        shownHelpHover_ = int(c.lblHelpHover);
        lblHelp_->setStyleSheet(colourStyle(c.lblHelpHover ? kHelpHover : kHelpRest));
    }
}

} // namespace morvane
