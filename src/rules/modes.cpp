#include "rules/modes.h"

#include "game/racking.h"
#include "game/shot_input.h"
#include "game/timers.h"
#include "game/view_coords.h"
#include "rules/match.h"
#include "rules/new_game.h"
#include "rules/scenes.h"
#include "rules/undo.h"

namespace morvane {

namespace {

enum MenuLabel { kLabelMenu = 0, kLabelStart = 1, kLabelBack = 2 };

constexpr float kSoloShotFontSize = 24;
constexpr int kSoloShotFontPixels = 25;

void startMatchFromMenu(GameState& g, bool againstZeph) {
    g.versusCpu = againstZeph;
    g.controls.zephsMessageVisible = false;
    setShotButtonFont(g, kVersusShotFontSize);
    startVersus(g);
    changGameMenu(g);
}

void showLabels(GameState& g, bool menu, bool start, bool back) {
    g.controls.lblMenuVisible = {menu, start, back};
}

} // namespace

void picSoloPlay_Click(GameState& g, int /*index*/) {
    centrePointDot(g);
    newGame(g);
    g.ports.screen->drawInformation();
    g.controls.menuVisible = false;
    g.gameMode = kModeSolo;
    setShotButtonFont(g, pixelsToPoints(kSoloShotFontPixels));
    g.controls.shotCaption = "Shot!";
    g.controls.zephsMessageVisible = false;
    changGameMenu(g);
    setMusicScene(g, kSceneSolo);
}

void picVSPlay_Click(GameState& g, int /*index*/) {
    setTwoPlayerDefaults(g);
    startMatchFromMenu(g, false);
    setMusicScene(g, kSceneTwoPlayers);
}

void picVSCPU_Click(GameState& g, int /*index*/) {
    setCpuMatchDefaults(g);
    startMatchFromMenu(g, true);
    setMusicScene(g, kSceneVersusCpu);
}

void backToMenu(GameState& g) {
    newGame(g);
    setTimerEnabled(g, kTimCom, false);
    setTimerEnabled(g, kTimer1, false);
    setTimerEnabled(g, kTimDemo, true);
    g.controls.menuVisible = true;
    g.gameMode = kModeMenu;
}

void lblMenu_Click(GameState& g, int index) {
    if (isTimerEnabled(g, kTimer1))
        return;
    switch (index) {
    case kLabelMenu:
        backToMenu(g);
        setMusicScene(g, kSceneMenu);
        break;
    case kLabelStart:
        centrePointDot(g);
        newGame(g);
        g.controls.menuVisible = false;
        g.ports.screen->drawInformation();
        break;
    case kLabelBack:
        if (!g.breakPending) {
            undoShot(g);
            g.ports.screen->drawInformation();
        }
        break;
    default:
        break;
    }
    g.ports.screen->drawTable();
}

void mnuChangeMode_Click(GameState& g) {
    if (g.gameMode == kModeSolo) {
        startVersus(g);
    } else if (g.gameMode == kModeVersus) {
        g.controls.mnuStartEnabled = true;
        resetToSoloMode(g);
        rackBalls(g);
        newGame(g);
    }
}

void mnuCurrentCondition_Click(GameState& g) {
    if (g.gameMode == kModeSolo)
        g.ports.screen->showRecordForm();
    else if (g.gameMode == kModeVersus)
        g.ports.screen->showVsResult();
}

void resetToSoloMode(GameState& g) {
    g.gameMode = kModeSolo;
    g.controls.mnuChangeModeCaption = "独り撞き→対戦(&M)";
    g.controls.mnuStartEnabled = true;
    g.controls.shotCaption = "SHOT!";
    g.controls.shotFont = {"Arial", kSoloShotFontSize, true};
}

void changGameMenu(GameState& g) {
    switch (g.gameMode) {
    case kModeSolo:
        showLabels(g, true, true, true);
        break;
    case kModeVersus:
    case kModeDemo:
        showLabels(g, true, false, false);
        break;
    default:
        showLabels(g, false, false, false);
        break;
    }
}

} // namespace morvane
