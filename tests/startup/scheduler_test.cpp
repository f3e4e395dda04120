// The scheduler of the six timers in virtual time.
#include "game/shot_input.h"
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

TEST_F(Scheduler, ALateDriverFiresEachTimerOnceAndDoesNotMakeUpTheMissedTicks) {
    runDueTimers(g, 2000); // a whole second late: one tick, and the next a second on
    EXPECT_TRUE(g.gameSeconds == 1 && nextDueTime(g) == 3000);
    runDueTimers(g, 6500);
    EXPECT_TRUE(g.gameSeconds == 2 && nextDueTime(g) == 7500);
}

TEST_F(Scheduler, ATimerNeverFiresWhileItsOwnHandlerIsRunning) {
    g.timers[kTimTimeCounter].running = true; // as under a modal form shown by its own handler
    advanceVirtualTime(g, 3000);
    EXPECT_EQ(g.gameSeconds, 0);
    g.timers[kTimTimeCounter].running = false;
    runDueTimers(g, 3000);
    EXPECT_EQ(g.gameSeconds, 1);
}

// A solo game waiting for its break, with the menu over the table or not, from time 0; the
// idle count ticks as it does in every mode.
struct Swing {
    GameState g;
    SeededRandom random{11};
    explicit Swing(bool underMenu) {
        g.ports.random = &random;
        g.gameMode = kModeSolo;
        initTimers(g);
        setTimerEnabled(g, kTimer2, true);
        setTimerEnabled(g, kTimDemo, true);
        g.controls.menuVisible = underMenu;
    }
    // The menu goes at `atMs` and the swing is left to run until `untilMs`.
    Swing& showTableAt(int64_t atMs, int64_t untilMs) {
        advanceVirtualTime(g, atMs);
        g.controls.menuVisible = false;
        advanceVirtualTime(g, untilMs);
        return *this;
    }
};

TEST(BreakSwingRest, UnderTheMenuTheRecordScreenOrMinimisedTheSwingNeitherFiresNorWakesAnyone) {
    Swing shown(false);
    advanceVirtualTime(shown.g, 1000);
    EXPECT_EQ(nextDueTime(shown.g), 1010) << "on the table it swings every 10 ms";
    for (int cover = 0; cover < 3; ++cover) {
        Swing rest(cover == 0);
        rest.g.controls.scoreVisible = cover == 1;
        rest.g.controls.mainWindowMinimised = cover == 2;
        const float aimX = rest.g.aimX;
        EXPECT_EQ(nextDueTime(rest.g), 1000); // the idle count is the only timer due
        advanceVirtualTime(rest.g, 5000);
        EXPECT_TRUE(rest.g.swingPhase == 0 && rest.g.aimX == aimX);
        EXPECT_TRUE(isTimerEnabled(rest.g, kTimer2)); // it rests, it isn't off
    }
}

TEST(BreakSwingRest, BackOnTheTableTheSwingGoesOnAsIfItHadSwungAllAlong) {
    const GameState rested = Swing(true).showTableAt(30007, 30500).g;
    const GameState swung = Swing(false).showTableAt(30007, 30500).g;
    EXPECT_EQ(rested.swingPhase, swung.swingPhase); // to the bit, rounding step by step
    EXPECT_EQ(nextDueTime(rested), 30510);
    EXPECT_EQ(rested.timers[kTimer2].dueAt, swung.timers[kTimer2].dueAt);
    // How long the menu stood decides where the break swings from.
    const float shorter = Swing(true).showTableAt(30000, 30000).g.swingPhase;
    EXPECT_NE(shorter, Swing(true).showTableAt(30010, 30010).g.swingPhase);
    EXPECT_NE(shorter, 0);

    GameState huge;
    huge.swingPhase = 1 << 23; // a step rounds to nothing at this size: the carrying on stops
    carrySwingOn(huge, int64_t(1) << 40);
    EXPECT_EQ(huge.swingPhase, float(1 << 23));
}

// A window wakes for the swing once a frame, and each wake runs the ticks due by then: the
// marker stands where a tick by tick run has it, and the other timers wake on time.
TEST(BreakSwingFrames, TheWindowWakesForTheSwingOnceAFrameAndTheSwingKeepsItsPace) {
    Swing paced(false);
    Swing ticked(false);
    int wakes = 0;
    for (int64_t at = nextFrameWakeTime(paced.g); at <= 1000; at = nextFrameWakeTime(paced.g)) {
        runDueTimers(paced.g, at);
        advanceVirtualTime(ticked.g, at);
        EXPECT_EQ(paced.g.swingPhase, ticked.g.swingPhase) << at;
        EXPECT_TRUE(paced.g.controls.target == ticked.g.controls.target) << at;
        ++wakes;
    }
    EXPECT_EQ(wakes, 50) << "a wake every second tick, the idle count's at 1000 among them";
    EXPECT_EQ(nextDueTime(paced.g), 1010);
}

} // namespace
