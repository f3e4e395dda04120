// The music timer ticking in virtual time: which track opens and plays when, what the caption
// says, and how a rolling ball and the music switch hold it back.
#include "game/sounds.h"
#include "game/timers.h"
#include "rules/music.h"
#include "rules/scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace morvane;

namespace {

// Plays the way the media commands do: a track sounds from "play" until its "close", and
// commands for a track that is not open do nothing.
class TunePlayer : public SoundPort {
  public:
    std::vector<std::string> commands;
    std::vector<std::string> effects;
    std::set<std::string> open;
    std::string playing; // empty: silence

    void sendMusic(const std::string& command) override {
        commands.push_back(command);
        const std::string verb = command.substr(0, command.find(' '));
        const std::string file = command.substr(command.find(' ') + 1);
        if (verb == "open")
            open.insert(file);
        else if (verb == "play" && open.count(file))
            playing = file;
        else if (verb == "close" && open.erase(file) && playing == file)
            playing.clear();
    }
    void playEffect(const std::string& file, int) override { effects.push_back(file); }

    int timesOpened(const std::string& file) const {
        return int(std::count(commands.begin(), commands.end(), "open " + file));
    }
};

const std::vector<std::string> kCloseAll = {"close menu.mid", "close record.mid", "close game1.mid",
                                            "close game2.mid", "close game3.mid"};

class Music : public ::testing::Test {
  protected:
    GameState g;
    TunePlayer player;

    void SetUp() override {
        g.ports.sound = &player;
        setTimerInterval(g, kTimBGM, 500);
        setTimerEnabled(g, kTimBGM, true);
        initBgmTable(g);
    }
    // One tick, and the commands it sent.
    std::vector<std::string> tick() {
        player.commands.clear();
        timBGM_Timer(g);
        return player.commands;
    }
    // Ticks until the track of `file` is opened again; returns bgmTicks as that tick found it.
    int ticksWhenReopened(const std::string& file) {
        for (int n = 0; n < 1000; ++n) {
            const int before = g.bgmTicks;
            tick();
            if (player.timesOpened(file) > 0)
                return before;
        }
        return -1;
    }
    void rollCueBall(float speed) { g.Balls[kCueBall].speed = speed; }
};

TEST_F(Music, ASceneChangeClosesEverythingAndStartsTheNewTrackAtTheNextTick) {
    tick();
    setMusicScene(g, kSceneSolo);
    std::vector<std::string> expected = kCloseAll;
    expected.insert(expected.end(), {"open game1.mid", "play game1.mid"});
    EXPECT_EQ(tick(), expected);
    EXPECT_EQ(g.controls.windowCaption,
              "MORVANE Ver.3.02 by zeph --- BGM:\"A Scent of Wind\" by lirra");

    tick();
    setMusicScene(g, kSceneMenu);
    tick();
    EXPECT_EQ(player.playing, "menu.mid");
    EXPECT_EQ(player.open, std::set<std::string>{"menu.mid"});
    EXPECT_EQ(g.bgmTicks, 0);
}

TEST_F(Music, OfTwoSceneChangesWithinOneTickOnlyTheSecondIsPlayed) {
    tick();
    setMusicScene(g, kSceneSolo);
    setMusicScene(g, kSceneVersusCpu);
    tick();
    EXPECT_EQ(player.timesOpened("game1.mid"), 0);
    EXPECT_EQ(player.playing, "game2.mid");
    EXPECT_EQ(g.controls.windowCaption,
              "MORVANE Ver.3.02 by zeph --- BGM:\"Sweet Dreams\" by lirra");
}

TEST_F(Music, ATrackPlaysAgainOnTheTickThatFindsSixtyOneTicksCounted) {
    tick();
    EXPECT_EQ(ticksWhenReopened("menu.mid"), 61) << "30 seconds is not above 30";
    std::vector<std::string> expected = kCloseAll;
    expected.insert(expected.end(), {"open menu.mid", "play menu.mid"});
    EXPECT_EQ(player.commands, expected);
    EXPECT_EQ(g.bgmTicks, 1) << "started afresh, then counted";
    EXPECT_EQ(ticksWhenReopened("menu.mid"), 61) << "and every 30 seconds after that";
}

TEST_F(Music, ARollingBallHoldsTheRestartBackInSilence) {
    tick();
    while (g.bgmTicks < 61)
        tick();
    rollCueBall(300);
    for (int n = 0; n < 10; ++n)
        EXPECT_EQ(tick(), kCloseAll) << "tick " << n;
    EXPECT_EQ(player.playing, "");
    EXPECT_EQ(g.bgmTicks, 71);

    rollCueBall(0);
    EXPECT_EQ(tick().back(), "play menu.mid");
    EXPECT_EQ(player.playing, "menu.mid");
    EXPECT_EQ(g.bgmTicks, 1);
}

TEST_F(Music, OffAndOnAgainDuringAGameGivesTheMenuTrack) {
    tick();
    setMusicScene(g, kSceneSolo);
    tick();
    switchMusicOff(g);
    EXPECT_EQ(player.playing, "");
    EXPECT_TRUE(player.open.empty());
    EXPECT_EQ(g.controls.windowCaption,
              "MORVANE Ver.3.02 by zeph --- BGM:\"A Scent of Wind\" by lirra")
        << "the caption keeps the last title";

    setMusicScene(g, kSceneRecords); // written, but no tick acts on it while off
    switchMusicOn(g);
    tick();
    EXPECT_EQ(player.playing, "menu.mid");
    EXPECT_EQ(player.timesOpened("record.mid"), 0);
}

TEST_F(Music, EffectsOffLeavesTheMusicPlaying) {
    g.soundOn = 0;
    g.shotCount = 2;
    playContactSound(g, 2000);
    playCushionSound(g, 2000);
    playPocketSound(g, 5600);
    tick();
    EXPECT_TRUE(player.effects.empty());
    EXPECT_EQ(player.playing, "menu.mid");
}

} // namespace
