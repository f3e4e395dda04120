// A solo table ready for a shot, with a screen that writes down what it is shown.
#pragma once

#include "game/game_state.h"
#include "game/shot_button.h"
#include "game/shot_input.h"
#include "game/timers.h"
#include "rules/game_tick.h"
#include "support/recording_screen.h"
#include "support/table_setup.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace morvane::testing {

class RulesTest : public ::testing::Test {
  protected:
    GameState g;
    RecordingScreen screen;
    std::filesystem::path home;

    void SetUp() override {
        home = std::filesystem::temp_directory_path() /
               ("morvane-rules-" + std::to_string(::getpid()) + "-" +
                ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::remove_all(home);
        std::filesystem::create_directories(home);
        ::setenv("MORVANE_HOME", home.c_str(), 1);
        g.ports.screen = &screen;
        for (TimerId id : {kTimer1, kTimer2, kTimCom, kTimDemo, kTimTimeCounter, kTimBGM})
            setTimerInterval(g, id, 50);
        g.gameMode = kModeSolo;
        g.breakPending = false;
    }

    void TearDown() override { std::filesystem::remove_all(home); }

    // Fires the shot as set up and runs the game tick until it stops, as Timer1 would.
    void shootToRest(float aimX, float aimY, int16_t power = 60) {
        g.aimX = aimX;
        g.aimY = aimY;
        setPower(g, power);
        cmdShot_Click(g);
        runTicks();
    }

    void runTicks() {
        for (int tick = 0; tick < 5000 && isTimerEnabled(g, kTimer1); ++tick)
            Timer1_Timer(g);
        ASSERT_FALSE(isTimerEnabled(g, kTimer1)) << "the shot never came to rest";
    }
};

} // namespace morvane::testing
