#include "support/balls.h"
#include "support/recording_contacts.h"
#include "table/contact_times.h"
#include "table/launch.h"
#include "table/motion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <tuple>

using namespace morvane;
using namespace morvane::testing;

TEST(Launch, SpeedIs56APercentAndAFifthMoreOnTheBreakTowardsTheAim) {
    struct Case {
        int16_t power;
        bool isBreak;
        float speed;
    };
    for (const Case c : {Case{35, false, 1960}, Case{100, false, 5600}, Case{100, true, 6720}}) {
        BallArray balls = emptyTable();
        putBall(balls, 0, 600, 600);
        launchCueBall(balls[0], 600, 700, c.power, c.isBreak);
        EXPECT_EQ(balls[0].speed, c.speed) << c.power << (c.isBreak ? " on the break" : "");
        EXPECT_EQ(balls[0].angle, float(3.1415926 / 2));
        EXPECT_EQ(balls[0].vy, c.speed);
    }
}

TEST(Friction, SlowsInTwoStagesChosenAtTheStartOfTheStepAndStopsAtZero) {
    BallArray balls = emptyTable();
    putBall(balls, 0, 600, 600, 2000);
    balls[0].spinFollow = 300;
    moveBalls(balls, 0.05);
    EXPECT_EQ(balls[0].speed, float(2000 - 0.05 * 1866.6666666666667));
    EXPECT_EQ(balls[0].x, 700); // moved at the speed from before the step
    EXPECT_EQ(balls[0].prevX, 600);
    EXPECT_EQ(balls[0].spinFollow, 300); // still fast: follow kept

    balls[0].speed = 1680;
    moveBalls(balls, 0.05);
    EXPECT_EQ(balls[0].speed, float(1680 - 0.05 * 746.6666666666667));
    EXPECT_EQ(balls[0].spinFollow, 0); // at the boundary the follow is gone

    putBall(balls, 1, 600, 600, 20, 1);
    balls[1].spinFollow = -50;
    moveBall(balls[1], 0.05);
    EXPECT_EQ(balls[1].speed, 0);
    EXPECT_EQ(balls[1].vx, 0);
    EXPECT_EQ(balls[1].spinFollow, -50) << "moveBall keeps the spin";
}

TEST(ContactTimes, CushionAndBallTimesAndTheCasesThatNeverMeetAndAContactAtTheFramesEnd) {
    BallArray balls = emptyTable();
    putBall(balls, 0, 2300, 600, 1000);
    EXPECT_FLOAT_EQ(timeToCushion(balls[0], kCushionRight), 0.05f);
    RecordingContacts atTheEnd; // the frame answers a contact exactly at its end
    BallArray frame = balls;
    runFrame(frame, atTheEnd);
    expectOnlyCapture(atTheEnd, kCushionRight, 0);
    EXPECT_FLOAT_EQ(atTheEnd.seen[0].time, 0.05f);
    EXPECT_EQ(frame[0].x, 2350);
    EXPECT_LT(frame[0].vx, 0);
    EXPECT_EQ(timeToCushion(balls[0], kCushionLeft), 100);
    EXPECT_EQ(timeToCushion(balls[0], kCushionTop), 100); // along the line: never across it
    balls[0].x = 2360;
    EXPECT_EQ(timeToCushion(balls[0], kCushionRight), 0); // already beyond it

    putBall(balls, 1, 1000, 600, 500);
    putBall(balls, 2, 1300, 600, 500); // the same velocity: never meet
    EXPECT_EQ(timeToBall(balls[1], balls[2]), 100);
    putBall(balls, 3, 900, 600); // touching, and 1 moves away from it
    EXPECT_EQ(timeToBall(balls[1], balls[3]), 100);
    putBall(balls, 4, 800, 600, 1000); // 4 runs at 1 from 200 behind: touches after 0.2
    EXPECT_FLOAT_EQ(timeToBall(balls[4], balls[1]), 0.2f);
    putBall(balls, 5, 950, 610, 300); // overlapping 1 and closing: at once
    balls[1].speed = balls[1].vx = 0;
    EXPECT_EQ(timeToBall(balls[5], balls[1]), 0);
    putBall(balls, 7, 800, 700, 1000); // passes exactly 100 to the side: a graze is no touch
    EXPECT_EQ(timeToBall(balls[7], balls[1]), 100);
}

TEST(RunFrame, TiesGoToTheLowestBallThenCushionBeforeBallThenTheLowerCushion) {
    const float up = float(3.1415926 / 2);
    // Each table runs one frame and gives what it saw.
    const auto frameOf = [](BallArray balls) {
        RecordingContacts contacts;
        runFrame(balls, contacts);
        return contacts;
    };
    BallArray balls = emptyTable();
    putBall(balls, 2, 400, 1130, 1000, up); // both reach the top cushion at 0.02
    putBall(balls, 1, 1000, 1130, 1000, up);
    const RecordingContacts both = frameOf(balls);
    ASSERT_EQ(both.seen.size(), 2u);
    EXPECT_EQ(both.seen[0].ball, 1);

    balls = emptyTable(); // 0 reaches the bottom cushion just as 1, faster, catches it up
    putBall(balls, 0, 1000, 100, 1000, -up);
    putBall(balls, 1, 1000, 250, 2000, -up);
    const RecordingContacts caughtUp = frameOf(balls);
    ASSERT_GE(caughtUp.seen.size(), 2u);
    EXPECT_EQ(caughtUp.seen[0].partner, kCushionBottom);
    EXPECT_EQ(caughtUp.seen[1].partner, 1);

    balls = emptyTable();
    putBall(balls, 0, 90, 90, 1000);
    balls[0].vx = balls[0].vy = -1000; // into the corner along the diagonal
    expectOnlyCapture(frameOf(balls), kCushionLeft, 4);
}

TEST(RunFrame, OverlappingClusterNeitherHangsNorGoesNaN) {
    BallArray balls = emptyTable();
    RecordingContacts contacts;
    // Nine balls piled almost on one point, all closing: every contact comes at time 0.
    for (int n = 0; n < kBallCount; ++n) {
        const double a = n * 0.7;
        putBall(balls, n, float(1200 + 3 * std::cos(a)), float(600 + 3 * std::sin(a)), 3000,
                float(a + 3.1415926));
    }
    putBall(balls, 9, 1200, 600, 0);
    for (int frame = 0; frame < 200 && !isAllStopped(balls); ++frame)
        runFrame(balls, contacts);
    EXPECT_TRUE(isAllStopped(balls));
    for (const BallType& b : balls)
        EXPECT_TRUE(std::isfinite(b.x) && std::isfinite(b.y) && std::isfinite(b.speed));
}

TEST(NextContact, AgreesWithAskingEveryPairOfRandomTables) {
    const auto askEveryPair = [](const BallArray& balls) {
        NextContact next;
        for (int i = 0; i < kBallCount; ++i) {
            if (!isMoving(balls[i]))
                continue;
            for (int c = kCushionLeft; c <= kCushionBottom; ++c)
                next.offer(timeToCushion(balls[i], c), i, c);
            for (int j = 0; j < kBallCount; ++j) {
                if (j != i && balls[j].onTable)
                    next.offer(timeToBall(balls[i], balls[j]), i, j);
            }
        }
        return next;
    };
    std::mt19937 random(5);
    std::uniform_real_distribution<float> x(50, 2350), y(50, 1150), speed(-500, 8000), turn(-4, 4);
    int withinFrame = 0;
    for (int table = 0; table < 3000; ++table) {
        BallArray balls = emptyTable();
        for (int n = 0; n < kBallCount; ++n) {
            putBall(balls, n, x(random), y(random), speed(random), turn(random));
            balls[n].onTable = n % 7 != table % 7;
        }
        const float timeLeft = table % 2 ? 0.05f : 0.002f;
        const NextContact all = askEveryPair(balls);
        const NextContact found = findNextContact(balls, timeLeft);
        SCOPED_TRACE(table);
        if (all.time > timeLeft) {
            EXPECT_GT(found.time, timeLeft);
            continue;
        }
        ++withinFrame;
        EXPECT_EQ(std::tie(found.time, found.ball, found.partner),
                  std::tie(all.time, all.ball, all.partner));
    }
    EXPECT_GT(withinFrame, 500); // the tables give contacts to compare, not only misses
}

TEST(NextContact, BallFarBeyondACushionLineMeetsItAtOnceHoweverSlow) {
    struct Beyond {
        float x, y, vx, vy;
        int cushion;
    };
    const Beyond cases[] = {{-100, 600, -20, 0, kCushionLeft},
                            {2500, 600, 20, 0, kCushionRight},
                            {1200, 1300, 0, 20, kCushionTop},
                            {1200, -100, 0, -20, kCushionBottom}};
    for (const Beyond& c : cases) {
        BallArray balls = emptyTable();
        putBall(balls, 3, c.x, c.y, 20);
        balls[3].vx = c.vx;
        balls[3].vy = c.vy;
        const NextContact next = findNextContact(balls, 0.05f);
        EXPECT_EQ(next.time, 0) << c.cushion;
        EXPECT_EQ(next.ball, 3) << c.cushion;
        EXPECT_EQ(next.partner, c.cushion);
    }
}
