// Small tables of balls for the motion engine.
#pragma once

#include "support/recording_contacts.h"
#include "table/ball.h"

#include <gtest/gtest.h>

#include <cmath>

namespace morvane::testing {

// A table with every ball off it; balls are then put on one by one.
inline BallArray emptyTable() {
    BallArray balls{};
    for (BallType& b : balls)
        b.onTable = false;
    return balls;
}

// The frame saw one contact only: this ball taken by this pocket from this cushion.
inline void expectOnlyCapture(const RecordingContacts& contacts, int cushion, int pocket) {
    ASSERT_EQ(contacts.seen.size(), 1u);
    EXPECT_EQ(contacts.seen[0].partner, cushion);
    EXPECT_EQ(contacts.seen[0].pocket, pocket);
}

// Ball n on the table at (x, y), rolling at speed in direction angle, with no spin.
inline void putBall(BallArray& balls, int n, float x, float y, float speed = 0, float angle = 0) {
    BallType& b = balls[n];
    b = BallType{};
    b.x = x;
    b.y = y;
    b.onTable = true;
    b.speed = speed;
    b.angle = angle;
    b.vx = float(std::cos(angle) * speed);
    b.vy = float(std::sin(angle) * speed);
}

} // namespace morvane::testing
