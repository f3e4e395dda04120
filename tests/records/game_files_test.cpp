// Where the game keeps its files, and what it makes of whatever stands in their place: FIFOs,
// devices, folders, links, huge files. Nothing may wait, nothing may be read past a sane size, and
// each is told once.
#include "records/data_folder.h"
#include "records/file_read.h"
#include "records/profile_file.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/stat.h>

using namespace morvane;

namespace {

class GameFiles : public morvane::testing::TempHomeTest {
  protected:
    std::string file() const { return path("MVSCORE.INI"); }
};

TEST_F(GameFiles, WhatIsNoFileIsReadAsNothingToldOnceAndNeverSavedOver) {
    for (const std::string kind : {"a FIFO", "a character device", "a folder"}) {
        std::filesystem::remove_all(file());
        if (kind == "a FIFO")
            ASSERT_EQ(::mkfifo(file().c_str(), 0600), 0);
        else if (kind == "a folder")
            std::filesystem::create_directory(file());
        else
            std::filesystem::create_symlink("/dev/zero", file());
        // A read that waited on the FIFO or read /dev/zero to its end would never end.
        const FileRead read = readSmallFile(file());
        EXPECT_EQ(std::tie(read.problem, read.reason, read.text),
                  std::tuple(FileRead::Problem::NotAFile, kind, ""));
        ::testing::internal::CaptureStderr();
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(GetPrivateProfileIntA("ZEPH", "LV", 1, file()), 1);
        EXPECT_FALSE(WritePrivateProfileStringA("ZEPH", "LV", " 2", file()));
        const std::string said = ::testing::internal::GetCapturedStderr();
        EXPECT_EQ(std::ranges::count(said, '\n'), 2) << "the read and the save each told once";
        EXPECT_NE(said.find(kind + " stands in its place"), std::string::npos) << said;
        EXPECT_FALSE(std::filesystem::is_regular_file(std::filesystem::symlink_status(file())))
            << "left as it was";
    }
    std::filesystem::remove_all(file());
    EXPECT_EQ(readSmallFile(file()).problem, FileRead::Problem::Missing);
}

TEST_F(GameFiles, ALargeFileIsReadUpToTheLimitAndCutAfterItsLastWholeLine) {
    writeFile("MVSCORE.INI", "[S]\nkey=1\n" + std::string(100, 'x') + "\nlast=2\n");
    const FileRead read = readSmallFile(file(), 20);
    EXPECT_EQ(std::tie(read.problem, read.reason, read.text),
              std::tuple(FileRead::Problem::TooLarge, "20 bytes", "[S]\nkey=1\n"));
}

TEST_F(GameFiles, TheirFolderIsMorvaneHomeElseUnderXdgElseUnderHomeAndIsMade) {
    ::setenv("MORVANE_HOME", (home_ + "own").c_str(), 1);
    EXPECT_EQ(getWindowsPath(), home_ + "own/");
    ::unsetenv("MORVANE_HOME");
    ::setenv("XDG_CONFIG_HOME", (home_ + "xdg").c_str(), 1);
    EXPECT_EQ(getWindowsPath(), home_ + "xdg/morvane/");
    ::setenv("XDG_CONFIG_HOME", "relative", 1);
    ::setenv("HOME", (home_ + "user").c_str(), 1);
    EXPECT_EQ(getWindowsPath(), home_ + "user/.config/morvane/") << "a relative XDG is ignored";
    for (const char* made : {"own", "xdg/morvane", "user/.config/morvane"})
        EXPECT_TRUE(std::filesystem::is_directory(home_ + made)) << made;
}

} // namespace
