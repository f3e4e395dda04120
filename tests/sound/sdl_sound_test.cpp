// The sound layer on SDL2_mixer with the dummy driver: the two ways an effect meets the one
// sounding, the tunes opened, played and closed by name, and silence without files or device.
#include "game/sounds.h"
#include "game/timers.h"
#include "rules/music.h"
#include "sound/sdl_sound.h"
#include "sound_setup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using namespace morvane;
using namespace morvane::testing;

namespace {

class Sound : public ::testing::Test {
  protected:
    ScopedEnv driver{"SDL_AUDIODRIVER", "dummy"}; // the channel plays in time, into nothing
    std::ostringstream warnings;
    SdlSound sound{runtimeFolder(), warnings};

    void SetUp() override { ASSERT_TRUE(sound.hasDevice()) << warnings.str(); }
};

TEST_F(Sound, ACutOffEffectReplacesTheOneSoundingAndANoStopOneGivesWay) {
    sound.playEffect(kSoundSoftClick, kSoundNoStop);
    EXPECT_EQ(sound.effectPlaying(), kSoundSoftClick) << "a quiet channel takes a no-stop effect";

    sound.playEffect(kSoundDrop, kSoundCutOff); // 0.8 s long
    EXPECT_EQ(sound.effectPlaying(), kSoundDrop);
    sound.playEffect(kSoundHardClick, kSoundNoStop);
    EXPECT_EQ(sound.effectPlaying(), kSoundDrop) << "the drop goes on";
    sound.playEffect(kSoundCushion, kSoundCutOff);
    EXPECT_EQ(sound.effectPlaying(), kSoundCushion);

    EXPECT_TRUE(waitForMixer([&] { return sound.effectPlaying().empty(); }))
        << "the effect ends by itself";
    EXPECT_EQ(warnings.str(), "");
}

TEST_F(Sound, TunesAreOpenedPlayedAndClosedByName) {
    sound.sendMusic("play menu.mid");
    EXPECT_EQ(sound.musicPlaying(), "") << "a tune not open doesn't play";

    sound.sendMusic("open menu.mid");
    EXPECT_EQ(sound.musicPlaying(), "") << "opening doesn't play";
    sound.sendMusic("play menu.mid");
    EXPECT_EQ(sound.musicPlaying(), "menu.mid");

    // Another tune closed, one never opened, a command the game has not: this one plays on.
    for (const char* command :
         {"open record.mid", "close record.mid", "close game3.mid", "stop menu.mid", "close"})
        sound.sendMusic(command);
    EXPECT_EQ(sound.musicPlaying(), "menu.mid") << "closing another track leaves this one";
    EXPECT_FALSE(sound.isMusicOpen("record.mid"));

    sound.sendMusic("close menu.mid");
    EXPECT_EQ(sound.musicPlaying(), "");
    EXPECT_FALSE(sound.isMusicOpen("menu.mid"));
    EXPECT_EQ(warnings.str(), "");
}

// Without its files the device plays nothing and each lack is told once; without a device nothing
// plays and that is told once.
TEST(SilentSound, WithoutFilesOrDeviceNothingPlaysAndEachLackIsToldOnce) {
    const TempHome empty;
    const std::tuple<const char*, std::string, std::vector<std::string>> cases[] = {
        {"dummy", empty.home_, {"vmin.wav", "menu.mid: no such file", "game1.mid: no such file"}},
        {"no-such-driver", runtimeFolder(), {"no-such-driver"}}};
    for (const auto& [driverName, folder, told] : cases) {
        ScopedEnv driver("SDL_AUDIODRIVER", driverName);
        std::ostringstream warnings;
        {
            SdlSound sound(folder, warnings);
            EXPECT_EQ(sound.hasDevice(), driverName == std::string("dummy"));
            for (int n = 0; n < 3; ++n) {
                sound.playEffect(kSoundSoftClick, kSoundCutOff);
                for (const std::string tune : {"menu.mid", "game1.mid"}) {
                    sound.sendMusic("open " + tune);
                    sound.sendMusic("play " + tune);
                    sound.waitForMusicLoads();
                    EXPECT_EQ(sound.musicPlaying(), "") << driverName << " " << tune;
                    sound.sendMusic("close " + tune);
                }
            }
            EXPECT_EQ(sound.effectPlaying(), "");
        }
        EXPECT_EQ(size_t(std::ranges::count(warnings.str(), '\n')), told.size()) << warnings.str();
        for (const std::string& what : told)
            EXPECT_NE(warnings.str().find(what), std::string::npos) << warnings.str();
    }
}

} // namespace
