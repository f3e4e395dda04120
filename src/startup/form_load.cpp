#include "startup/form_load.h"

#include "cpu/pocket_table.h"
#include "game/racking.h"
#include "game/timers.h"
#include "game/version.h"
#include "records/score_file.h"
#include "rules/match.h"
#include "rules/modes.h"
#include "rules/music.h"
#include "rules/new_game.h"
#include "startup/command_line.h"
#include "startup/menu_captions.h"
#include "startup/scheduler.h"
#include "startup/settings.h"

namespace morvane {

namespace {

constexpr int16_t kInnerPictures = -1;
constexpr const char* kTwiceJapanese = "このプログラムは複数起動することは出来ません。";
constexpr const char* kTwiceEnglish = "Morvane can't be loaded twice.";

// A numbered trace message, shown only with "/debug".
void pass(GameState& g, StartupPlatform& platform, int number) {
    if (g.debugStart)
        platform.showPlainMessage("Pass " + std::to_string(number) + " !");
}

void readPictureSetting(GameState& g, StartupPlatform& platform) {
    readHiColorSetting(g);
    if (g.hiColor != kInnerPictures)
        platform.loadFilePictures();
}

void layOutWindow(GameState& g, StartupPlatform& platform) {
    g.controls.mnuChangeModeCaption = menuCaptions(g.isJapanese).changeMode;
    platform.setMenuCaptions();
    initTimers(g);
    setTimerEnabled(g, kTimDemo, false);
    platform.arrangeControls();
    platform.centreMainWindow();
    platform.hideMainWindow();
    g.controls.mainWindowVisible = false;
}

void fillTables(GameState& g, StartupPlatform& platform) {
    g.breakPending = true;
    g.controls.windowCaption = versionCaption();
    initPocketTable(g);
    platform.loadBallSprites();
    resetToSoloMode(g);
    setTwoPlayerDefaults(g);
    g.versusCpu = true;
    loadZephLevel(g);
    readSoundAndMusicSettings(g);
    bringSwitchesIntoLine(g);
    platform.setZephsMessageFont();
    rackBalls(g);
    newGame(g);
    platform.placeScoreScreen();
}

} // namespace

bool Form_Load(GameState& g, const std::string& commandLine, StartupPlatform& platform) {
    readCommandLine(g, commandLine);
    g.isJapanese = platform.isJapaneseSystem();
    pass(g, platform, 1);
    if (platform.anotherInstanceRunning()) {
        platform.showPlainMessage(g.isJapanese ? kTwiceJapanese : kTwiceEnglish);
        return false;
    }
    removeUnfinishedSaves();
    pass(g, platform, 2);
    pass(g, platform, 3);

    readPictureSetting(g, platform);
    pass(g, platform, 4);
    layOutWindow(g, platform);
    pass(g, platform, 5);
    pass(g, platform, 6);
    platform.showSplash();
    pass(g, platform, 7);
    fillTables(g, platform);
    pass(g, platform, 8);
    loadSoloRecord(g);
    pass(g, platform, 9);
    loadVsCpuRecord(g);
    backToMenu(g);
    initBgmTable(g);
    pass(g, platform, 10);
    return true;
}

void Form_Unload(GameState& g, StartupPlatform& platform) {
    closeAllTracks(g);
    platform.quit();
}

} // namespace morvane
