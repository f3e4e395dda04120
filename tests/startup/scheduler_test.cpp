// The scheduler of the six timers in virtual time.
#include "game/timers.h"
#include "rules/music.h"
#include "startup/scheduler.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

TEST(Scheduler, TimersStartOffWithTheirIntervals) {
    GameState g;
    initTimers(g);
    const int32_t expected[] = {50, 10, 100, 1000, 1000, 500};
    for (int i = 0; i < kTimerCount; ++i) {
        EXPECT_EQ(g.timers[i].interval, expected[i]);
        EXPECT_FALSE(g.timers[i].enabled);
    }
    EXPECT_EQ(nextDueTime(g), -1);
}

TEST(Scheduler, ATimerSwitchedOnCountsItsIntervalFromThatMoment) {
    GameState g;
    initTimers(g);
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

TEST(Scheduler, SwitchingAnEnabledTimerOnAgainDoesNotRestartIt) {
    GameState g;
    initTimers(g);
    setTimerEnabled(g, kTimTimeCounter, true);
    advanceVirtualTime(g, 600);
    setTimerEnabled(g, kTimTimeCounter, true);
    advanceVirtualTime(g, 1000);
    EXPECT_EQ(g.gameSeconds, 1);
}

TEST(Scheduler, ALateDriverFiresEachTimerOnceAndDoesNotMakeUpTheMissedTicks) {
    GameState g;
    initTimers(g);
    setTimerEnabled(g, kTimTimeCounter, true);
    runDueTimers(g, 4500); // the window was busy for four and a half seconds
    EXPECT_EQ(g.gameSeconds, 1);
    EXPECT_EQ(nextDueTime(g), 5500);
}

TEST(Scheduler, ATimerNeverFiresWhileItsOwnHandlerIsRunning) {
    GameState g;
    initTimers(g);
    setTimerEnabled(g, kTimTimeCounter, true);
    g.timers[kTimTimeCounter].running = true; // as under a modal form shown by its own handler
    advanceVirtualTime(g, 3000);
    EXPECT_EQ(g.gameSeconds, 0);
    g.timers[kTimTimeCounter].running = false;
    runDueTimers(g, 3000);
    EXPECT_EQ(g.gameSeconds, 1);
}

TEST(Scheduler, AdvanceUntilStopsAtTheFirstTickThatMeetsTheCondition) {
    GameState g;
    initTimers(g);
    setTimerEnabled(g, kTimTimeCounter, true);
    EXPECT_TRUE(advanceUntil(g, 60000, [&] { return g.gameSeconds == 3; }));
    EXPECT_EQ(g.nowMs, 3000);
    EXPECT_FALSE(advanceUntil(g, 3500, [&] { return g.gameSeconds == 9; }));
}

TEST(Scheduler, TheMusicTimerStartsTheMenuTrackHalfASecondInThenEveryThirtyAndAHalfSeconds) {
    struct : SoundPort {
        std::vector<std::pair<int64_t, std::string>> plays;
        const GameState* g = nullptr;
        void sendMusic(const std::string& command) override {
            if (command.rfind("play ", 0) == 0)
                plays.push_back({g->nowMs, command});
        }
    } music;
    GameState g;
    music.g = &g;
    g.ports.sound = &music;
    initTimers(g);
    initBgmTable(g);
    setTimerEnabled(g, kTimBGM, true);
    advanceVirtualTime(g, 92500);
    const std::vector<std::pair<int64_t, std::string>> expected = {{500, "play menu.mid"},
                                                                   {31500, "play menu.mid"},
                                                                   {62000, "play menu.mid"},
                                                                   {92500, "play menu.mid"}};
    EXPECT_EQ(music.plays, expected);
}

} // namespace
