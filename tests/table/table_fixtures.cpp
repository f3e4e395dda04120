#include "table_fixtures.h"

#include <gtest/gtest.h>

#include <cmath>

namespace morvane::testing {

void putBall(GameState& g, int n, float x, float y, float speed, float angle) {
    BallType& b = g.Balls[n];
    b = BallType{};
    b.x = x;
    b.y = y;
    b.onTable = true;
    b.speed = speed;
    b.angle = angle;
    b.vx = float(std::cos(angle) * speed);
    b.vy = float(std::sin(angle) * speed);
}

void expectOnlyCapture(const RecordingContacts& contacts, int cushion, int pocket) {
    ASSERT_EQ(contacts.seen.size(), 1u);
    EXPECT_EQ(contacts.seen[0].partner, cushion);
    EXPECT_EQ(contacts.seen[0].pocket, pocket);
}

} // namespace morvane::testing
