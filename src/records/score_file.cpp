#include "records/score_file.h"

#include "game/text.h"
#include "records/data_folder.h"
#include "records/integer16.h"
#include "records/profile_file.h"
#include "records/record_constants.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace morvane {

namespace {

// One key of a row: a number field, or a text field of a fixed width.
template <class Row> struct RecordKey {
    const char* word;
    int16_t Row::*number = nullptr;
    std::string Row::*text = nullptr;
    int width = 0;
};

// The six keys of a row, in the order in which they stand in the file.
constexpr std::array<RecordKey<SoloRecordType>, 6> kSoloKeys{{
    {"Shots", &SoloRecordType::Shots},
    {"Time", &SoloRecordType::Time},
    {"Turn", &SoloRecordType::Turn},
    {"Name", nullptr, &SoloRecordType::Name, kRecordNameWidth},
    {"Balls", nullptr, &SoloRecordType::Balls, kRecordBallsWidth},
    {"Date", nullptr, &SoloRecordType::Date, kRecordDateWidth},
}};

constexpr std::array<RecordKey<VsCpuRecordType>, 6> kVsCpuKeys{{
    {"Name", nullptr, &VsCpuRecordType::Name, kRecordNameWidth},
    {"Date", nullptr, &VsCpuRecordType::Date, kRecordDateWidth},
    {"Time", &VsCpuRecordType::Time},
    {"YouWon", &VsCpuRecordType::YouWon},
    {"CPUWon", &VsCpuRecordType::CPUWon},
    {"LevelOfZeph", &VsCpuRecordType::LevelOfZeph},
}};

// The key's word followed by the row in two digits: "Shots01" to "Shots10".
std::string rowKey(const char* word, int row) {
    char digits[8];
    std::snprintf(digits, sizeof digits, "%02d", row);
    return word + std::string(digits);
}

template <class Row, size_t N>
void loadRow(Row& row, int i, const std::array<RecordKey<Row>, N>& keys, const char* section,
             const std::string& file) {
    const Row defaults;
    for (const RecordKey<Row>& k : keys) {
        const std::string key = rowKey(k.word, i);
        if (k.number) {
            row.*k.number =
                toInteger16(GetPrivateProfileIntA(section, key, defaults.*k.number, file));
        } else {
            const std::string text = GetPrivateProfileStringA(section, key, defaults.*k.text, file);
            row.*k.text = fitToWidth(trimAtNull(text), k.width);
        }
    }
}

template <class Row, size_t N>
void saveRow(const Row& row, int i, const std::array<RecordKey<Row>, N>& keys, const char* section,
             const std::string& file) {
    for (const RecordKey<Row>& k : keys) {
        const std::string value =
            k.number ? signedNumberText(row.*k.number) : fitToWidth(row.*k.text, k.width);
        WritePrivateProfileStringA(section, rowKey(k.word, i), value, file);
    }
}

} // namespace

std::string scoreFilePath() {
    return getWindowsPath() + kScoreFileName;
}

int16_t getNumOfBallFromBalls(const std::string& strBalls) {
    // A place that isn't there counts as a ball, as a blank does: only a "0" says no ball.
    const std::string places = fitToWidth(strBalls, kRecordBallsWidth);
    return int16_t(kRecordBallsWidth - std::ranges::count(places, '0'));
}

float winRate(int16_t youWon, int16_t cpuWon) {
    const double played = double(youWon) + double(cpuWon);
    return played == 0 ? 0.0f : float(double(youWon) / played);
}

void loadSoloRecord(GameState& g) {
    const std::string file = scoreFilePath();
    for (int i = kFirstRow; i <= kLastRow; ++i) {
        SoloRecordType& row = g.soloRecords[i];
        loadRow(row, i, kSoloKeys, kSoloSection, file);
        row.numOfBalls = getNumOfBallFromBalls(row.Balls);
        row.place = int16_t(i);
    }
}

void loadVsCpuRecord(GameState& g) {
    const std::string file = scoreFilePath();
    for (int i = kFirstRow; i <= kLastRow; ++i) {
        VsCpuRecordType& row = g.vsCpuRecords[i];
        loadRow(row, i, kVsCpuKeys, kVsCpuSection, file);
        row.winRate = winRate(row.YouWon, row.CPUWon);
        row.place = int16_t(i);
    }
}

void saveSoloRecord(const GameState& g) {
    const std::string file = scoreFilePath();
    for (int i = kFirstRow; i <= kLastRow; ++i)
        saveRow(g.soloRecords[i], i, kSoloKeys, kSoloSection, file);
}

void saveVsCpuRecord(const GameState& g) {
    const std::string file = scoreFilePath();
    for (int i = kFirstRow; i <= kLastRow; ++i)
        saveRow(g.vsCpuRecords[i], i, kVsCpuKeys, kVsCpuSection, file);
}

void loadZephLevel(GameState& g) {
    const std::string file = scoreFilePath();
    const int32_t level = GetPrivateProfileIntA(kZephSection, "LV", kDefaultZephLevel, file);
    g.zephLevel = int16_t(std::clamp<int32_t>(level, kLowestZephLevel, kHighestZephLevel));
    g.zephProgress =
        toInteger16(GetPrivateProfileIntA(kZephSection, "PG", kDefaultZephProgress, file));
}

void saveZephLevel(const GameState& g) {
    const std::string file = scoreFilePath();
    WritePrivateProfileStringA(kZephSection, "LV", signedNumberText(g.zephLevel), file);
    WritePrivateProfileStringA(kZephSection, "PG", signedNumberText(g.zephProgress), file);
}

} // namespace morvane
