// What start-up asks of the desktop, done with Qt: the language of the system, one copy at a
// time, plain message boxes, the layout, the window hidden and centred, the splash, the end.
#pragma once

#include "screen/main_window.h"
#include "screen/qt_screen.h"
#include "startup/form_load.h"
#include "startup/single_instance.h"

#include <functional>

namespace morvane {

// Japanese texts on a Japanese system, English on any other.
bool isJapaneseSystem();

class QtStartupPlatform : public StartupPlatform {
  public:
    QtStartupPlatform(GameState& g, MainWindow& window, QtScreen& screen, SingleInstanceLock& lock);

    bool isJapaneseSystem() override;
    bool anotherInstanceRunning() override;
    void showPlainMessage(const std::string& text) override;
    void loadFilePictures() override;
    void setMenuCaptions() override;
    void arrangeControls() override;
    void centreMainWindow() override;
    void hideMainWindow() override;
    void showSplash() override;
    void loadBallSprites() override;
    void setZephsMessageFont() override;
    void quit() override;

  private:
    void showMainWindow();

    GameState& g_;
    MainWindow& window_;
    QtScreen& screen_;
    SingleInstanceLock& lock_;
};

} // namespace morvane
