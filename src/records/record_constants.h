// Fixed names and sizes of the score file and the two record tables.
#pragma once

#include <cstdint>

namespace morvane {

constexpr const char* kScoreFileName = "MVSCORE.INI";
constexpr const char* kSoloSection = "SOLO";
constexpr const char* kVsCpuSection = "VSCPU";
constexpr const char* kZephSection = "ZEPH";

// Rows 1 to 10 are a table, best first; row 11 is the working row of a new game.
constexpr int kFirstRow = 1;
constexpr int kLastRow = 10;
constexpr int kWorkingRow = 11;
constexpr int16_t kNewRowMark = 11; // place of the row inserted last
constexpr int kSortPasses = 11;

// Widths of the text fields, in characters.
constexpr int kRecordNameWidth = 20;
constexpr int kRecordBallsWidth = 9;
constexpr int kRecordDateWidth = 8;

// zeph's level and progress when the file holds none.
constexpr int16_t kDefaultZephLevel = 1;
constexpr int16_t kDefaultZephProgress = 0;

} // namespace morvane
