// Start-up from the command line to the menu, in its fixed order, and the refusal of a second
// copy, with a platform that writes down every call.
#include "game/timers.h"
#include "startup/form_load.h"
#include "startup/single_instance.h"
#include "support/recording_sound.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace morvane;
using morvane::testing::RecordingSound;
using morvane::testing::TempHomeTest;

namespace {

class RecordingPlatform : public StartupPlatform {
  public:
    explicit RecordingPlatform(SingleInstanceLock* lock = nullptr) : lock_(lock) {}
    std::vector<std::string> calls;
    bool japanese = false;

    bool isJapaneseSystem() override { return japanese; }
    bool anotherInstanceRunning() override { return lock_ && lock_->anotherInstanceRunning(); }
    void showPlainMessage(const std::string& text) override { calls.push_back("message " + text); }
    void loadFilePictures() override { calls.push_back("loadFilePictures"); }
    void setMenuCaptions() override { calls.push_back("setMenuCaptions"); }
    void arrangeControls() override { calls.push_back("arrangeControls"); }
    void centreMainWindow() override { calls.push_back("centreMainWindow"); }
    void hideMainWindow() override { calls.push_back("hideMainWindow"); }
    void showSplash() override { calls.push_back("showSplash"); }
    void loadBallSprites() override { calls.push_back("loadBallSprites"); }
    void setZephsMessageFont() override { calls.push_back("setZephsMessageFont"); }
    void placeScoreScreen() override { calls.push_back("placeScoreScreen"); }
    void quit() override { calls.push_back("quit"); }

    std::vector<std::string> messages() const {
        std::vector<std::string> shown;
        for (const std::string& c : calls) {
            if (c.rfind("message ", 0) == 0)
                shown.push_back(c.substr(8));
        }
        return shown;
    }

  private:
    SingleInstanceLock* lock_;
};

class FormLoadTest : public TempHomeTest {
  protected:
    GameState g;
    RecordingPlatform platform;
};

TEST_F(FormLoadTest, DebugShowsTheTenPassMessagesInOrderAmongTheSteps) {
    ASSERT_TRUE(Form_Load(g, "morvane /DeBuG", platform));
    const std::vector<std::string> expected{
        "message Pass 1 !", "message Pass 2 !",    "message Pass 3 !", "message Pass 4 !",
        "setMenuCaptions",  "arrangeControls",     "centreMainWindow", "hideMainWindow",
        "message Pass 5 !", "message Pass 6 !",    "showSplash",       "message Pass 7 !",
        "loadBallSprites",  "setZephsMessageFont", "placeScoreScreen", "message Pass 8 !",
        "message Pass 9 !", "message Pass 10 !"};
    EXPECT_EQ(expected, platform.calls);
    EXPECT_TRUE(g.debugStart);
    EXPECT_FALSE(g.noMidi);
}

TEST_F(FormLoadTest, TheSwitchesAreFoundInsideLongerWordsAndAStartWithoutShowsNoMessage) {
    ASSERT_TRUE(Form_Load(g, "x/debugging /NOMIDI", platform));
    EXPECT_EQ(10u, platform.messages().size());
    EXPECT_TRUE(g.noMidi);

    GameState quiet;
    RecordingPlatform silent;
    ASSERT_TRUE(Form_Load(quiet, "/debu g", silent));
    EXPECT_TRUE(silent.messages().empty());
    EXPECT_FALSE(quiet.debugStart);
}

TEST_F(FormLoadTest, AFirstStartEndsAtTheMenuAndLeavesAllThreeSettingsInTheFile) {
    ASSERT_TRUE(Form_Load(g, "", platform));
    EXPECT_EQ((std::vector<std::string>{"[MORVANE]", "BGM=-1", "SOUND= 1", "HiColor=-1"}),
              lines("MORVANE.INI"));
    EXPECT_EQ(kModeMenu, g.gameMode);
    EXPECT_TRUE(g.controls.menuVisible);
    EXPECT_TRUE(isTimerEnabled(g, kTimDemo));
    EXPECT_TRUE(isTimerEnabled(g, kTimBGM)) << "music is on by default";
    EXPECT_EQ("MORVANE Ver.3.02", g.controls.windowCaption);
    EXPECT_TRUE(g.versusCpu);
    EXPECT_TRUE(g.breakPending);
    EXPECT_TRUE(g.controls.mnuSoundChecked);
    EXPECT_EQ("zeph", g.soloRecords[1].Name.substr(0, 4));
}

TEST_F(FormLoadTest, StoredSettingsRecordsAndLevelAreReadAndThePictureFilesFollowHiColor) {
    writeFile("MORVANE.INI", "[MORVANE]\nHiColor=1\nSOUND=2\nBGM=0\n");
    writeFile("MVSCORE.INI", "[ZEPH]\nLV=7\nPG=1\n");
    ASSERT_TRUE(Form_Load(g, "", platform));
    EXPECT_EQ(1, std::count(platform.calls.begin(), platform.calls.end(), "loadFilePictures"))
        << "any HiColor but -1 takes the 256-colour files";
    EXPECT_EQ(7, g.zephLevel);
    EXPECT_EQ(0, g.soundOn) << "2 is no 'on'";
    EXPECT_FALSE(isTimerEnabled(g, kTimBGM));
    EXPECT_EQ((std::vector<std::string>{"[MORVANE]", "HiColor=-1", "SOUND= 0", "BGM= 0"}),
              lines("MORVANE.INI"));
    EXPECT_TRUE(platform.messages().empty()) << "the picture switch is silent at start-up";
}

TEST_F(FormLoadTest, AStartClearsWhatSavesCutOffByAKillLeftBehind) {
    writeFile(".MORVANE.INI.Ab12Cd", "[MORVANE]\nBG");
    writeFile(".MVSCORE.INI.Zz00Yy", "");
    writeFile("MVSCORE.INI.bak", "[ZEPH]\nLV=3\n");
    ASSERT_TRUE(Form_Load(g, "", platform));
    std::vector<std::string> left = folderEntries();
    std::ranges::sort(left);
    EXPECT_EQ((std::vector<std::string>{"MORVANE.INI", "MVSCORE.INI.bak"}), left);
}

TEST_F(FormLoadTest, ASecondCopyIsRefusedInItsLanguageAndTouchesNoFile) {
    const std::string lockPath = home_ + "../" + "morvane-form-load-test.lock";
    SingleInstanceLock first(lockPath);
    ASSERT_FALSE(first.anotherInstanceRunning());

    for (bool japanese : {false, true}) {
        SingleInstanceLock second(lockPath);
        RecordingPlatform refused(&second);
        refused.japanese = japanese;
        GameState copy;
        EXPECT_FALSE(Form_Load(copy, "/debug", refused));
        const std::string refusal = japanese ? "このプログラムは複数起動することは出来ません。"
                                             : "Morvane can't be loaded twice.";
        EXPECT_EQ((std::vector<std::string>{"message Pass 1 !", "message " + refusal}),
                  refused.calls);
    }
    EXPECT_TRUE(folderEntries().empty()) << "neither settings nor records were touched";
    ::unlink(lockPath.c_str());
}

TEST_F(FormLoadTest, TheWayOutClosesEveryTrackBeforeTheEnd) {
    ASSERT_TRUE(Form_Load(g, "", platform));
    platform.calls.clear();
    RecordingSound sound;
    sound.log = &platform.calls;
    g.ports.sound = &sound;
    Form_Unload(g, platform);
    ASSERT_EQ(6u, platform.calls.size());
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(platform.calls[i].starts_with("music close ") &&
                    platform.calls[i].ends_with(".mid"))
            << platform.calls[i];
    EXPECT_EQ("quit", platform.calls.back());
}

TEST(SingleInstanceLockTest, ALockHeldByACrashedRunIsFreeAgain) {
    const std::string lockPath =
        std::filesystem::temp_directory_path() / ("morvane-crash-" + std::to_string(getpid()));
    int ready[2];
    ASSERT_EQ(0, ::pipe(ready));
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        SingleInstanceLock held(lockPath);
        const bool other = held.anotherInstanceRunning();
        const char byte = other ? 'n' : 'y';
        [[maybe_unused]] const auto written = ::write(ready[1], &byte, 1);
        ::pause(); // killed here, the lock never let go of by the program
        ::_exit(0);
    }
    char byte = 0;
    ASSERT_EQ(1, ::read(ready[0], &byte, 1));
    ASSERT_EQ('y', byte);
    {
        SingleInstanceLock whileRunning(lockPath);
        EXPECT_TRUE(whileRunning.anotherInstanceRunning());
        EXPECT_FALSE(whileRunning.held());
    }
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    SingleInstanceLock afterCrash(lockPath);
    EXPECT_FALSE(afterCrash.anotherInstanceRunning());
    EXPECT_TRUE(afterCrash.held());
    ::close(ready[0]);
    ::close(ready[1]);
    ::unlink(lockPath.c_str());
}

} // namespace
