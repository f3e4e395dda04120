#include "game/text.h"
#include "records/atomic_file.h"
#include "records/score_file.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <sstream>

using namespace morvane;

namespace {

using ScoreFile = morvane::testing::TempHomeTest;

const std::string kZephName = "zeph" + std::string(16, ' ');

auto vsFields(const VsCpuRecordType& v) {
    return std::tie(v.Name, v.YouWon, v.CPUWon, v.winRate, v.Date, v.Time, v.LevelOfZeph);
}

SoloRecordType soloRow(const std::string& name, int16_t shots, int16_t time, int16_t turn,
                       const std::string& balls, const std::string& date) {
    return {fitToWidth(name, 20), shots, turn, time, balls, getNumOfBallFromBalls(balls), date, 0};
}

TEST_F(ScoreFile, EachTableIsSavedInItsExactFormAndReadBackAndEachSaveRewritesOnlyItsOwnSection) {
    GameState g;
    g.soloRecords[1] = soloRow("zeph", 14, 312, 1, "123456789", "98/02/11");
    g.vsCpuRecords[1] = {fitToWidth("Bob", 20), 3, 2, 0.6f, "26/01/02", 75, 11, 1};
    g.zephLevel = 4;
    g.zephProgress = 1;
    saveSoloRecord(g);
    saveZephLevel(g);
    saveVsCpuRecord(g);
    std::vector<std::string> expected{"[SOLO]"};
    const auto addSoloRow = [&](const std::string& n, const std::string& values) {
        std::istringstream in(values);
        for (const char* key : {"Shots", "Time", "Turn", "Name", "Balls", "Date"}) {
            std::string value;
            std::getline(in, value, '|');
            expected.push_back(key + n + "=" + value);
        }
    };
    addSoloRow("01", " 14| 312| 1|zeph" + std::string(16, ' ') + "|123456789|98/02/11");
    for (const char* n : {"02", "03", "04", "05", "06", "07", "08", "09", "10"})
        addSoloRow(n, " 0| 3600| 10|" + kZephName + "|000000000|98/01/01");
    expected.insert(expected.end(),
                    {"[ZEPH]", "LV= 4", "PG= 1", "[VSCPU]", "Name01=Bob" + std::string(17, ' '),
                     "Date01=26/01/02", "Time01= 75", "YouWon01= 3", "CPUWon01= 2",
                     "LevelOfZeph01= 11"});
    const auto all = lines("MVSCORE.INI");
    ASSERT_EQ(all.size(), 61u + 3u + 61u);
    EXPECT_EQ(std::vector(all.begin(), all.begin() + 71), expected);

    g.soloRecords[2].Shots = 5;
    saveSoloRecord(g);
    auto after = lines("MVSCORE.INI");
    EXPECT_EQ(after[7], "Shots02= 5");
    after[7] = all[7];
    EXPECT_EQ(after, all);

    GameState back;
    loadVsCpuRecord(back);
    EXPECT_EQ(vsFields(back.vsCpuRecords[1]), vsFields(g.vsCpuRecords[1]));
}

TEST_F(ScoreFile, AHandEditedFileLoadsKeyByKeyAndNamesOfAnyBytesAsTwentyCharacters) {
    const std::string longName = "ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰＱＲＳＴＵＶＷＸＹＺ1234";
    writeFile("MVSCORE.INI", "[ZEPH]\nLV=99\n[solo]\nshots10 = 25\nName01=" + longName +
                                 "\nBalls01=12009\nTurn01=x\nTime02=99999\n");
    GameState g;
    loadSoloRecord(g);
    loadZephLevel(g);
    const SoloRecordType& first = g.soloRecords[1];
    EXPECT_EQ(g.soloRecords[10].Shots, 25);
    EXPECT_EQ(first.Name, longName.substr(0, 20 * 3)) << "30 characters cut to 20";
    // Blanks count as balls; a value that is no number reads 0, one missing its default.
    EXPECT_EQ(std::tie(first.Balls, first.numOfBalls, first.Turn, first.Time),
              std::tuple("12009    ", 7, 0, 3600));
    EXPECT_EQ(g.soloRecords[2].Time, 32767);
    EXPECT_EQ(g.zephLevel, 11);
}

TEST_F(ScoreFile, EachSaveWritesTheFileOnceAndIsCountedWithItsOutcome) {
    GameState g;
    int writes = 0;
    setSaveStepHook([&](SaveStep step) {
        writes += step == SaveStep::CreateTemporary;
        return step == SaveStep::Rename && writes == 3 ? EROFS : 0;
    });
    EXPECT_TRUE(saveSoloRecord(g));
    EXPECT_TRUE(saveVsCpuRecord(g));
    const std::string text = readFile("MVSCORE.INI");
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(saveZephLevel(g));
    ::testing::internal::GetCapturedStderr();
    setSaveStepHook(nullptr);
    EXPECT_EQ(writes, 3) << "one write a save, not one a key";
    EXPECT_EQ(readFile("MVSCORE.INI"), text);
    EXPECT_EQ(folderEntries(), std::vector<std::string>{"MVSCORE.INI"}) << "no temporary left";
    EXPECT_EQ(std::tie(g.scoreFileSaves, g.failedScoreFileSaves), std::tuple(3, 1));
}

} // namespace
