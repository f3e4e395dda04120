// Hundreds of seeded demo games through the headless session, the table checked after every shot.
#include "sim/demo_command.h"
#include "support/temp_home.h"
#include "table/constants.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::sim;

namespace {

constexpr int kGamesALevel = 60;

void expectSaneTable(const GameState& g, int shotsSeen) {
    for (int n = 0; n < kBallCount; ++n) {
        const BallType& b = g.Balls[n];
        ASSERT_FALSE(std::isnan(b.x) || std::isnan(b.y) || std::isnan(b.speed)) << "ball " << n;
        EXPECT_EQ(b.speed, 0) << "ball " << n << " at rest";
        EXPECT_TRUE(!b.onTable || (b.x >= kCushionLeftX && b.x <= kCushionRightX &&
                                   b.y >= kCushionBottomY && b.y <= kCushionTopY))
            << "ball " << n << " at " << b.x << ", " << b.y;
    }
    EXPECT_TRUE(g.Balls[kNineBall].onTable) << "the nine stands until the shot that ends the game";
    EXPECT_EQ(g.shotCount, shotsSeen);
    EXPECT_LE(g.foulCount, g.turnCount);
    EXPECT_LE(g.turnCount, g.shotCount);
}

TEST(ManyDemoGames, AllEndWithTheTableSaneAfterEveryShot) {
    const morvane::testing::TempHome home;
    for (int level = 1; level <= 11; ++level) {
        HeadlessSession session{uint64_t(level)};
        session.g.zephLevel = int16_t(level);
        StrategyTally tally;
        for (int k = 0; k < kGamesALevel; ++k) {
            int shots = 0;
            int racks = 0;
            const DemoGame game = playDemoGame(session, tally, [&](const GameState& g) {
                if (g.breakPending) { // thirty shots without a pot: a fresh rack
                    ++racks;
                    shots = 0;
                    EXPECT_EQ(g.shotCount, 0);
                    return;
                }
                expectSaneTable(g, ++shots);
            });
            ASSERT_TRUE(game.ended) << "level " << level << " game " << k;
            EXPECT_EQ(game.rackedAnew, racks);
            EXPECT_EQ(game.shown.shots, shots + 1) << "the last shot ends the game";
            EXPECT_EQ(session.g.zephLevel, level) << "the demo never changes the level";
        }
    }
}

} // namespace
