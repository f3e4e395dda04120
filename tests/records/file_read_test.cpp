// What the game makes of whatever stands in the place of its files: FIFOs, devices, folders,
// huge files. Nothing may wait, nothing may be read past a sane size, and each is told once.
#include "records/file_read.h"
#include "records/profile_file.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace morvane;

namespace {

class SafeFiles : public morvane::testing::TempHomeTest {
  protected:
    std::string file() const { return path("MVSCORE.INI"); }
    void replaceWith(const std::string& what) const {
        std::filesystem::remove_all(file());
        if (what == "fifo")
            ASSERT_EQ(::mkfifo(file().c_str(), 0600), 0);
        else if (what == "zero")
            std::filesystem::create_symlink("/dev/zero", file());
        else if (what == "folder")
            std::filesystem::create_directory(file());
    }
};

TEST_F(SafeFiles, OnlyRegularFilesAreReadAndNothingWaitsForAWriter) {
    const std::pair<const char*, const char*> cases[] = {
        {"fifo", "a FIFO"}, {"zero", "a character device"}, {"folder", "a folder"}};
    for (const auto& [what, kind] : cases) {
        replaceWith(what); // a read that waited on the FIFO or read /dev/zero would never end
        const FileRead read = readSmallFile(file());
        EXPECT_EQ(read.problem, FileRead::Problem::NotAFile) << what;
        EXPECT_EQ(read.reason, kind);
        EXPECT_TRUE(read.text.empty());
    }
    replaceWith("nothing");
    EXPECT_EQ(readSmallFile(file()).problem, FileRead::Problem::Missing);
}

TEST_F(SafeFiles, ALargeFileIsReadUpToTheLimitAndCutAfterItsLastWholeLine) {
    writeFile("MVSCORE.INI", "[S]\nkey=1\n" + std::string(100, 'x') + "\nlast=2\n");
    FileRead read = readSmallFile(file(), 20);
    EXPECT_EQ(read.problem, FileRead::Problem::TooLarge);
    EXPECT_EQ(read.text, "[S]\nkey=1\n");
    EXPECT_EQ(read.reason, "20 bytes");

    writeFile("MVSCORE.INI", std::string(19, 'x') + "\n");
    read = readSmallFile(file(), 20);
    EXPECT_EQ(read.problem, FileRead::Problem::None) << "exactly the limit is whole";
    EXPECT_EQ(read.text.size(), 20u);
}

TEST_F(SafeFiles, AFileThatIsNoFileIsToldOnceARunAndGivesTheDefaults) {
    replaceWith("fifo");
    ::testing::internal::CaptureStderr();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(GetPrivateProfileIntA("ZEPH", "LV", 1, file()), 1);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "morvane: " + file() + " is a FIFO, not a regular file; the defaults are used\n");
}

TEST_F(SafeFiles, NothingIsSavedOverWhatIsNoFileAndTheSaveSaysWhy) {
    for (const char* what : {"fifo", "folder"}) {
        replaceWith(what);
        ::testing::internal::CaptureStderr();
        EXPECT_FALSE(WritePrivateProfileStringA("ZEPH", "LV", " 2", file()));
        const std::string said = ::testing::internal::GetCapturedStderr();
        EXPECT_EQ(said, "morvane: could not save " + file() + " (" +
                            (what == std::string("fifo") ? "a FIFO" : "a folder") +
                            " stands in its place); the change is lost\n");
        struct stat info {};
        ASSERT_EQ(::lstat(file().c_str(), &info), 0);
        EXPECT_FALSE(S_ISREG(info.st_mode)) << "left as it was";
    }
}

TEST_F(SafeFiles, ASaveThroughALinkReplacesTheFileItPointsTo) {
    std::filesystem::create_directory(path("kept"));
    writeFile("kept/MVSCORE.INI", "[ZEPH]\nLV= 1\n");
    std::filesystem::create_symlink(path("kept/MVSCORE.INI"), file());
    EXPECT_TRUE(WritePrivateProfileStringA("ZEPH", "LV", " 2", file()));
    EXPECT_TRUE(std::filesystem::is_symlink(file()));
    EXPECT_EQ(readFile("kept/MVSCORE.INI"), "[ZEPH]\nLV= 2\n");
}

TEST_F(SafeFiles, ASaveThatChangesNothingLeavesTheFileAlone) {
    writeFile("MVSCORE.INI", "[ZEPH]\r\nLV= 3\r\n");
    struct stat before {};
    ASSERT_EQ(::stat(file().c_str(), &before), 0);
    EXPECT_TRUE(WritePrivateProfileStringA("zeph", "lv", " 3", file()));
    struct stat after {};
    ASSERT_EQ(::stat(file().c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino) << "not replaced";
}

} // namespace
