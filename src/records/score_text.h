// The lines of the record screen as texts at their pixel places: both tables, one row at a time,
// with the ball marks of the solo table. The screen prints them; the wording is decided here.
#pragma once

#include "game/game_state.h"

#include <string>
#include <vector>

namespace morvane {

constexpr int kScoreTitleX = 30;
constexpr int kSoloTitleY = 2;
constexpr int kScoreTitleFontPoints = 14;
constexpr int kScoreRowFontPoints = 12;
constexpr int kBallMarksX = 300;
constexpr int kBallMarkSize = 10;
constexpr int kBallMarkDrop = 5; // a mark stands this far under its row's y
constexpr int kBallMarkSheetY = 350;
constexpr const char* kSoloTitle = "Best Players of Solo Game";
constexpr const char* kVsCpuTitle = "Best Players of VS.CPU";

// One text of a row, printed with its top left corner at (x, the row's y).
struct ScoreText {
    int x = 0;
    std::string text;
};

struct ScoreRow {
    int y = 0;
    bool isNew = false;           // place 11: the row just entered, in magenta
    std::vector<ScoreText> texts; // in the order they are printed
    std::vector<int> ballMarks;   // solo rows: the numbers of the balls marked, in order
};

int soloRowY(int row);
int vsCpuTitleY();
int vsCpuRowY(int row);

// Right-aligned in two places with blanks: "@@".
std::string twoPlaces(long value);
// Time \ 60 and Time mod 60, each in at least two digits: "01:15", "60:00".
std::string minutesAndSeconds(int16_t seconds);
// The numbers 1 to 9 of the places in a Balls text that hold anything but "0".
std::vector<int> ballMarks(const std::string& balls);

ScoreRow soloScoreRow(const SoloRecordType& record, int row);
ScoreRow vsCpuScoreRow(const VsCpuRecordType& record, int row);

} // namespace morvane
