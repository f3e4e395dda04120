// What morvane-sim says of its saves: a name of any bytes is kept and read back, a save that
// fails is told once and answered as not saved with its own exit status, and what a killed run
// left behind is cleared at the next start.
#include "command_run.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace morvane::testing;
using nlohmann::json;

namespace {

constexpr int kNotSaved = 3;

class SavedRecords : public TempHomeTest {
  protected:
    // Runs the tool with the process's stderr caught, where the game's file messages go.
    CommandRun runCatchingStderr(const std::vector<std::string>& args) {
        ::testing::internal::CaptureStderr();
        CommandRun run = runTool(args);
        run.err += ::testing::internal::GetCapturedStderr();
        return run;
    }
};

int linesSaying(const std::string& text, const std::string& words) {
    int count = 0;
    for (size_t at = text.find(words); at != std::string::npos; at = text.find(words, at + 1))
        ++count;
    return count;
}

TEST_F(SavedRecords, NamesOfAnyBytesAreSavedAndReadBackAsTheSameText) {
    struct Name {
        std::string bytes;
        std::string text;
        size_t characters;
    };
    const Name names[] = {{"\xFF\xFE", "\uFFFD\uFFFD", 2}, {"\x83\x5B\x83\x74", "ゼフ", 2}};
    for (const auto& [bytes, text, characters] : names) {
        std::filesystem::remove(path("MVSCORE.INI"));
        const CommandRun solo = runTool({"solo", "--name", bytes, "--seed", "2"});
        ASSERT_EQ(solo.status, 0) << solo.err;
        const json game = json::parse(solo.out);
        const std::string shown = text + std::string(20 - characters, ' ');
        EXPECT_EQ(game["recordName"], shown);
        EXPECT_EQ(game["saved"], true);
        const CommandRun records = runTool({"records"});
        ASSERT_EQ(records.status, 0) << records.err;
        EXPECT_EQ(json::parse(records.out)["soloRecords"][0]["Name"], shown);
    }
    const CommandRun match =
        runTool({"match", "--you-level", "11", "--target", "1", "--name", "\xFF", "--seed", "1"});
    ASSERT_EQ(match.status, 0) << match.err;
    EXPECT_EQ(match.lines().back()["name"], "\uFFFD");
}

TEST_F(SavedRecords, AFailedSaveIsToldOnceAndAnsweredAsNotSaved) {
    std::filesystem::create_directory(path("MVSCORE.INI"));
    const CommandRun solo = runCatchingStderr({"solo", "--name", "Ann", "--seed", "2"});
    EXPECT_EQ(solo.status, kNotSaved);
    const json game = json::parse(solo.out);
    EXPECT_EQ(game["entered"], true);
    EXPECT_EQ(game["saved"], false);
    EXPECT_EQ(linesSaying(solo.err, "could not save"), 1) << solo.err;
    EXPECT_NE(solo.err.find("MVSCORE.INI (a folder stands in its place)"), std::string::npos);

    const CommandRun match = runCatchingStderr(
        {"match", "--you-level", "11", "--target", "1", "--matches", "2", "--seed", "1"});
    EXPECT_EQ(match.status, kNotSaved);
    int saves = 0;
    for (const json& line : match.lines()) {
        if (line.contains("saved")) {
            EXPECT_EQ(line["saved"], false) << line;
        }
        if (line.contains("winner") && !line.contains("game"))
            saves += line["recordPlace"].is_null() ? 1 : 2; // zeph's level, then the table
    }
    EXPECT_EQ(linesSaying(match.err, "could not save"), saves) << match.err;
}

TEST_F(SavedRecords, AGameThatEarnsNoPlaceSavesNothing) {
    std::string table = "[SOLO]\n";
    for (int row = 1; row <= 10; ++row) {
        const std::string n = (row < 10 ? "0" : "") + std::to_string(row);
        table += "Shots" + n + "= 30000\nTurn" + n + "= 1\nTime" + n + "= 1\n";
    }
    writeFile("MVSCORE.INI", table);
    const CommandRun solo = runTool({"solo", "--name", "Ann", "--seed", "2"});
    EXPECT_EQ(solo.status, 0);
    const json game = json::parse(solo.out);
    EXPECT_EQ(game["entered"], false);
    EXPECT_TRUE(game["saved"].is_null());
    EXPECT_EQ(readFile("MVSCORE.INI"), table);
}

TEST_F(SavedRecords, EveryStartClearsWhatAKilledSaveLeftBehind) {
    writeFile(".MVSCORE.INI.Ab12Cd", "[SOLO]\nShots01= 1");
    writeFile(".MORVANE.INI.xY98zW", "");
    writeFile(".MVSCORE.INI.notes", "mine");
    EXPECT_EQ(runTool({"records"}).status, 0);
    EXPECT_EQ(folderEntries(), std::vector<std::string>{".MVSCORE.INI.notes"});
}

} // namespace
