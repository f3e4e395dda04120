#include "game/sounds.h"
#include "support/recording_sound.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

namespace {

struct SoundCase {
    float speed;
    const char* file; // nullptr: silence
};

void expectSounds(void (*play)(GameState&, float), const std::vector<SoundCase>& cases) {
    for (const SoundCase& c : cases) {
        GameState g;
        RecordingSound sound;
        g.ports.sound = &sound;
        g.shotCount = 3;
        play(g, c.speed);
        if (c.file == nullptr) {
            EXPECT_TRUE(sound.played.empty()) << "speed " << c.speed;
        } else {
            ASSERT_EQ(sound.played.size(), 1u) << "speed " << c.speed;
            EXPECT_EQ(sound.played[0].first, c.file) << "speed " << c.speed;
        }
    }
}

} // namespace

TEST(Sounds, ContactClickByShareOfFullPowerWithInclusiveTops) {
    expectSounds(playContactSound, {{0, "vmin.wav"},
                                    {1680, "vmin.wav"}, // exactly 0.3
                                    {1681, "vmid.wav"},
                                    {3360, "vmid.wav"}, // exactly 0.6
                                    {3361, "vmax.wav"},
                                    {28000, "vmax.wav"},
                                    {28010, nullptr},
                                    {-5, nullptr}});
}

TEST(Sounds, CushionAndPocketHaveAFloorOfOneHundredth) {
    expectSounds(
        playCushionSound,
        {{56, "meetwall.wav"}, {55.9f, nullptr}, {56000, "meetwall.wav"}, {56100, nullptr}});
    expectSounds(playPocketSound,
                 {{56, "drop.wav"}, {55, nullptr}, {5600, "drop.wav"}, {5601, nullptr}});
}

struct SoundsHeard : ::testing::Test {
    GameState g;
    RecordingSound sound;
    void SetUp() override { g.ports.sound = &sound; }
};

TEST_F(SoundsHeard, BreakClicksLetEachOtherFinishAndLaterOnesCutOff) {
    g.shotCount = 1;
    playContactSound(g, 100);
    g.shotCount = 2;
    playContactSound(g, 100);
    playCushionSound(g, 100);
    ASSERT_EQ(sound.played.size(), 3u);
    EXPECT_EQ(sound.played[0].second, 0x11);
    EXPECT_EQ(sound.played[1].second, 1);
    EXPECT_EQ(sound.played[2].second, 1);
}

TEST_F(SoundsHeard, SoundOffSilencesAllThree) {
    g.soundOn = 0;
    playContactSound(g, 1000);
    playCushionSound(g, 1000);
    playPocketSound(g, 5600);
    EXPECT_TRUE(sound.played.empty());
}
