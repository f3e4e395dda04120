#include "game/timers.h"
#include "startup/settings.h"
#include "support/recording_screen.h"
#include "support/recording_sound.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

class Settings : public morvane::testing::TempHomeTest {
  protected:
    morvane::testing::RecordingScreen screen;
    morvane::testing::RecordingSound sound;
    GameState g;

    void SetUp() override {
        TempHomeTest::SetUp();
        g.ports.screen = &screen;
        g.ports.sound = &sound;
    }
    void start() {
        readHiColorSetting(g);
        readSoundAndMusicSettings(g);
        bringSwitchesIntoLine(g);
    }
    std::string settings() const { return readFile("MORVANE.INI"); }
};

TEST_F(Settings, AFirstStartTurnsEverythingOnAndWritesTheThreeKeysInOrder) {
    start();
    EXPECT_EQ(settings(), "[MORVANE]\nBGM=-1\nSOUND= 1\nHiColor=-1\n");
    EXPECT_EQ(std::tie(g.soundOn, g.bgmOn, g.hiColor, g.hiColorPending), std::tuple(1, -1, -1, -1));
    const ControlsState& c = g.controls;
    EXPECT_TRUE(c.soundPicOn && c.bgmPicOn && c.colorPicOn && c.mnuSoundChecked);
    EXPECT_TRUE(isTimerEnabled(g, kTimBGM));
    EXPECT_TRUE(screen.messages.empty()) << "the main window is still hidden";
}

TEST_F(Settings, StoredValuesAreReadAndWrittenBackInTheirOwnForm) {
    writeFile("MORVANE.INI", "[morvane]\nhicolor=1\nSOUND=2\nBGM=5\n");
    start();
    // This run still loads the picture files; 2 is not 1, so the sound goes off.
    EXPECT_EQ(std::tie(g.hiColor, g.soundOn, g.bgmOn), std::tuple(1, 0, -1));
    EXPECT_FALSE(g.controls.soundPicOn || g.controls.mnuSoundChecked);
    EXPECT_EQ(settings(), "[morvane]\nhicolor=-1\nSOUND= 0\nBGM=-1\n");
}

// The music picture and the sound menu switch their setting and write its key at once.
TEST_F(Settings, TheMusicPictureAndTheSoundMenuSwitchAndWriteTheirKeys) {
    picBGM_Click(g, 0);
    EXPECT_FALSE(isTimerEnabled(g, kTimBGM) || g.controls.bgmPicOn || g.bgmOn);
    picBGM_Click(g, 1);
    EXPECT_TRUE(isTimerEnabled(g, kTimBGM) && g.controls.bgmPicOn);
    g.soundOn = 2;
    mnuSound_Click(g);
    EXPECT_FALSE(g.soundOn || g.controls.mnuSoundChecked);
    EXPECT_EQ(settings(), "[MORVANE]\nBGM=-1\nSOUND= 0\n");
}

} // namespace
