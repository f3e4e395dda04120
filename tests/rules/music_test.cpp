// The music timer ticking in virtual time: which track opens and plays when, and how a rolling
// ball holds it back.
#include "game/timers.h"
#include "rules/music.h"
#include "rules/scenes.h"
#include "support/recording_sound.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

namespace {

const std::vector<std::string> kCloseAll = {"close menu.mid", "close record.mid", "close game1.mid",
                                            "close game2.mid", "close game3.mid"};

std::vector<std::string> closeAllThenPlay(const std::string& file) {
    std::vector<std::string> commands = kCloseAll;
    commands.insert(commands.end(), {"open " + file, "play " + file});
    return commands;
}

class Music : public ::testing::Test {
  protected:
    GameState g;
    RecordingSound sound;

    void SetUp() override {
        g.ports.sound = &sound;
        setTimerInterval(g, kTimBGM, 500);
        setTimerEnabled(g, kTimBGM, true);
        initBgmTable(g);
        tick();
    }
    // One tick, and the music commands it sent.
    std::vector<std::string> tick() {
        sound.music.clear();
        timBGM_Timer(g);
        return sound.music;
    }
    // Ticks until a track is opened again; gives bgmTicks as that tick found it.
    int ticksWhenReopened() {
        for (int n = 0; n < 1000; ++n) {
            const int before = g.bgmTicks;
            if (tick().size() > kCloseAll.size())
                return before;
        }
        return -1;
    }
};

TEST_F(Music, ASceneChangeClosesEverythingAndStartsTheLastSceneSetAtTheNextTick) {
    setMusicScene(g, kSceneSolo);
    EXPECT_EQ(tick(), closeAllThenPlay("game1.mid"));
    setMusicScene(g, kSceneMenu);
    setMusicScene(g, kSceneVersusCpu);
    EXPECT_EQ(tick(), closeAllThenPlay("game2.mid"));
}

TEST_F(Music, ATrackPlaysAgainOnTheTickThatFindsSixtyOneTicksCountedUnlessABallRolls) {
    EXPECT_EQ(ticksWhenReopened(), 61) << "30 seconds is not above 30";
    EXPECT_EQ(sound.music, closeAllThenPlay("menu.mid"));
    EXPECT_EQ(g.bgmTicks, 1) << "started afresh, then counted";

    while (g.bgmTicks < 61) // and every 30 seconds after that, while no ball rolls
        tick();
    g.Balls[kCueBall].speed = 300;
    for (int n = 0; n < 10; ++n)
        EXPECT_EQ(tick(), kCloseAll) << "tick " << n;
    g.Balls[kCueBall].speed = 0;
    EXPECT_EQ(ticksWhenReopened(), 71);
}

} // namespace
