// The screen the logic draws on: the table view, the tray, the information bar and the modal
// message box, on Qt surfaces and widgets.
//
// Whatever a tick draws on the view shows when the tick has returned, in one paint: during a
// shot as at rest. The balls drawn at a cushion inside a frame would stand on the screen only for
// the microseconds until the frame's end covers them, so the motion engine's yield has nothing
// to show, and the tick never waits for the display.
#pragma once

#include "game/game_state.h"
#include "screen/surfaces.h"

#include <QPointer>
#include <QWidget>
#include <functional>

namespace morvane {

// The widgets that show the surfaces; any may be missing, as in a test with no window.
struct ScreenWidgets {
    QPointer<QWidget> view;
    QPointer<QWidget> tray;
    QPointer<QWidget> information;
    QPointer<QWidget> mainWindow;
};

class QtScreen : public ScreenPort {
  public:
    QtScreen(GameState& g, const QImage& sheet, const QImage& cueBallPicture,
             const QImage& okPicture);

    void attach(const ScreenWidgets& widgets) { widgets_ = widgets; }
    Surfaces& surfaces() { return s_; }
    const QImage& okPicture() const { return okPicture_; }
    // How many modal forms have been opened so far; a tick that opens one is no frame to time.
    int modalFormsShown() const { return modalFormsShown_; }
    // Called with every message box just before it runs, so that a test can close it.
    std::function<void(QDialog&)> onMessageBox;
    // Called with each of the other modal forms just before it runs.
    std::function<void(QDialog&)> onForm;

    void drawTable() override;
    void drawBallNow(int ball) override;
    void drawBallDrop(int ball, int pocket) override;
    void drawTray() override;
    void refreshPool() override;
    void drawInformation() override;
    void showMessage(const std::string& text) override;
    void showPlainMessage(const std::string& text) override;
    void showRecordForm() override;
    void showInputBox() override;
    void showChangeVsMode() override;
    void showVsResult() override;
    void showVersion() override;
    void openHelp() override;

  private:
    // Holds the caller until the form has closed; the timers tick on under it.
    void runModal(QDialog& form, const std::function<void(QDialog&)>& beforeRunning);

    GameState& g_;
    Surfaces s_;
    QImage okPicture_;
    ScreenWidgets widgets_;
    int modalFormsShown_ = 0;
};

} // namespace morvane
