// The scheduler of the six timers in virtual time.
#include "game/timers.h"
#include "startup/scheduler.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

// The timers as the program starts them, with the game clock's one second timer running.
class Scheduler : public ::testing::Test {
  protected:
    GameState g;
    void SetUp() override {
        initTimers(g);
        setTimerEnabled(g, kTimTimeCounter, true);
    }
};

TEST_F(Scheduler, ATimerSwitchedOnCountsItsIntervalFromThatMoment) {
    setTimerEnabled(g, kTimTimeCounter, false);
    advanceVirtualTime(g, 730);
    setTimerEnabled(g, kTimTimeCounter, true);
    EXPECT_EQ(nextDueTime(g), 1730);
    advanceVirtualTime(g, 1729);
    EXPECT_EQ(g.gameSeconds, 0);
    advanceVirtualTime(g, 1730);
    EXPECT_EQ(g.gameSeconds, 1);
    advanceVirtualTime(g, 5730);
    EXPECT_EQ(g.gameSeconds, 5);
}

TEST_F(Scheduler, SwitchingAnEnabledTimerOnAgainDoesNotRestartIt) {
    advanceVirtualTime(g, 600);
    setTimerEnabled(g, kTimTimeCounter, true);
    advanceVirtualTime(g, 1000);
    EXPECT_EQ(g.gameSeconds, 1);
}

TEST_F(Scheduler, ALateDriverFiresEachTimerOnceAndDoesNotMakeUpTheMissedTicks) {
    runDueTimers(g, 2000); // a whole second late: one tick, and the next a second on
    EXPECT_EQ(g.gameSeconds, 1);
    EXPECT_EQ(nextDueTime(g), 3000);
    runDueTimers(g, 6500); // the window was busy for three and a half seconds
    EXPECT_EQ(g.gameSeconds, 2);
    EXPECT_EQ(nextDueTime(g), 7500);
}

TEST_F(Scheduler, ATimerNeverFiresWhileItsOwnHandlerIsRunning) {
    g.timers[kTimTimeCounter].running = true; // as under a modal form shown by its own handler
    advanceVirtualTime(g, 3000);
    EXPECT_EQ(g.gameSeconds, 0);
    g.timers[kTimTimeCounter].running = false;
    runDueTimers(g, 3000);
    EXPECT_EQ(g.gameSeconds, 1);
}

TEST_F(Scheduler, AdvanceUntilStopsAtTheFirstTickThatMeetsTheCondition) {
    EXPECT_TRUE(advanceUntil(g, 60000, [&] { return g.gameSeconds == 3; }));
    EXPECT_EQ(g.nowMs, 3000);
    EXPECT_FALSE(advanceUntil(g, 3500, [&] { return g.gameSeconds == 9; }));
}

} // namespace
