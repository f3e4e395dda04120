// The mouse on the table view: the aim dragged and let go, and the break that ignores it.
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
};

TEST_F(Aiming, ADragMovesTheAimUnclampedAndTheReleasePullsItInside) {
    picPool_MouseDown(g, kLeft, 300, 100);
    picPool_MouseMove(g, kLeft, 530, 5);
    EXPECT_FLOAT_EQ(g.aimX, pixelToTableX(530));
    picPool_MouseUp(g, kLeft, 530, 5);
    EXPECT_EQ(std::make_pair(g.aimX, g.aimY), std::make_pair(kCushionRightX, kCushionTopY));
    EXPECT_FLOAT_EQ(g.controls.target.left, 490);
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
