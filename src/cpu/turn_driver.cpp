#include "cpu/turn_driver.h"

#include "cpu/cpu_constants.h"
#include "cpu/cpu_think.h"
#include "cpu/cue_ball_placement.h"
#include "cpu/shot_plan.h"
#include "game/controls.h"
#include "game/shot_button.h"
#include "game/timers.h"

namespace morvane {

namespace {

constexpr Remark kMyFirstShot{"お先に!", "My first shot."};
constexpr Remark kLetMeSee{"う～んとね。", "Weel...."};

// In the demo the table stays live, so that a click on it can end the demo.
void lockTableOutsideDemo(GameState& g) {
    if (g.gameMode != kModeDemo)
        g.controls.poolEnabled = false;
}

void openTurn(GameState& g) {
    g.controls.zephsMessageVisible = true;
    if (g.breakPending) {
        sayRemark(g, kMyFirstShot);
    } else {
        sayRemark(g, kLetMeSee);
        placeCueBall(g);
    }
    setShotControls(g, false);
    lockTableOutsideDemo(g);
}

void shoot(GameState& g) {
    g.cpuTickCounter = 0;
    g.controls.zephsMessageVisible = false;
    g.controls.zephsMessage.clear();
    g.controls.shotEnabled = true;
    cmdShot_Click(g);
    lockTableOutsideDemo(g);
    setTimerEnabled(g, kTimCom, false);
}

} // namespace

void timCom_Timer(GameState& g) {
    const int16_t tick = g.cpuTickCounter;
    if (tick >= kTickShoot) {
        shoot(g);
        return;
    }
    if (tick == 0)
        openTurn(g);
    else if (tick == kTickThink && !g.breakPending)
        cpuThink(g);
    else if (tick >= kTickFadeFrom)
        g.controls.zephsMessageVisible = false;
    g.cpuTickCounter = int16_t(tick + 1);
}

} // namespace morvane
