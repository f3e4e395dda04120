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
    g.ports.ownRandom = SeededRandom(42);
    g.aimX = 1700;
    g.aimY = 600;
    g.breakPending = true;
    cmdShot_Click(g);
    g.controls.poolEnabled = false;

    int ticks = 0;
    while (g.breakPending && ticks < 100) {
        runBreakToRack(g);
        ++ticks;
        if (g.breakPending) {
            EXPECT_EQ(g.Balls[1].speed, 0) << "the rack waits for the cue ball";
        }
    }
    EXPECT_EQ(ticks, 4); // 600 to 1700 at 6720 less friction
    EXPECT_EQ(g.firstHitBall, 1);
    EXPECT_FALSE(g.firstHitPending);
    EXPECT_TRUE(g.controls.poolEnabled);
    ASSERT_EQ(contacts.seen.size(), 1u);
    EXPECT_EQ(contacts.seen[0].ball, 0);
    EXPECT_EQ(contacts.seen[0].partner, 1);
    ASSERT_EQ(sound.played.size(), 1u);
    EXPECT_EQ(sound.played[0].first, "vmax.wav");
    EXPECT_EQ(sound.played[0].second, 0x11);
    EXPECT_GT(g.Balls[3].x, 2136.5f); // the rear ball has already had its free step
}
