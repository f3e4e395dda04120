#include "records/data_folder.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

using DataFolder = morvane::testing::TempHomeTest;

TEST_F(DataFolder, FollowsMorvaneHomeThenXdgThenHomeAndMakesTheFolder) {
    ::setenv("MORVANE_HOME", (home_ + "own").c_str(), 1);
    EXPECT_EQ(getWindowsPath(), home_ + "own/");
    EXPECT_TRUE(std::filesystem::is_directory(home_ + "own"));

    ::unsetenv("MORVANE_HOME");
    ::setenv("XDG_CONFIG_HOME", (home_ + "xdg").c_str(), 1);
    EXPECT_EQ(getWindowsPath(), home_ + "xdg/morvane/");
    EXPECT_TRUE(std::filesystem::is_directory(home_ + "xdg/morvane"));

    ::setenv("XDG_CONFIG_HOME", "relative", 1);
    ::setenv("HOME", (home_ + "user").c_str(), 1);
    EXPECT_EQ(getWindowsPath(), home_ + "user/.config/morvane/") << "a relative XDG is ignored";
    EXPECT_TRUE(std::filesystem::is_directory(home_ + "user/.config/morvane"));
}

} // namespace
