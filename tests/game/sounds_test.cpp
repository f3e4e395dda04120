#include "game/sounds.h"
#include "support/recording_sound.h"

#include <gtest/gtest.h>

using namespace morvane;
using namespace morvane::testing;

namespace {

struct SoundsHeard : ::testing::Test {
    GameState g;
    RecordingSound sound;
    void SetUp() override {
        g.ports.sound = &sound;
        g.shotCount = 3;
    }
    // What one sound at this speed played: its file, or "" for silence.
    std::string heard(void (*play)(GameState&, float), float speed) {
        sound.played.clear();
        play(g, speed);
        return sound.played.empty() ? "" : sound.played.at(0).first;
    }
};

} // namespace

TEST_F(SoundsHeard, ContactClickByShareOfFullPowerWithInclusiveTopsAndFloorsForTheOthers) {
    using Heard = std::pair<float, const char*>;
    for (const auto& [speed, file] :
         {Heard{1680, "vmin.wav"}, {1681, "vmid.wav"}, {3361, "vmax.wav"}, {28010, ""}, {-5, ""}})
        EXPECT_EQ(heard(playContactSound, speed), file) << speed;
    for (const auto& [speed, file] : {Heard{55.9f, ""}, {56000, "meetwall.wav"}, {56100, ""}})
        EXPECT_EQ(heard(playCushionSound, speed), file) << speed;
    for (const auto& [speed, file] : {Heard{55, ""}, {56, "drop.wav"}, {5601, ""}})
        EXPECT_EQ(heard(playPocketSound, speed), file) << speed;
}

TEST_F(SoundsHeard, BreakClicksLetEachOtherFinishLaterOnesCutOffAndSoundOffSilencesAll) {
    g.shotCount = 1;
    playContactSound(g, 100);
    g.shotCount = 2;
    playContactSound(g, 100);
    playCushionSound(g, 100);
    ASSERT_EQ(sound.played.size(), 3u);
    EXPECT_EQ(std::tie(sound.played[0].second, sound.played[1].second, sound.played[2].second),
              std::tuple(0x11, 1, 1));

    sound.played.clear(); // and sound off silences all three
    g.soundOn = 0;
    playContactSound(g, 1000);
    playCushionSound(g, 1000);
    playPocketSound(g, 5600);
    EXPECT_TRUE(sound.played.empty());
}
