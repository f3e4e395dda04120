#include "rules/demo.h"

#include "game/racking.h"
#include "game/shot_input.h"
#include "game/timers.h"
#include "rules/match.h"
#include "rules/modes.h"
#include "rules/new_game.h"

namespace morvane {

namespace {

constexpr int16_t kIdleSecondsBeforeDemo = 30;
constexpr int16_t kDemoShotsWithoutPotBeforeNewRack = 30;
constexpr float kDemoShotFontSize = 12;

} // namespace

void timDemo_Timer(GameState& g) {
    if (g.gameMode != kModeMenu) {
        g.demoCounter = 0;
        return;
    }
    g.demoCounter = int16_t(g.demoCounter + 1);
    if (g.demoCounter > kIdleSecondsBeforeDemo) {
        changGameMenu(g);
        startDemo(g);
    }
}

void startDemo(GameState& g) {
    g.gameMode = kModeDemo;
    centrePointDot(g);
    g.controls.menuVisible = false;
    newGame(g);
    g.versusCpu = true;
    nameSides(g, "You", "zeph");
    resetMatchScore(g);
    g.controls.shotFont = {"Arial", kDemoShotFontSize, true};
    g.controls.shotCaption = "DEMO";
    setTimerEnabled(g, kTimCom, true);
    rackBalls(g);
    g.demoShotsWithoutPot = 0;
}

void moveDemoOn(GameState& g, bool ballPotted) {
    g.demoShotsWithoutPot = ballPotted ? 0 : int16_t(g.demoShotsWithoutPot + 1);
    if (g.demoShotsWithoutPot < kDemoShotsWithoutPotBeforeNewRack)
        return;
    g.demoShotsWithoutPot = 0;
    newGame(g);
    g.ports.screen->drawInformation();
}

void picPool_Click(GameState& g, int /*index*/) {
    if (g.gameMode != kModeDemo)
        return;
    newGame(g);
    setTimerEnabled(g, kTimCom, false);
    setTimerEnabled(g, kTimer1, false);
    backToMenu(g);
}

} // namespace morvane
