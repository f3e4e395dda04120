#include "records/score_file.h"

#include "game/text.h"
#include "game/zeph_level.h"
#include "records/data_folder.h"
#include "records/integer16.h"
#include "records/profile_file.h"
#include "records/record_constants.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>

namespace morvane {

namespace {

constexpr const char* kLevelKey = "LV";
constexpr const char* kProgressKey = "PG";

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

// One save of the score file, counted with its outcome.
bool saveScoreFile(GameState& g, const std::function<void(IniDocument&)>& change) {
    const bool saved = saveProfile(scoreFilePath(), change);
    ++g.scoreFileSaves;
    if (!saved)
        ++g.failedScoreFileSaves;
    return saved;
}

template <class Row, size_t N>
void loadRow(Row& row, int i, const std::array<RecordKey<Row>, N>& keys, const char* section,
             const IniDocument& file) {
    const Row defaults;
    for (const RecordKey<Row>& k : keys) {
        const std::string key = rowKey(k.word, i);
        if (k.number) {
            row.*k.number = toInteger16(file.readInt(section, key, defaults.*k.number));
        } else {
            const std::string text = file.readString(section, key, defaults.*k.text);
            row.*k.text = fitToWidth(trimAtNull(text), k.width);
        }
    }
}

template <class Row, size_t N>
void setRow(IniDocument& file, const Row& row, int i, const std::array<RecordKey<Row>, N>& keys,
            const char* section) {
    for (const RecordKey<Row>& k : keys) {
        const std::string value =
            k.number ? signedNumberText(row.*k.number) : fitToWidth(row.*k.text, k.width);
        file.set(section, rowKey(k.word, i), value);
    }
}

// Rows 1 to 10 of a table into the file, in one save.
template <class Row, size_t N>
bool saveTable(GameState& g, const std::array<Row, 12>& rows,
               const std::array<RecordKey<Row>, N>& keys, const char* section) {
    return saveScoreFile(g, [&](IniDocument& file) {
        for (int i = kFirstRow; i <= kLastRow; ++i)
            setRow(file, rows[i], i, keys, section);
    });
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
    const IniDocument file = loadProfile(scoreFilePath());
    for (int i = kFirstRow; i <= kLastRow; ++i) {
        SoloRecordType& row = g.soloRecords[i];
        loadRow(row, i, kSoloKeys, kSoloSection, file);
        row.numOfBalls = getNumOfBallFromBalls(row.Balls);
        row.place = int16_t(i);
    }
}

void loadVsCpuRecord(GameState& g) {
    const IniDocument file = loadProfile(scoreFilePath());
    for (int i = kFirstRow; i <= kLastRow; ++i) {
        VsCpuRecordType& row = g.vsCpuRecords[i];
        loadRow(row, i, kVsCpuKeys, kVsCpuSection, file);
        row.winRate = winRate(row.YouWon, row.CPUWon);
        row.place = int16_t(i);
    }
}

bool saveSoloRecord(GameState& g) {
    return saveTable(g, g.soloRecords, kSoloKeys, kSoloSection);
}

bool saveVsCpuRecord(GameState& g) {
    return saveTable(g, g.vsCpuRecords, kVsCpuKeys, kVsCpuSection);
}

void loadZephLevel(GameState& g) {
    const IniDocument file = loadProfile(scoreFilePath());
    const int32_t level = file.readInt(kZephSection, kLevelKey, kDefaultZephLevel);
    g.zephLevel = int16_t(std::clamp<int32_t>(level, kZephLevelMin, kZephLevelMax));
    g.zephProgress = toInteger16(file.readInt(kZephSection, kProgressKey, kDefaultZephProgress));
}

bool saveZephLevel(GameState& g) {
    return saveScoreFile(g, [&](IniDocument& file) {
        file.set(kZephSection, kLevelKey, signedNumberText(g.zephLevel));
        file.set(kZephSection, kProgressKey, signedNumberText(g.zephProgress));
    });
}

} // namespace morvane
