#include "table/contact_times.h"
#include "table/motion.h"
#include "table/rack.h"
#include "table/table_queries.h"
#include "table_fixtures.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;
using namespace morvane::testing;

TEST(Friction, SlowsInTwoStagesChosenAtTheStartOfTheStep) {
    GameState g = emptyTable();
    putBall(g, 0, 600, 600, 2000);
    g.Balls[0].spinFollow = 300;
    moveBalls(g, 0.05);
    EXPECT_EQ(g.Balls[0].speed, float(2000 - 0.05 * 1866.6666666666667));
    EXPECT_EQ(g.Balls[0].x, 700); // moved at the speed from before the step
    EXPECT_EQ(g.Balls[0].prevX, 600);
    EXPECT_EQ(g.Balls[0].spinFollow, 300); // still fast: follow kept

    g.Balls[0].speed = 1680;
    moveBalls(g, 0.05);
    EXPECT_EQ(g.Balls[0].speed, float(1680 - 0.05 * 746.6666666666667));
    EXPECT_EQ(g.Balls[0].spinFollow, 0); // at the boundary the follow is gone
}

TEST(Friction, BallComesToRestAtZeroAndMoveBallKeepsItsSpin) {
    GameState g = emptyTable();
    putBall(g, 0, 600, 600, 20, 1);
    g.Balls[0].spinFollow = -50;
    moveBall(g, 0, 0.05);
    EXPECT_EQ(g.Balls[0].speed, 0);
    EXPECT_EQ(g.Balls[0].vx, 0);
    EXPECT_EQ(g.Balls[0].spinFollow, -50);
    const float restX = g.Balls[0].x;
    moveBall(g, 0, 0.05);
    moveBalls(g, 0.05);
    EXPECT_EQ(g.Balls[0].x, restX);
}

TEST(ContactTimes, CushionAndBallTimesAndTheCasesThatNeverMeet) {
    GameState g = emptyTable();
    putBall(g, 0, 2300, 600, 1000);
    EXPECT_FLOAT_EQ(timeToCushion(g, 0, kCushionRight), 0.05f);
    EXPECT_EQ(timeToCushion(g, 0, kCushionLeft), 100);
    EXPECT_EQ(timeToCushion(g, 0, kCushionTop), 100); // along the line: never across it
    g.Balls[0].x = 2360;
    EXPECT_EQ(timeToCushion(g, 0, kCushionRight), 0); // already beyond it

    putBall(g, 1, 1000, 600, 500);
    putBall(g, 2, 1300, 600, 500); // the same velocity: never meet
    EXPECT_EQ(timeToBall(g, 1, 2), 100);
    putBall(g, 3, 900, 600); // touching, and 1 moves away from it
    EXPECT_EQ(timeToBall(g, 1, 3), 100);
    putBall(g, 4, 800, 600, 1000); // 4 runs at 1 from 200 behind: touches after 0.2
    EXPECT_FLOAT_EQ(timeToBall(g, 4, 1), 0.2f);
    putBall(g, 5, 950, 610, 300); // overlapping 1 and closing: at once
    g.Balls[1].speed = g.Balls[1].vx = 0;
    EXPECT_EQ(timeToBall(g, 5, 1), 0);
    putBall(g, 6, 800, 750, 1000); // passes 150 to the side
    EXPECT_EQ(timeToBall(g, 6, 1), 100);
}

TEST(RunFrame, ContactExactlyAtTheEndOfTheFrameIsAnsweredInIt) {
    GameState g = emptyTable();
    RecordingContacts contacts;
    g.ports.contacts = &contacts;
    putBall(g, 0, 2300, 600, 1000);
    runFrame(g);
    ASSERT_EQ(contacts.seen.size(), 1u);
    EXPECT_EQ(contacts.seen[0].partner, kCushionRight);
    EXPECT_FLOAT_EQ(contacts.seen[0].time, 0.05f);
    EXPECT_LT(g.Balls[0].vx, 0);
    EXPECT_EQ(g.Balls[0].x, 2350);
}

TEST(RunFrame, TiesGoToTheLowestBallThenCushionBeforeBallThenTheLowerCushion) {
    {
        GameState g = emptyTable();
        RecordingContacts contacts;
        g.ports.contacts = &contacts;
        putBall(g, 2, 400, 1130, 1000, float(3.1415926 / 2));
        putBall(g, 1, 1000, 1130, 1000, float(3.1415926 / 2));
        g.Balls[1].vx = g.Balls[2].vx = 0; // both reach the top cushion at 0.02
        runFrame(g);
        ASSERT_EQ(contacts.seen.size(), 2u);
        EXPECT_EQ(contacts.seen[0].ball, 1);
        EXPECT_EQ(contacts.seen[1].ball, 2);
        EXPECT_EQ(contacts.seen[0].time, contacts.seen[1].time);
    }
    {
        GameState g = emptyTable();
        RecordingContacts contacts;
        g.ports.contacts = &contacts;
        // Ball 0 reaches the bottom cushion just as ball 1, faster behind it, catches it up.
        putBall(g, 0, 1000, 100, 1000, float(-3.1415926 / 2));
        putBall(g, 1, 1000, 250, 2000, float(-3.1415926 / 2));
        g.Balls[0].vx = g.Balls[1].vx = 0;
        runFrame(g);
        ASSERT_GE(contacts.seen.size(), 2u);
        EXPECT_EQ(contacts.seen[0].partner, kCushionBottom);
        EXPECT_EQ(contacts.seen[1].ball, 0);
        EXPECT_EQ(contacts.seen[1].partner, 1);
        EXPECT_EQ(contacts.seen[0].time, contacts.seen[1].time); // no time in between
    }
    {
        GameState g = emptyTable();
        RecordingContacts contacts;
        g.ports.contacts = &contacts;
        putBall(g, 0, 90, 90, 1000);
        g.Balls[0].vx = g.Balls[0].vy = -1000; // into the corner along the diagonal
        runFrame(g);
        expectOnlyCapture(contacts, kCushionLeft, 4);
    }
}

TEST(RunFrame, OverlappingClusterNeitherHangsNorGoesNaN) {
    GameState g = emptyTable();
    RecordingScreen screen;
    g.ports.screen = &screen;
    // Nine balls piled almost on one point, all closing: every contact comes at time 0.
    for (int n = 0; n < kBallCount; ++n) {
        const double a = n * 0.7;
        putBall(g, n, float(1200 + 3 * std::cos(a)), float(600 + 3 * std::sin(a)), 3000,
                float(a + 3.1415926));
    }
    putBall(g, 9, 1200, 600, 0); // and one dead in the middle
    for (int frame = 0; frame < 200 && !isAllStopped(g); ++frame)
        runFrame(g);
    EXPECT_TRUE(isAllStopped(g));
    for (const BallType& b : g.Balls) {
        EXPECT_TRUE(std::isfinite(b.x) && std::isfinite(b.y));
        EXPECT_TRUE(std::isfinite(b.vx) && std::isfinite(b.vy) && std::isfinite(b.speed));
    }
    EXPECT_GT(screen.yields, 0);
}

namespace {

// Puts the ball back beyond the right cushion, still running out, after every answer: an
// endless stream of contacts at time 0.
struct StubbornBall : ContactObserver {
    GameState* g = nullptr;
    int contacts = 0;
    void onContact(float, int ball, int, int) override {
        ++contacts;
        BallType& b = g->Balls[ball];
        b.x = 2360;
        b.angle = 0;
        b.vx = b.speed;
        b.vy = 0;
    }
};

} // namespace

TEST(RunFrame, PassesOfOneFrameAreBoundedAndTheFrameStillEnds) {
    GameState g = emptyTable();
    StubbornBall stubborn;
    stubborn.g = &g;
    g.ports.contacts = &stubborn;
    putBall(g, 0, 2360, 600, 1000);
    runFrame(g);
    EXPECT_EQ(stubborn.contacts, kMaxPassesPerFrame);
    // The whole frame's time was then spent without contacts.
    EXPECT_FLOAT_EQ(g.Balls[0].x, 2360 + 1000 * 0.05f);
    EXPECT_FLOAT_EQ(g.Balls[0].speed, float(1000 - 0.05 * 746.6666666666667));
}
