#include "game/break_run.h"
#include "game/racking.h"
#include "game/shot_button.h"
#include "support/recording_contacts.h"
#include "support/recording_sound.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

TEST(Break, CueBallRunsAloneToTheRackThenScatterGetsAFreeStep) {
    GameState g;
    rackBalls(g);
    RecordingSound sound;
    RecordingContacts contacts;
    g.ports.sound = &sound;
    g.ports.contacts = &contacts;
    g.breakPending = true;
    cmdShot_Click(g);
    g.controls.poolEnabled = false;

    int ticks = 0;
    for (; g.breakPending && ticks < 100; ++ticks) {
        EXPECT_EQ(g.Balls[1].speed, 0) << "the rack waits for the cue ball";
        runBreakToRack(g);
    }
    EXPECT_EQ(ticks, 4); // 600 to 1700 at 6720 less friction
    EXPECT_EQ(g.firstHitBall, 1);
    EXPECT_TRUE(g.controls.poolEnabled);
    ASSERT_EQ(contacts.seen.size(), 1u);
    EXPECT_EQ(contacts.seen[0].partner, 1);
    EXPECT_EQ(sound.played, (std::vector<std::pair<std::string, int>>{{"vmax.wav", 0x11}}));
    EXPECT_GT(g.Balls[3].x, 2136.5f); // the rear ball has already had its free step
}
