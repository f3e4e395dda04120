// A game of the person's, played to its end by the stand-in at the headless screen.
#pragma once

#include "sim/headless_session.h"
#include "sim/stand_in_player.h"

#include <nlohmann/json.hpp>

namespace morvane::sim {

// No game lasts this long in virtual time: one that does is reported as not ended.
constexpr int64_t kGameTimeLimitMs = 4 * 3600 * 1000;
constexpr double kMsPerSecond = 1000;

struct PlayedGame {
    bool ended = false;
    ShownStatistics shown;       // what the form at the end of the game showed
    double simulatedSeconds = 0; // virtual time the game took
};

// Runs the timers, the stand-in taking the person's turns, until a form at the end of a game has
// shown its statistics. The game-over steps have all run when it returns.
PlayedGame playToEndOfGame(HeadlessSession& session, StandInPlayer& standIn);

// shots, turns, fouls, gameSeconds, balls, simulatedSeconds.
nlohmann::json playedGameToJson(const PlayedGame& game);

} // namespace morvane::sim
