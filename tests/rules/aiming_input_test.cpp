// The mouse on the table view: the aim, the cue ball in hand, the grab circle.
#include "game/view_coords.h"
#include "rules/aiming_input.h"
#include "support/table_setup.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

namespace {

constexpr int kLeft = 1;

struct Aiming : ::testing::Test {
    GameState g;
    void SetUp() override {
        setTable(g, {{0, 600, 600}, {1, 1790, 600}});
        g.breakPending = false;
    }
    float cueX() const { return tableToPixelX(g.Balls[0].x); }
    float cueY() const { return tableToPixelY(g.Balls[0].y); }
};

TEST_F(Aiming, ADragMovesTheAimUnclampedAndTheReleasePullsItInside) {
    picPool_MouseDown(g, kLeft, 300, 100);
    picPool_MouseMove(g, kLeft, 530, 5);
    EXPECT_FLOAT_EQ(g.aimX, pixelToTableX(530));
    picPool_MouseUp(g, kLeft, 530, 5);
    EXPECT_EQ(std::make_pair(g.aimX, g.aimY), std::make_pair(kCushionRightX, kCushionTopY));
    EXPECT_FLOAT_EQ(g.controls.target.left, 490);
}

TEST_F(Aiming, TheCueBallInHandIsTakenOnlyStrictlyInsideItsRadius) {
    g.ballInHand = true;
    picPool_MouseDown(g, kLeft, cueX() + 10, cueY()); // exactly 50 units away
    EXPECT_FALSE(g.draggingCueBall);
    EXPECT_FLOAT_EQ(g.aimX, 650);
    picPool_MouseDown(g, kLeft, cueX() + 9, cueY());
    EXPECT_TRUE(g.draggingCueBall);
    EXPECT_FLOAT_EQ(g.Balls[0].x, 645);
}

TEST_F(Aiming, NothingMovesOnTheBreak) {
    g.breakPending = true;
    picPool_MouseDown(g, kLeft, 400, 100);
    picPool_MouseMove(g, kLeft, 420, 120);
    picPool_MouseUp(g, kLeft, 420, 120);
    EXPECT_EQ(g.aimX, 0);
    EXPECT_EQ(g.Balls[0].x, 600);
}

} // namespace
