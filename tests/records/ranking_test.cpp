#include "game/racking.h"
#include "game/text.h"
#include "records/ranking.h"
#include "records/score_file.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

class FixedDay : public ClockPort {
  public:
    CalendarDate today() override { return {2026, 3, 5}; }
};

using Names = std::vector<std::string>;

// A fresh pair of tables, and games and matches that end, ask for their place and take it.
class Ranking : public ::testing::Test {
  protected:
    FixedDay clock;
    GameState g;

    void SetUp() override {
        g.ports.clock = &clock;
        rackBalls(g);
        unmarkNewRows(g);
    }
    bool endSolo(const std::string& name, int turns, int shots, int seconds, int ballsDown = 1,
                 bool sort = true) {
        g.players[0].name = name;
        g.turnCount = int16_t(turns);
        g.shotCount = int16_t(shots);
        g.gameSeconds = int16_t(seconds);
        for (int n = 1; n <= 9; ++n)
            g.Balls[n].onTable = n <= 9 - ballsDown;
        const bool entered = doseLankInSolo(g);
        if (entered && sort)
            sortSoloRecord(g);
        return entered;
    }
    bool endMatch(const std::string& name, int youWon, int cpuWon, int level, int seconds) {
        g.players[0].name = name;
        g.players[0].gamesWon = int16_t(youWon);
        g.players[1].gamesWon = int16_t(cpuWon);
        g.zephLevel = int16_t(level);
        g.gameSeconds = int16_t(seconds);
        const bool entered = doseLankInVSCpu(g);
        if (entered)
            sortVsCPURecord(g);
        return entered;
    }
    // The names of the first rows of a table without their blanks, the new row's marked "*".
    template <typename Rows> static Names names(const Rows& table, int rows) {
        Names found;
        for (int i = 1; i <= rows; ++i)
            found.push_back(trimBlanks(table[i].Name) + (table[i].place == 11 ? "*" : ""));
        return found;
    }
};

TEST_F(Ranking, AGameOnAFreshTableRisesToTheTopWithItsRow) {
    ASSERT_TRUE(endSolo("You", 10, 3, 900, 9));
    const SoloRecordType& top = g.soloRecords[1];
    EXPECT_EQ(std::tie(top.Name, top.Turn, top.Shots, top.Time, top.Balls, top.numOfBalls, top.Date,
                       top.place),
              std::tuple("You" + std::string(17, ' '), 10, 3, 900, "123456789", 9, "26/03/05", 11));
    EXPECT_EQ(g.soloRecords[11].place, 10) << "the old row 10 fell out";
}

// Solo rows go by turns, then more shots, then balls, then time; matches by zeph's level, then
// wins, then fewer losses, then time, and a match not won never enters.
TEST_F(Ranking, EachTableHasItsOwnOrder) {
    // A game: its name, turns, shots, seconds and balls down; a match: its name, wins, losses,
    // zeph's level and seconds.
    using Ending = std::tuple<const char*, int, int, int, int>;
    const Ending games[] = {{"thirty", 5, 30, 100, 1},
                            {"forty", 5, 40, 100, 1},
                            {"fast", 5, 20, 50, 1},
                            {"moreBalls", 5, 20, 500, 3},
                            {"fewTurns", 2, 2, 3000, 1}};
    const Ending matches[] = {{"3-0 L4", 3, 0, 4, 100},      {"7-0 L4", 7, 0, 4, 100},
                              {"3-0 L5", 3, 0, 5, 100},      {"3-2 L6", 3, 2, 6, 100},
                              {"3-1 L5 long", 3, 1, 5, 300}, {"3-1 L5 short", 3, 1, 5, 200}};
    for (const auto& [name, turns, shots, seconds, balls] : games)
        ASSERT_TRUE(endSolo(name, turns, shots, seconds, balls));
    EXPECT_EQ(names(g.soloRecords, 6),
              (Names{"fewTurns*", "forty", "thirty", "moreBalls", "fast", "zeph"}));

    EXPECT_FALSE(endMatch("lost", 2, 3, 11, 100));
    EXPECT_FALSE(endMatch("drawn", 1, 1, 11, 100));
    for (const auto& [name, won, lost, level, seconds] : matches)
        ASSERT_TRUE(endMatch(name, won, lost, level, seconds));
    EXPECT_EQ(names(g.vsCpuRecords, 6),
              (Names{"3-2 L6", "3-0 L5", "3-1 L5 short*", "3-1 L5 long", "7-0 L4", "3-0 L4"}));
    const VsCpuRecordType& newest = g.vsCpuRecords[3];
    EXPECT_EQ(std::tie(newest.Time, newest.Date, newest.winRate),
              std::tuple(200, "26/03/05", 0.75f));
    EXPECT_EQ(names(g.soloRecords, 1), Names{"fewTurns"}) << "only the latest entry stays marked";
}

TEST_F(Ranking, EqualRowsKeepTheirOrderAnEqualOfRowTenStaysOutAndTheSortTakesANameGivenLater) {
    for (int i = 0; i < 10; ++i)
        ASSERT_TRUE(endSolo("old" + std::to_string(i), 4, 20 - i, 200));
    EXPECT_FALSE(endSolo("sameAsRow10", 4, 11, 200));
    ASSERT_TRUE(endSolo("asked", 4, 18, 200, 1, false));
    g.players[0].name = "Given";
    sortSoloRecord(g);
    EXPECT_EQ(names(g.soloRecords, 5), (Names{"old0", "old1", "old2", "Given*", "old3"}));
    EXPECT_EQ(trimBlanks(g.soloRecords[11].Name), "old9");
}

} // namespace
