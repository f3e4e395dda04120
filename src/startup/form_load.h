// The start of the program from end to end, in its fixed order, and the one way out.
#pragma once

#include "game/game_state.h"

#include <string>

namespace morvane {

// What start-up asks of the window system. The window implements it with Qt; tests write down
// the calls.
class StartupPlatform {
  public:
    virtual ~StartupPlatform() = default;
    virtual bool isJapaneseSystem() = 0;
    // True when another copy of the game runs; the first copy to ask holds the place from then on.
    virtual bool anotherInstanceRunning() = 0;
    // A plain message box with one OK, waiting until it closes.
    virtual void showPlainMessage(const std::string& text) = 0;
    // hiColor other than -1: the table sheet and the menu picture from the 256-colour files.
    virtual void loadFilePictures() {}
    virtual void setMenuCaptions() {}
    virtual void arrangeControls() {}
    virtual void centreMainWindow() {}
    virtual void hideMainWindow() {}
    // The splash, not waited for; it shows the main window when it closes.
    virtual void showSplash() {}
    virtual void loadBallSprites() {}
    virtual void setZephsMessageFont() {}
    virtual void placeScoreScreen() {}
    // Ends the process's event loop; nothing is saved.
    virtual void quit() {}
};

// Runs start-up with the given command line. False when another copy runs: the refusal has
// been shown and nothing else was done, no file read or written.
bool Form_Load(GameState& g, const std::string& commandLine, StartupPlatform& platform);

// Every way out: the music tracks closed, then the end.
// picExit, mnuExit and the window's close box all come here.
void Form_Unload(GameState& g, StartupPlatform& platform);

} // namespace morvane
