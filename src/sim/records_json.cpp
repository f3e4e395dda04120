#include "sim/records_json.h"

namespace morvane::sim {

using nlohmann::json;

json soloRecordsToJson(const GameState& g) {
    json rows = json::array();
    for (int i = kFirstRow; i <= kLastRow; ++i) {
        const SoloRecordType& r = g.soloRecords[i];
        rows.push_back({{"Name", r.Name},
                        {"Shots", r.Shots},
                        {"Turn", r.Turn},
                        {"Time", r.Time},
                        {"Balls", r.Balls},
                        {"numOfBalls", r.numOfBalls},
                        {"Date", r.Date},
                        {"place", r.place}});
    }
    return rows;
}

json vsCpuRecordsToJson(const GameState& g) {
    json rows = json::array();
    for (int i = kFirstRow; i <= kLastRow; ++i) {
        const VsCpuRecordType& r = g.vsCpuRecords[i];
        rows.push_back({{"Name", r.Name},
                        {"YouWon", r.YouWon},
                        {"CPUWon", r.CPUWon},
                        {"winRate", r.winRate},
                        {"Date", r.Date},
                        {"Time", r.Time},
                        {"LevelOfZeph", r.LevelOfZeph},
                        {"place", r.place}});
    }
    return rows;
}

void addZephLevel(json& object, const GameState& g) {
    object["zephLevel"] = g.zephLevel;
    object["zephProgress"] = g.zephProgress;
}

ScoreSaves scoreSaves(const GameState& g) {
    return {g.scoreFileSaves, g.failedScoreFileSaves};
}

json savedSince(const GameState& g, ScoreSaves before) {
    const ScoreSaves now = scoreSaves(g);
    if (now.made == before.made)
        return nullptr;
    return now.failed == before.failed;
}

std::string jsonLine(const json& object) {
    return object.dump(-1, ' ', false, json::error_handler_t::replace) + "\n";
}

} // namespace morvane::sim
