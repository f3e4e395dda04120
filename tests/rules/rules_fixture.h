// A solo table ready for a shot, with a screen that writes down what it is shown.
#pragma once

#include "game/game_state.h"
#include "game/shot_button.h"
#include "game/shot_input.h"
#include "game/timers.h"
#include "rules/game_tick.h"
#include "support/recording_screen.h"
#include "support/table_setup.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

namespace morvane::testing {

class RulesTest : public ::testing::Test {
  protected:
    TempHome home;
    GameState g;
    RecordingScreen screen;

    void SetUp() override {
        g.ports.screen = &screen;
        for (TimerId id : {kTimer1, kTimer2, kTimCom, kTimDemo, kTimTimeCounter, kTimBGM})
            setTimerInterval(g, id, 50);
        g.gameMode = kModeSolo;
        g.breakPending = false;
    }

    // Fires the shot as set up and runs the game tick until it stops, as Timer1 would.
    void shootToRest(float aimX, float aimY, int16_t power = 60) {
        g.aimX = aimX;
        g.aimY = aimY;
        setPower(g, power);
        cmdShot_Click(g);
        for (int tick = 0; tick < 5000 && isTimerEnabled(g, kTimer1); ++tick)
            Timer1_Timer(g);
        ASSERT_FALSE(isTimerEnabled(g, kTimer1)) << "the shot never came to rest";
    }

    // A match of the given length between "You", to break, and the second player.
    void matchAgainst(const char* second, bool versusCpu, int16_t target = 3) {
        g.gameMode = kModeVersus;
        g.versusCpu = versusCpu;
        g.matchTarget = target;
        g.players[0] = {"You", true, 0};
        g.players[1] = {second, false, 0};
    }

    // The cue ball sent up the table past everything: a miss, the cue ball stopping at x 600.
    void missEverything() {
        setTable(g, {{0, 600, 600}, {1, 2000, 300}, {9, 1500, 900}});
        shootToRest(600, 1100, 50);
    }
};

} // namespace morvane::testing
