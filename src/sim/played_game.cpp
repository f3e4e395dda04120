#include "sim/played_game.h"

namespace morvane::sim {

PlayedGame playToEndOfGame(HeadlessSession& session, StandInPlayer& standIn) {
    PlayedGame game;
    const size_t shownBefore = session.screen.statistics.size();
    const int64_t start = session.g.nowMs;
    while (session.screen.statistics.size() == shownBefore) {
        standIn.look(session.g);
        if (!session.step(start + kGameTimeLimitMs))
            break;
    }
    game.ended = session.screen.statistics.size() > shownBefore;
    if (game.ended)
        game.shown = session.screen.statistics.back();
    game.simulatedSeconds = double(session.g.nowMs - start) / kMsPerSecond;
    return game;
}

nlohmann::json playedGameToJson(const PlayedGame& game) {
    const ShownStatistics& s = game.shown;
    return {{"ended", game.ended},
            {"shots", s.shots},
            {"turns", s.turns},
            {"fouls", s.fouls},
            {"gameSeconds", s.gameSeconds},
            {"balls", s.balls},
            {"simulatedSeconds", game.simulatedSeconds}};
}

} // namespace morvane::sim
