#include "game/text.h"
#include "records/atomic_file.h"
#include "records/score_file.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <sstream>

using namespace morvane;

namespace {

using ScoreFile = morvane::testing::TempHomeTest;

const std::string kZephName = "zeph" + std::string(16, ' ');

auto soloFields(const SoloRecordType& s) {
    return std::tie(s.Name, s.Shots, s.Turn, s.Time, s.Balls, s.numOfBalls, s.Date);
}
auto vsFields(const VsCpuRecordType& v) {
    return std::tie(v.Name, v.YouWon, v.CPUWon, v.winRate, v.Date, v.Time, v.LevelOfZeph);
}

SoloRecordType soloRow(const std::string& name, int16_t shots, int16_t time, int16_t turn,
                       const std::string& balls, const std::string& date) {
    return {fitToWidth(name, 20), shots, turn, time, balls, getNumOfBallFromBalls(balls), date, 0};
}

TEST_F(ScoreFile, NoFileGivesTheDefaultTablesAndLevelOne) {
    GameState g;
    g.zephLevel = 7;
    loadSoloRecord(g);
    loadVsCpuRecord(g);
    loadZephLevel(g);
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(soloFields(g.soloRecords[i]),
                  std::tuple(kZephName, 0, 10, 3600, "000000000", 0, "98/01/01"));
        EXPECT_EQ(vsFields(g.vsCpuRecords[i]),
                  std::tuple(kZephName, 0, 0, 0.0f, "98/01/01", 3600, 0));
        EXPECT_EQ(std::tie(g.soloRecords[i].place, g.vsCpuRecords[i].place), std::tuple(i, i));
    }
    EXPECT_EQ(std::tie(g.zephLevel, g.zephProgress), std::tuple(1, 0));
    EXPECT_TRUE(folderEntries().empty()) << "reading creates no file";
}

TEST_F(ScoreFile, EachTableIsSavedInItsExactFormAndReadBackAndEachSaveRewritesOnlyItsOwnSection) {
    GameState g;
    g.soloRecords[1] = soloRow("zeph", 14, 312, 1, "123456789", "98/02/11");
    g.soloRecords[2] = soloRow("玉突き", 9, -45, 2, "020000009", "25/12/31");
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
    addSoloRow("02", " 9|-45| 2|玉突き" + std::string(17, ' ') + "|020000009|25/12/31");
    for (const char* n : {"03", "04", "05", "06", "07", "08", "09", "10"})
        addSoloRow(n, " 0| 3600| 10|" + kZephName + "|000000000|98/01/01");
    expected.insert(expected.end(),
                    {"[ZEPH]", "LV= 4", "PG= 1", "[VSCPU]", "Name01=Bob" + std::string(17, ' '),
                     "Date01=26/01/02", "Time01= 75", "YouWon01= 3", "CPUWon01= 2",
                     "LevelOfZeph01= 11"});
    const auto all = lines("MVSCORE.INI");
    ASSERT_EQ(all.size(), 61u + 3u + 61u);
    EXPECT_EQ(std::vector(all.begin(), all.begin() + 71), expected);

    g.soloRecords[3].Shots = 5;
    saveSoloRecord(g);
    auto after = lines("MVSCORE.INI");
    EXPECT_EQ(after[13], "Shots03= 5");
    after[13] = all[13];
    EXPECT_EQ(after, all);

    GameState back;
    loadSoloRecord(back);
    loadVsCpuRecord(back);
    for (int i : {1, 2})
        EXPECT_EQ(soloFields(back.soloRecords[i]), soloFields(g.soloRecords[i])) << i;
    EXPECT_EQ(vsFields(back.vsCpuRecords[1]), vsFields(g.vsCpuRecords[1]));
}

TEST_F(ScoreFile, AHandEditedFileLoadsKeyByKeyAndNamesOfAnyBytesAsTwentyCharacters) {
    const std::string longName = "ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰＱＲＳＴＵＶＷＸＹＺ1234";
    writeFile("MVSCORE.INI", "[ZEPH]\nPG=7\nLV=0\n"
                             "[solo]\nshots10 = 25\nName01=" +
                                 longName +
                                 "\nBalls01=12009\n"
                                 "Turn01=x\nTime02=99999\nDate02=  26/7/4  \n"
                                 "Name02=\x8B\xCA\x93\xCB\x82\xAB\nName03=\xFF\xFE\n"
                                 "[VSCPU]\nYouWon03=2\n");
    GameState g;
    loadSoloRecord(g);
    loadVsCpuRecord(g);
    loadZephLevel(g);
    const SoloRecordType& first = g.soloRecords[1];
    EXPECT_EQ(std::tie(g.soloRecords[10].Shots, g.soloRecords[9].Shots), std::tuple(25, 0));
    EXPECT_EQ(first.Name, longName.substr(0, 20 * 3)) << "30 characters cut to 20";
    // Blanks count as balls; a value that is no number reads 0, one missing its default.
    EXPECT_EQ(std::tie(first.Balls, first.numOfBalls, first.Turn, first.Time),
              std::tuple("12009    ", 7, 0, 3600));
    const SoloRecordType& second = g.soloRecords[2];
    EXPECT_EQ(std::tie(second.Time, second.Date, second.Name),
              std::tuple(32767, "26/7/4  ", "玉突き" + std::string(17, ' ')));
    EXPECT_EQ(g.soloRecords[3].Name, "\uFFFD\uFFFD" + std::string(18, ' '));
    EXPECT_EQ(g.vsCpuRecords[3].winRate, 1.0f);
    EXPECT_EQ(std::tie(g.zephLevel, g.zephProgress), std::tuple(1, 7)) << "progress has no bound";
    writeFile("MVSCORE.INI", "[ZEPH]\nLV=99\n");
    loadZephLevel(g);
    EXPECT_EQ(g.zephLevel, 11);
}

TEST_F(ScoreFile, EachSaveWritesTheFileOnceAndIsCountedWithItsOutcome) {
    writeFile("MVSCORE.INI", "; kept\r\n[ZEPH]\r\nLV= 3\r\n");
    GameState g;
    int writes = 0;
    setSaveStepHook([&](SaveStep step) {
        writes += step == SaveStep::CreateTemporary;
        return 0;
    });
    EXPECT_TRUE(saveSoloRecord(g));
    EXPECT_TRUE(saveVsCpuRecord(g));
    g.zephLevel = 4;
    EXPECT_TRUE(saveZephLevel(g));
    EXPECT_EQ(writes, 3) << "one write a save, not one a key";
    const std::string text = readFile("MVSCORE.INI");
    EXPECT_EQ(std::ranges::count(text, '\r'), 4 + 61 + 61) << "every line ends as the file's did";

    setSaveStepHook([](SaveStep step) { return step == SaveStep::Rename ? EROFS : 0; });
    g.soloRecords[1].Shots = 9;
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(saveSoloRecord(g));
    const std::string said = ::testing::internal::GetCapturedStderr();
    setSaveStepHook(nullptr);
    EXPECT_EQ(std::ranges::count(said, '\n'), 1) << "one line for the whole table: " << said;
    EXPECT_EQ(readFile("MVSCORE.INI"), text);
    EXPECT_EQ(std::tie(g.scoreFileSaves, g.failedScoreFileSaves), std::tuple(4, 1));
}

TEST(ScoreValues, WinRateIsTheShareOfGamesWon) {
    EXPECT_EQ(std::tuple(winRate(3, 1), winRate(0, 0), winRate(2, 1)),
              std::tuple(0.75f, 0.0f, float(2.0 / 3.0)));
}

} // namespace
