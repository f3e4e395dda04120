// The frames of a shot: the break's run to the rack, and what the pockets and contacts show and
// sound.
#include "game/break_run.h"
#include "game/contact_effects.h"
#include "game/racking.h"
#include "game/shot_button.h"
#include "support/balls.h"
#include "support/recording_contacts.h"
#include "support/recording_screen.h"
#include "support/recording_sound.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

TEST(Break, CueBallRunsAloneToTheRackThenScatterGetsAFreeStep) {
    GameState g;
    rackBalls(g);
    RecordingContacts contacts;
    g.ports.contacts = &contacts;
    g.breakPending = true;
    cmdShot_Click(g);

    int ticks = 0;
    for (; g.breakPending && ticks < 100; ++ticks) {
        EXPECT_EQ(g.Balls[1].speed, 0) << "the rack waits for the cue ball";
        runBreakToRack(g);
    }
    EXPECT_EQ(ticks, 4); // 600 to 1700 at 6720 less friction
    EXPECT_EQ(g.firstHitBall, 1);
    ASSERT_EQ(contacts.seen.size(), 1u);
    EXPECT_EQ(contacts.seen[0].partner, 1);
    EXPECT_GT(g.Balls[3].x, 2136.5f); // the rear ball has already had its free step
}

namespace {

struct ShotFrame : ::testing::Test {
    GameState g;
    RecordingScreen screen;
    RecordingSound sound;
    RecordingContacts contacts;
    void SetUp() override {
        g.Balls = emptyTable();
        g.ports.screen = &screen;
        g.ports.sound = &sound;
        g.ports.contacts = &contacts;
        g.shotCount = 2;
        g.firstHitPending = true;
    }
};

} // namespace

TEST_F(ShotFrame, BallsFallingInOneFrameAreListedInTheOrderOfTheirTimes) {
    putBall(g.Balls, 2, 1200, 1100, 1500, float(3.1415926 / 2)); // 50 from the top: at 0.033
    putBall(g.Balls, 7, 1200, 80, 5600, float(-3.1415926 / 2));  // 30 from the bottom: at 0.005
    playFrame(g);
    ASSERT_EQ(g.pocketedCount, 2);
    EXPECT_EQ(std::make_pair(g.pocketedThisShot[0], g.pocketedThisShot[1]),
              std::make_pair(int16_t(7), int16_t(2)));
    EXPECT_EQ(screen.drops, (std::vector<std::pair<int, int>>{{7, 5}, {2, 2}}));
    ASSERT_EQ(sound.played.size(), 2u); // a pocket always sounds, however fast the ball
    EXPECT_EQ(sound.played[0], std::make_pair(std::string("drop.wav"), 1));
    EXPECT_EQ(contacts.seen.size(), 2u); // and the listener hears both captures
}

TEST_F(ShotFrame, BallContactNotesTheFirstHitSoundsTheRelativeSpeedAndDrawsBoth) {
    putBall(g.Balls, 0, 1000, 600, 3000); // touching ball 4 on its left
    putBall(g.Balls, 4, 1100, 600);
    playFrame(g);
    EXPECT_EQ(g.firstHitBall, 4);
    EXPECT_FALSE(g.firstHitPending);
    EXPECT_EQ(sound.played, (std::vector<std::pair<std::string, int>>{{"vmid.wav", 1}})); // 0.536
    EXPECT_EQ(screen.ballsDrawn, (std::vector<int>{0, 4}));
}
