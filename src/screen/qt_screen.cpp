#include "screen/qt_screen.h"

#include "picture_names.h"
#include "screen/blit.h"
#include "screen/forms/form_parts.h"
#include "screen/forms/match_form.h"
#include "screen/forms/name_form.h"
#include "screen/forms/record_form.h"
#include "screen/forms/result_form.h"
#include "screen/forms/version_form.h"
#include "screen/information_bar.h"
#include "screen/message_box.h"
#include "screen/pictures.h"
#include "screen/table_drawing.h"

#include <QMessageBox>

namespace morvane {

QtScreen::QtScreen(GameState& g, const QImage& sheet, const QImage& cueBallPicture,
                   const QImage& okPicture)
    : g_(g), s_(makeSurfaces(sheet, cueBallPicture)), okPicture_(okPicture) {}

void QtScreen::drawTable() {
    drawTableFrame(g_, s_);
    refreshPool();
}

void QtScreen::drawBallNow(int ball) {
    drawBallOnView(g_, s_, ball);
    refreshPool();
}

void QtScreen::drawBallDrop(int ball, int pocket) {
    drawBallDropOnView(s_, ball, pocket);
    refreshPool();
}

void QtScreen::drawTray() {
    drawPocketedTray(g_, s_);
    if (widgets_.tray)
        widgets_.tray->update();
}

void QtScreen::refreshPool() {
    if (widgets_.view)
        widgets_.view->update();
}

void QtScreen::drawInformation() {
    showInfomation(g_, s_);
    if (widgets_.information)
        widgets_.information->update();
}

void QtScreen::runModal(QDialog& form, const std::function<void(QDialog&)>& beforeRunning) {
    ++modalFormsShown_;
    if (beforeRunning)
        beforeRunning(form);
    const HeldKeyGuard heldKeys(form);
    form.exec();
}

void QtScreen::showMessage(const std::string& text) {
    MessageBoxForm form(text, okPicture_, widgets_.mainWindow);
    runModal(form, onMessageBox);
}

void QtScreen::showRecordForm() {
    RecordForm form(g_, s_.picBalls, okPicture_, widgets_.mainWindow);
    runModal(form, onForm);
}

void QtScreen::showInputBox() {
    NameForm form(g_, okPicture_, widgets_.mainWindow);
    runModal(form, onForm);
}

void QtScreen::showChangeVsMode() {
    MatchForm form(g_, okPicture_, scaledPicture(pictures::kCancel, surfaceScale(okPicture_)),
                   widgets_.mainWindow);
    runModal(form, onForm);
}

void QtScreen::showVsResult() {
    ResultForm form(g_, okPicture_, widgets_.mainWindow);
    runModal(form, onForm);
}

void QtScreen::showVersion() {
    VersionForm form(g_, widgets_.mainWindow);
    runModal(form, onForm);
}

void QtScreen::showPlainMessage(const std::string& text) {
    QMessageBox box(QMessageBox::NoIcon, QString(), QString::fromStdString(text), QMessageBox::Ok,
                    widgets_.mainWindow);
    runModal(box, nullptr);
}

void QtScreen::openHelp() {
    const QString page = helpPagePath();
    helpOpener(QUrl::fromLocalFile(page), [this, page] { showHelpWindow(page); });
}

void QtScreen::showHelpWindow(const QString& page) {
    if (!helpWindow_) {
        helpWindow_ = new HelpWindow(page, g_.isJapanese);
        // Over the game, where a person is looking, on a desktop that would leave it in a corner.
        if (widgets_.mainWindow) {
            QRect over = helpWindow_->geometry();
            over.moveCenter(widgets_.mainWindow->geometry().center());
            helpWindow_->setGeometry(over);
        }
    }
    helpWindow_->show();
    helpWindow_->raise();
    helpWindow_->activateWindow();
}

} // namespace morvane
