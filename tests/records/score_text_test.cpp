// The lines of the record screen: places, counts in the singular and plural, levels, times and
// the ball marks.
#include "records/score_text.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

std::vector<std::string> texts(const ScoreRow& row) {
    std::vector<std::string> all;
    for (const ScoreText& t : row.texts)
        all.push_back(std::to_string(t.x) + ":" + t.text);
    return all;
}

TEST(ScoreTextTest, FreshRowsReadAsTheDefaultsInTheirColumns) {
    const SoloRecordType solo;
    EXPECT_EQ((std::vector<std::string>{"10: 3", "40:zeph", "150:0 Shots", "230:10 Turns",
                                        "400:60:00", "460:98/01/01"}),
              texts(soloScoreRow(solo, 3)));
    EXPECT_TRUE(soloScoreRow(solo, 3).ballMarks.empty());
    const VsCpuRecordType vs;
    EXPECT_EQ((std::vector<std::string>{"10:10", "40:zeph", "150:Level  0", "230: 0 Wins",
                                        "305: 0 Losses", "400:60:00", "460:98/01/01"}),
              texts(vsCpuScoreRow(vs, 10)));
    EXPECT_EQ(350, vsCpuScoreRow(vs, 10).y);
}

TEST(ScoreTextTest, ExactlyOneTakesTheSingularAndLevelElevenIsMaster) {
    SoloRecordType solo;
    solo.Shots = 1;
    solo.Turn = 1;
    const auto one = texts(soloScoreRow(solo, 1));
    EXPECT_EQ("150:1 Shot", one[2]);
    EXPECT_EQ("230:1 Turn", one[3]);
    VsCpuRecordType vs;
    vs.YouWon = 1;
    vs.CPUWon = 1;
    vs.LevelOfZeph = 10;
    auto row = texts(vsCpuScoreRow(vs, 1));
    EXPECT_EQ("150:Level 10", row[2]);
    EXPECT_EQ("230: 1 Win", row[3]);
    EXPECT_EQ("305: 1 Loss", row[4]);
    vs.YouWon = 10;
    vs.LevelOfZeph = 11;
    row = texts(vsCpuScoreRow(vs, 1));
    EXPECT_EQ("150:Master!", row[2]);
    EXPECT_EQ("230:10 Wins", row[3]);
}

TEST(ScoreTextTest, TimesAreMinutesAndSecondsInTwoPlacesAtLeast) {
    EXPECT_EQ("01:15", minutesAndSeconds(75));
    EXPECT_EQ("60:00", minutesAndSeconds(3600));
    EXPECT_EQ("100:00", minutesAndSeconds(6000));
    EXPECT_EQ("00:00", minutesAndSeconds(0));
}

TEST(ScoreTextTest, MarksFollowTheBallNumbersOfThePlacesNotZeroAndOnlyTheNewRowIsMarked) {
    EXPECT_EQ((std::vector<int>{2, 9}), ballMarks("010000001"));
    EXPECT_EQ((std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9}), ballMarks("111111111"));
    SoloRecordType solo;
    solo.place = 11;
    EXPECT_TRUE(soloScoreRow(solo, 10).isNew);
    solo.place = 10;
    EXPECT_FALSE(soloScoreRow(solo, 10).isNew);
}

} // namespace
