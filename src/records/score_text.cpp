#include "records/score_text.h"

#include "game/zeph_level.h"
#include "records/record_constants.h"

#include <cstdio>

namespace morvane {

namespace {

constexpr int kRowSpacing = 15;
constexpr int kFirstRowOffset = 10;
constexpr int kGapBetweenTables = 30;
constexpr int kTitleDrop = 2;
constexpr int kSecondsAMinute = 60;

// Columns of the solo table.
constexpr int kNumberX = 10;
constexpr int kNameX = 40;
constexpr int kShotsX = 150;
constexpr int kTurnsX = 230;
constexpr int kTimeX = 400;
constexpr int kDateX = 460;
// Columns of the VS-CPU table that differ.
constexpr int kLevelX = 150;
constexpr int kWinsX = 230;
constexpr int kLossesX = 305;

std::string counted(long count, const char* one, const char* many) {
    return count == 1 ? one : many;
}

std::string levelText(int16_t level) {
    return level >= kZephMasterLevel ? "Master!" : "Level " + twoPlaces(level);
}

} // namespace

int soloRowY(int row) {
    return kRowSpacing * row + kFirstRowOffset;
}

int vsCpuTitleY() {
    return soloRowY(kLastRow) + kGapBetweenTables + kTitleDrop;
}

int vsCpuRowY(int row) {
    return soloRowY(kLastRow) + kGapBetweenTables + soloRowY(row);
}

std::string twoPlaces(long value) {
    std::string digits = std::to_string(value);
    return digits.size() < 2 ? " " + digits : digits;
}

std::string minutesAndSeconds(int16_t seconds) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d", seconds / kSecondsAMinute,
                  seconds % kSecondsAMinute);
    return text;
}

std::vector<int> ballMarks(const std::string& balls) {
    std::vector<int> marks;
    for (int b = 1; b <= kRecordBallsWidth && b <= int(balls.size()); ++b) {
        if (balls[b - 1] != '0')
            marks.push_back(b);
    }
    return marks;
}

ScoreRow soloScoreRow(const SoloRecordType& r, int row) {
    return {soloRowY(row),
            r.place == kNewRowMark,
            {{kNumberX, twoPlaces(row)},
             {kNameX, r.Name},
             {kShotsX, std::to_string(r.Shots) + counted(r.Shots, " Shot", " Shots")},
             {kTurnsX, std::to_string(r.Turn) + counted(r.Turn, " Turn", " Turns")},
             {kTimeX, minutesAndSeconds(r.Time)},
             {kDateX, r.Date}},
            ballMarks(r.Balls)};
}

ScoreRow vsCpuScoreRow(const VsCpuRecordType& r, int row) {
    return {vsCpuRowY(row),
            r.place == kNewRowMark,
            {{kNumberX, twoPlaces(row)},
             {kNameX, r.Name},
             {kLevelX, levelText(r.LevelOfZeph)},
             {kWinsX, twoPlaces(r.YouWon) + counted(r.YouWon, " Win", " Wins")},
             {kLossesX, twoPlaces(r.CPUWon) + counted(r.CPUWon, " Loss", " Losses")},
             {kTimeX, minutesAndSeconds(r.Time)},
             {kDateX, r.Date}},
            {}};
}

} // namespace morvane
