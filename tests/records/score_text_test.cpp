// The lines of the record screen: places, counts in the singular and plural, levels and times.
#include "records/score_text.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

using Texts = std::vector<std::string>;

Texts texts(const ScoreRow& row) {
    Texts all;
    for (const ScoreText& t : row.texts)
        all.push_back(std::to_string(t.x) + ":" + t.text);
    return all;
}

TEST(ScoreText, RowsReadInTheirColumnsAndExactlyOneTakesTheSingular) {
    SoloRecordType solo;
    EXPECT_EQ(texts(soloScoreRow(solo, 3)), (Texts{"10: 3", "40:zeph", "150:0 Shots",
                                                   "230:10 Turns", "400:60:00", "460:98/01/01"}));
    solo.Shots = solo.Turn = 1;
    EXPECT_EQ(texts(soloScoreRow(solo, 1))[2] + texts(soloScoreRow(solo, 1))[3],
              "150:1 Shot230:1 Turn");

    VsCpuRecordType vs;
    vs.YouWon = vs.CPUWon = 1;
    vs.LevelOfZeph = 10;
    EXPECT_EQ(texts(vsCpuScoreRow(vs, 10)), (Texts{"10:10", "40:zeph", "150:Level 10", "230: 1 Win",
                                                   "305: 1 Loss", "400:60:00", "460:98/01/01"}));
    vs.YouWon = 10;
    vs.LevelOfZeph = 11;
    EXPECT_EQ(texts(vsCpuScoreRow(vs, 1))[2] + texts(vsCpuScoreRow(vs, 1))[3],
              "150:Master!230:10 Wins");
    EXPECT_EQ(minutesAndSeconds(75) + minutesAndSeconds(6000), "01:15100:00");
}

} // namespace
