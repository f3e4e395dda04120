// The two record tables in JSON, and which row a game or match just ended has entered.
#pragma once

#include "game/game_state.h"
#include "records/record_constants.h"

#include <nlohmann/json.hpp>

#include <array>
#include <optional>

namespace morvane::sim {

// Rows 1 to 10, each field under its own name, names untrimmed as held.
nlohmann::json soloRecordsToJson(const GameState& g);
nlohmann::json vsCpuRecordsToJson(const GameState& g);

// zephLevel and zephProgress added to a JSON object.
void addZephLevel(nlohmann::json& object, const GameState& g);

// The saves of the score file made so far in a run, and how many of them failed.
struct ScoreSaves {
    int32_t made = 0;
    int32_t failed = 0;
};
ScoreSaves scoreSaves(const GameState& g);
// What became of the saves made since `before`: null when there was none, else whether every
// one of them reached the file.
nlohmann::json savedSince(const GameState& g, ScoreSaves before);

// The object on one line. Texts that aren't UTF-8 (which the game never holds) come out with
// U+FFFD in place of their bad bytes rather than stopping the tool.
std::string jsonLine(const nlohmann::json& object);

// The row that the last sort marked as new. Only a sort run by the game just ended marks a row,
// so ask only when that game opened the record screen.
template <typename Row> std::optional<int> markedNewRow(const std::array<Row, 12>& rows) {
    for (int i = kFirstRow; i <= kLastRow; ++i) {
        if (rows[i].place == kNewRowMark)
            return i;
    }
    return std::nullopt;
}

// Where the game just ended has entered its table: the place of the new row if the end of the
// game opened the record screen, else null. Then the person clicks the record screen away.
template <typename Row>
nlohmann::json takeNewRowPlace(GameState& g, const std::array<Row, 12>& rows) {
    if (!g.controls.scoreVisible)
        return nullptr;
    g.controls.scoreVisible = false;
    const std::optional<int> place = markedNewRow(rows);
    return place ? nlohmann::json(*place) : nlohmann::json(nullptr);
}

} // namespace morvane::sim
