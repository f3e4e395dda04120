#include "game/shot_input.h"
#include "game/view_coords.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morvane;

TEST(PowerBar, CaptionChangesOnlyWhenTheValueDoes) {
    GameState g;
    setPower(g, 100);
    EXPECT_EQ(g.controls.powerCaption, "POWER 100%"); // the form's own caption, one blank
    setPower(g, 99);
    EXPECT_EQ(g.controls.power, 99);
    EXPECT_EQ(g.controls.powerCaption, "POWER  99%");
    setPower(g, 100);
    EXPECT_EQ(g.controls.powerCaption, "POWER  100%");
    setPower(g, 20);
    EXPECT_EQ(g.controls.power, 35);
}

TEST(HitPoint, ClickPlacesTheDotAndSetsSpinByTheSquareOfTheOffset) {
    GameState g;
    picSetPoint_MouseDown(g, 45, 22.5f); // far right rim
    EXPECT_EQ(g.Balls[0].spinSide, 1);
    EXPECT_EQ(g.Balls[0].spinFollow, 0);
    EXPECT_EQ(g.controls.pointLeft, 40);
    EXPECT_EQ(g.controls.pointTop, 20);

    picSetPoint_MouseDown(g, 22.5f, 0); // top rim: follow
    EXPECT_FLOAT_EQ(g.Balls[0].spinFollow, 1);
    EXPECT_NEAR(g.Balls[0].spinSide, 0, 1e-6);

    picSetPoint_MouseDown(g, 22.5f, 32.5f); // half way down: a quarter of the draw
    EXPECT_FLOAT_EQ(g.Balls[0].spinFollow, -0.25f);

    picSetPoint_MouseDown(g, 0, 22.5f); // beyond the left rim counts as on it
    EXPECT_FLOAT_EQ(g.Balls[0].spinSide, -1);
    EXPECT_NEAR(g.controls.pointLeft, 0, 1e-5);
}

TEST(HitPoint, ClickNearTheCentreIsADeadCentreHit) {
    GameState g;
    picSetPoint_MouseDown(g, 40, 10);
    picSetPoint_MouseDown(g, 23.5f, 23.5f); // 1.41 pixels from the middle
    EXPECT_EQ(g.Balls[0].spinSide, 0);
    EXPECT_EQ(g.Balls[0].spinFollow, 0);
    EXPECT_EQ(g.controls.pointLeft, 20);
    EXPECT_EQ(g.controls.pointTop, 20);
}

TEST(BreakSwing, AimsOnACircleAroundTheFootSpotWithTheMarkerTenUnitsNearer) {
    GameState g;
    SeededRandom random(7);
    g.ports.random = &random;
    float largestSwing = 0;
    for (int tick = 1; tick <= 40; ++tick) {
        Timer2_Timer(g);
        const double dx = double(g.aimX) - 1800;
        const double dy = double(g.aimY) - 600;
        EXPECT_NEAR(std::hypot(dx, dy), 100, 1e-3) << "tick " << tick;
        // The marker shows the swing without its jitter, ten units to the head's side.
        const double swing = g.swingPhase;
        const double d = 3.1415926 / 5.6 * std::sin(swing);
        const float markerX = float(1800 - 100 * std::cos(d) - 10);
        const float markerY = float(600 + 100 * std::sin(d));
        EXPECT_FLOAT_EQ(g.controls.target.left, tableToPixelX(markerX) - 10);
        EXPECT_FLOAT_EQ(g.controls.target.top, tableToPixelY(markerY) - 10);
        // The stored aim differs from the swing by the jitter, at most a quarter of a degree.
        const double stored = std::atan2(dy, -dx);
        EXPECT_LE(std::fabs(stored - d), 3.1415926 / 720 + 1e-5);
        largestSwing = std::max(largestSwing, float(std::fabs(d)));
    }
    EXPECT_NEAR(largestSwing, 3.1415926 / 5.6, 1e-6); // a full swing in 40 ticks
    EXPECT_NEAR(g.swingPhase, 2 * 3.1415926, 1e-5);
}
