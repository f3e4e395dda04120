// Where the game finds the files it brings: beside the program, then the installed data folder.
#include "startup/program_files.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace morvane;
namespace fs = std::filesystem;

namespace {

class ProgramFilesTest : public morvane::testing::TempHomeTest {
  protected:
    void SetUp() override {
        TempHomeTest::SetUp();
        for (const char* folder : {"prefix/bin", "prefix/share/morvane", "elsewhere"})
            fs::create_directories(path(folder));
    }
};

TEST_F(ProgramFilesTest, BesideTheProgramComesFirstThenTheDataFolderOfTheInstallation) {
    const auto folders = dataFolders(path("prefix/bin"), path("elsewhere"));
    ASSERT_EQ(3u, folders.size());
    // Each copy, put in a folder nearer the front, is found before those behind it.
    for (const char* folder : {"elsewhere", "prefix/share/morvane", "prefix/bin"}) {
        writeFile(std::string(folder) + "/help.html", "x");
        EXPECT_EQ(fs::path(path(folder)) / "help.html", findDataFile("help.html", folders));
    }
}

} // namespace
