#include "records/ranking.h"

#include "game/table_queries.h"
#include "game/text.h"
#include "records/integer16.h"
#include "records/record_constants.h"
#include "records/score_file.h"

#include <cstdio>
#include <initializer_list>
#include <utility>

namespace morvane {

namespace {

// Below 0 when a is the better of the two, above 0 when b is, 0 on a tie.
template <class T> int smallerIsBetter(T a, T b) {
    return a < b ? -1 : (b < a ? 1 : 0);
}
template <class T> int largerIsBetter(T a, T b) {
    return smallerIsBetter(b, a);
}

// The first comparison that isn't a tie settles the order.
int firstDifference(std::initializer_list<int> comparisons) {
    for (int c : comparisons) {
        if (c != 0)
            return c;
    }
    return 0;
}

// Fewer turns; then more shots; then more balls down; then less time.
int compareSolo(const SoloRecordType& a, const SoloRecordType& b) {
    return firstDifference({smallerIsBetter(a.Turn, b.Turn), largerIsBetter(a.Shots, b.Shots),
                            largerIsBetter(a.numOfBalls, b.numOfBalls),
                            smallerIsBetter(a.Time, b.Time)});
}

// A higher level of zeph; then more games won; then fewer lost; then a shorter last game.
int compareVsCpu(const VsCpuRecordType& a, const VsCpuRecordType& b) {
    return firstDifference({largerIsBetter(a.LevelOfZeph, b.LevelOfZeph),
                            largerIsBetter(a.YouWon, b.YouWon), smallerIsBetter(a.CPUWon, b.CPUWon),
                            smallerIsBetter(a.Time, b.Time)});
}

std::string paddedPlayerName(const GameState& g) {
    return fitToWidth(g.players[0].name, kRecordNameWidth);
}

// The new row rises past every row that it beats; equal rows keep their order.
template <class Row, class Compare> void bubbleRows(std::array<Row, 12>& rows, Compare compare) {
    for (int pass = 0; pass < kSortPasses; ++pass) {
        for (int i = kFirstRow; i < kWorkingRow; ++i) {
            if (compare(rows[i + 1], rows[i]) < 0)
                std::swap(rows[i], rows[i + 1]);
        }
    }
}

} // namespace

std::string todayText(GameState& g) {
    const CalendarDate date = g.ports.clock->today();
    char text[16];
    std::snprintf(text, sizeof text, "%02d/%02d/%02d", (date.year % 100 + 100) % 100,
                  date.month % 100, date.day % 100);
    return text;
}

void fillSoloWorkingRow(GameState& g) {
    SoloRecordType& row = g.soloRecords[kWorkingRow];
    row.Shots = g.shotCount;
    row.Time = toInteger16(g.gameSeconds);
    row.Turn = g.turnCount;
    row.Name = paddedPlayerName(g);
    row.Balls = getPocketedString(g);
    row.Date = todayText(g);
    row.numOfBalls = getNumOfBallFromBalls(row.Balls);
}

void fillVsCpuWorkingRow(GameState& g) {
    VsCpuRecordType& row = g.vsCpuRecords[kWorkingRow];
    row.Name = paddedPlayerName(g);
    row.Time = toInteger16(g.gameSeconds);
    row.Date = todayText(g);
    row.YouWon = g.players[0].gamesWon;
    row.CPUWon = g.players[1].gamesWon;
    row.LevelOfZeph = g.zephLevel;
    row.winRate = winRate(row.YouWon, row.CPUWon);
}

bool doseLankInSolo(GameState& g) {
    fillSoloWorkingRow(g);
    return compareSolo(g.soloRecords[kWorkingRow], g.soloRecords[kLastRow]) < 0;
}

bool doseLankInVSCpu(GameState& g) {
    if (g.players[0].gamesWon <= g.players[1].gamesWon)
        return false;
    fillVsCpuWorkingRow(g);
    return compareVsCpu(g.vsCpuRecords[kWorkingRow], g.vsCpuRecords[kLastRow]) < 0;
}

void unmarkNewRows(GameState& g) {
    for (int i = kFirstRow; i <= kLastRow; ++i) {
        g.soloRecords[i].place = int16_t(i);
        g.vsCpuRecords[i].place = int16_t(i);
    }
}

void sortSoloRecord(GameState& g) {
    fillSoloWorkingRow(g);
    g.soloRecords[kWorkingRow].place = kNewRowMark;
    unmarkNewRows(g);
    bubbleRows(g.soloRecords, compareSolo);
}

void sortVsCPURecord(GameState& g) {
    fillVsCpuWorkingRow(g);
    g.vsCpuRecords[kWorkingRow].place = kNewRowMark;
    unmarkNewRows(g);
    bubbleRows(g.vsCpuRecords, compareVsCpu);
}

} // namespace morvane
