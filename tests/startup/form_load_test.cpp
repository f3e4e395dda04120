// Start-up from the command line to the menu, in its fixed order, the refusal of a second copy,
// and the way out, with a platform that writes down every call.
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
using morvane::testing::TempHomeTest;

namespace {

class RecordingPlatform : public StartupPlatform {
  public:
    explicit RecordingPlatform(SingleInstanceLock* lock = nullptr) : lock_(lock) {}
    std::vector<std::string> calls;
    bool isJapaneseSystem() override { return false; }
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

    long callsStartingWith(std::string_view start) const {
        return std::ranges::count_if(calls, [&](const auto& c) { return c.starts_with(start); });
    }

  private:
    SingleInstanceLock* lock_;
};

class FormLoadTest : public TempHomeTest {
  protected:
    GameState g;
    RecordingPlatform platform;
};

// A first start ends at the menu with the demo counting; /debug, in any case, shows ten pass
// messages in order among the steps.
TEST_F(FormLoadTest, AFirstStartEndsAtTheMenuAndDebugShowsThePassMessagesAmongTheSteps) {
    ASSERT_TRUE(Form_Load(g, "morvane /DeBuG", platform));
    const std::vector<std::string> expected{
        "message Pass 1 !", "message Pass 2 !",    "message Pass 3 !", "message Pass 4 !",
        "setMenuCaptions",  "arrangeControls",     "centreMainWindow", "hideMainWindow",
        "message Pass 5 !", "message Pass 6 !",    "showSplash",       "message Pass 7 !",
        "loadBallSprites",  "setZephsMessageFont", "placeScoreScreen", "message Pass 8 !",
        "message Pass 9 !", "message Pass 10 !"};
    EXPECT_EQ(expected, platform.calls);
    EXPECT_TRUE(g.gameMode == kModeMenu && g.controls.menuVisible && isTimerEnabled(g, kTimDemo));
}

// Start-up also clears away the temporary files of saves that a kill cut off.
TEST_F(FormLoadTest, StoredSettingsAreReadSilentlyAndThePictureFilesFollowHiColor) {
    writeFile("MORVANE.INI", "[MORVANE]\nHiColor=1\nSOUND=2\nBGM=0\n");
    writeFile("MVSCORE.INI", "[ZEPH]\nLV=7\nPG=1\n");
    writeFile(".MORVANE.INI.Ab12Cd", "[MORVANE]\nBG");
    ASSERT_TRUE(Form_Load(g, "", platform));
    EXPECT_EQ(1, std::ranges::count(platform.calls, "loadFilePictures"));
    EXPECT_EQ(7, g.zephLevel);
    EXPECT_FALSE(g.soundOn || isTimerEnabled(g, kTimBGM));
    EXPECT_EQ(0, platform.callsStartingWith("message"))
        << "the picture switch is silent at start-up";
    std::vector<std::string> left = folderEntries();
    std::ranges::sort(left);
    EXPECT_EQ((std::vector<std::string>{"MORVANE.INI", "MVSCORE.INI"}), left);
}

TEST_F(FormLoadTest, ASecondCopyIsRefusedAndTouchesNoFile) {
    const std::string lockPath = home_ + "../" + "morvane-form-load-test.lock";
    SingleInstanceLock first(lockPath);
    ASSERT_FALSE(first.anotherInstanceRunning());
    SingleInstanceLock second(lockPath);
    RecordingPlatform refused(&second);
    GameState copy;
    EXPECT_FALSE(Form_Load(copy, "/debug", refused));
    EXPECT_EQ(
        (std::vector<std::string>{"message Pass 1 !", "message Morvane can't be loaded twice."}),
        refused.calls);
    EXPECT_TRUE(folderEntries().empty()) << "neither settings nor records were touched";
    ::unlink(lockPath.c_str());
}

TEST_F(FormLoadTest, TheWayOutClosesEveryTrackBeforeTheEnd) {
    morvane::testing::RecordingSound sound;
    sound.log = &platform.calls;
    g.ports.sound = &sound;
    Form_Unload(g, platform);
    EXPECT_EQ(5, platform.callsStartingWith("music close "));
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
        const char byte = held.anotherInstanceRunning() ? 'n' : 'y';
        [[maybe_unused]] const auto written = ::write(ready[1], &byte, 1);
        ::pause(); // killed here, the lock never let go of by the program
        ::_exit(0);
    }
    char byte = 0;
    ASSERT_EQ(1, ::read(ready[0], &byte, 1));
    ASSERT_EQ('y', byte);
    EXPECT_TRUE(SingleInstanceLock(lockPath).anotherInstanceRunning());
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    SingleInstanceLock afterCrash(lockPath);
    EXPECT_FALSE(afterCrash.anotherInstanceRunning());
    EXPECT_TRUE(afterCrash.held());
    ::close(ready[0]);
    ::close(ready[1]);
    ::unlink(lockPath.c_str());
}

} // namespace
