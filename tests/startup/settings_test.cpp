#include "game/timers.h"
#include "rules/music.h"
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
        const char* files[] = {"menu.mid", "record.mid", "game1.mid", "game2.mid", "game3.mid"};
        for (int i = 0; i < kBgmTrackCount; ++i)
            g.bgmTracks[i].file = files[i];
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

    writeFile("MORVANE.INI", "[MORVANE]\nHiColor=0\nSOUND=on\nBGM=off\n");
    start();
    EXPECT_EQ(std::tie(g.hiColor, g.hiColorPending, g.soundOn, g.bgmOn), std::tuple(0, 0, 0, 0));
    EXPECT_FALSE(g.controls.colorPicOn || isTimerEnabled(g, kTimBGM));
    EXPECT_EQ(settings(), "[MORVANE]\nHiColor= 0\nSOUND= 0\nBGM= 0\n");
}

TEST_F(Settings, SoundSwitchesFromThePictureAndTheMenu) {
    g.soundOn = 0;
    picSound_Click(g, 1); // the picture on show while sound is off
    EXPECT_TRUE(g.soundOn == 1 && g.controls.soundPicOn);
    g.soundOn = 2;
    mnuSound_Click(g);
    EXPECT_FALSE(g.soundOn || g.controls.mnuSoundChecked);
    mnuSound_Click(g);
    EXPECT_TRUE(g.soundOn == 1 && g.controls.mnuSoundChecked);
    EXPECT_EQ(settings(), "[MORVANE]\nSOUND= 1\n");
}

TEST_F(Settings, MusicOffClosesEveryTrackAndOnComesBackWithTheMenuTrack) {
    setTimerInterval(g, kTimBGM, 500);
    g.bgmScene = 2;
    picBGM_Click(g, 0);
    EXPECT_EQ(std::tie(g.bgmOn, g.bgmScene, g.bgmScenePrevious), std::tuple(0, -1, 2));
    EXPECT_FALSE(isTimerEnabled(g, kTimBGM) || g.controls.bgmPicOn);
    ASSERT_EQ(sound.music.size(), 5u);
    for (int i = 0; i < kBgmTrackCount; ++i)
        EXPECT_EQ(sound.music[size_t(i)], "close " + g.bgmTracks[i].file);
    EXPECT_EQ(settings(), "[MORVANE]\nBGM= 0\n");

    g.nowMs = 1000;
    picBGM_Click(g, 1);
    EXPECT_EQ(std::tie(g.bgmOn, g.bgmScene, g.bgmScenePrevious), std::tuple(-1, 0, -1));
    EXPECT_TRUE(isTimerEnabled(g, kTimBGM) && g.controls.bgmPicOn);
    EXPECT_EQ(g.timers[kTimBGM].dueAt, 1500);
    EXPECT_EQ(sound.music.size(), 5u) << "switching on sends nothing";
    EXPECT_EQ(settings(), "[MORVANE]\nBGM=-1\n");
}

TEST_F(Settings, TheColourSwitchSpeaksOnlyWhenTheWindowShowsAndTheValueChanges) {
    g.controls.mainWindowVisible = true;
    picColor_Click(g, 0);
    EXPECT_EQ(settings(), "[MORVANE]\nHiColor= 0\n");
    EXPECT_FALSE(g.controls.colorPicOn);
    picColor_Click(g, 1);
    EXPECT_EQ(settings(), "[MORVANE]\nHiColor=-1\n") << "two clicks leave the file as it was";
    EXPECT_EQ(screen.messages,
              (std::vector<std::string>{"色数を256色に変更します。次回起動から有効です。",
                                        "色数をTrue Colorに変更します。次回起動から有効です。"}));
    picColor_Click(g, 1); // no change
    g.controls.mainWindowVisible = false;
    picColor_Click(g, 0); // window hidden
    EXPECT_EQ(screen.messages.size(), 2u);
    EXPECT_EQ(std::tie(g.hiColorPending, g.hiColor), std::tuple(0, -1)); // this run's pictures
}

} // namespace
