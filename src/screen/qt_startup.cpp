#include "screen/qt_startup.h"

#include "screen/forms/form_parts.h"
#include "screen/forms/opening_form.h"

#include "picture_names.h"
#include "screen/blit.h"
#include "screen/fonts.h"
#include "screen/pictures.h"
#include "startup/menu_captions.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QTimer>

namespace morvane {

namespace {

constexpr const char* kSheetFile = "mv256.bmp";
constexpr const char* kMenuFile = "mvmnu256.bmp";
constexpr double kZephsMessagePoints = 14.25;

} // namespace

bool isJapaneseSystem() {
    return QLocale::system().language() == QLocale::Japanese;
}

QtStartupPlatform::QtStartupPlatform(GameState& g, MainWindow& window, QtScreen& screen,
                                     SingleInstanceLock& lock)
    : g_(g), window_(window), screen_(screen), lock_(lock) {}

bool QtStartupPlatform::isJapaneseSystem() {
    return morvane::isJapaneseSystem();
}

bool QtStartupPlatform::anotherInstanceRunning() {
    return lock_.anotherInstanceRunning();
}

void QtStartupPlatform::showPlainMessage(const std::string& text) {
    screen_.showPlainMessage(text);
}

void QtStartupPlatform::loadFilePictures() {
    Surfaces& s = screen_.surfaces();
    s.picTable = pictureFileOr(kSheetFile, s.picTable);
    blitCopy(s.setPoint, 0, 0, s.picTable, kSheetCueBallX, kSheetCueBallY, kSetPointPixels,
             kSetPointPixels);
    MenuScreen& menu = *window_.picMenu();
    menu.setPicture(pictureFileOr(kMenuFile, scaledPicture(pictures::kMenu)));
}

void QtStartupPlatform::setMenuCaptions() {
    window_.hiddenMenu()->setMenuCaptions(menuCaptions(g_.isJapanese));
}

void QtStartupPlatform::arrangeControls() {
    window_.setFixedSize(kClientWidth, kClientHeight);
}

// Centred on the whole screen, as the splash and the record form are.
void QtStartupPlatform::centreMainWindow() {
    centreOnScreen(window_);
}

void QtStartupPlatform::hideMainWindow() {
    window_.hide();
}

// The splash comes up without waiting, over a window still hidden; its closing shows the window.
void QtStartupPlatform::showSplash() {
    auto* splash = new OpeningForm(g_, [this] { showMainWindow(); });
    splash->setAttribute(Qt::WA_DeleteOnClose);
    splash->show();
}

void QtStartupPlatform::showMainWindow() {
    window_.syncControlsFromState();
    window_.show();
    window_.raise();
    window_.activateWindow();
}

void QtStartupPlatform::loadBallSprites() {
    morvane::loadBallSprites(screen_.surfaces());
}

void QtStartupPlatform::setZephsMessageFont() {
    window_.picPool()->zephsMessage()->setFont(gameFont(
        g_.isJapanese ? QStringLiteral("ＭＳ ゴシック") : "Arial", kZephsMessagePoints, true));
}

void QtStartupPlatform::quit() {
    QApplication::quit();
}

} // namespace morvane
