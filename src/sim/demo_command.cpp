#include "sim/demo_command.h"

#include "cpu/cpu_constants.h"
#include "game/table_queries.h"
#include "game/text.h"
#include "rules/demo.h"
#include "sim/command_options.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

namespace morvane::sim {

using nlohmann::json;

namespace {

constexpr int64_t kMostGames = 1000000;

json gameToJson(int number, const DemoGame& game) {
    json line = playedGameToJson(game);
    line.erase("balls");
    line["game"] = number;
    line["nine"] = game.nineBy;
    line["rackedAnew"] = game.rackedAnew;
    return line;
}

// The value at a share of the way through a sorted list, the nearer rank taken.
int quantile(const std::vector<int>& sorted, double share) {
    return sorted[size_t(share * double(sorted.size() - 1) + 0.5)];
}

json shotsSummary(std::vector<int> shots) {
    std::sort(shots.begin(), shots.end());
    json histogram = json::object();
    for (int n : shots)
        histogram[std::to_string(n)] = histogram.value(std::to_string(n), 0) + 1;
    double total = 0;
    for (int n : shots)
        total += n;
    return {{"min", shots.front()},
            {"q1", quantile(shots, 0.25)},
            {"median", quantile(shots, 0.5)},
            {"q3", quantile(shots, 0.75)},
            {"max", shots.back()},
            {"mean", total / double(shots.size())},
            {"histogram", histogram}};
}

} // namespace

DemoGame playDemoGame(HeadlessSession& session, StrategyTally& tally,
                      const std::function<void(const GameState&)>& afterShot) {
    GameState& g = session.g;
    DemoGame game;
    ShotWatch watch;
    const int64_t start = g.nowMs;
    startDemo(g);
    while (g.gameMode == kModeDemo && session.step(start + kGameTimeLimitMs)) {
        tally.look(g);
        const ShotWatch::Change change = watch.look(g);
        if (g.gameMode != kModeDemo)
            break; // the tick that ended the game has cleared the counters
        if (g.shotCount < game.shown.shots)
            ++game.rackedAnew;
        game.shown = statisticsOf(g);
        if (change == ShotWatch::Change::ShotEnded && afterShot)
            afterShot(g);
    }
    game.ended = g.gameMode == kModeMenu;
    game.simulatedSeconds = double(g.nowMs - start) / kMsPerSecond;
    if (watch.shooter() >= 0)
        game.nineBy = trimBlanks(g.players[watch.shooter()].name);
    return game;
}

int runDemoCommand(const std::vector<std::string>& options, std::ostream& out, std::ostream& err) {
    CommandOptions opts;
    int64_t games = 1;
    int64_t level = 0;
    uint64_t seed = 0;
    std::string error = opts.read(options, {"--games", "--level", "--seed"});
    if (error.empty())
        error = opts.wholeNumber("--games", 1, kMostGames, games);
    if (error.empty())
        error = opts.wholeNumber("--level", kZephLevelMin, kZephLevelMax, level);
    if (error.empty())
        error = opts.seed(seed);
    if (!error.empty())
        return reportBadInput(err, "demo", error);

    HeadlessSession session(seed);
    if (opts.has("--level"))
        session.g.zephLevel = int16_t(level);
    StrategyTally tally;
    std::vector<int> shots;
    std::map<std::string, int> nineBy;
    int unfinished = 0;
    int rackedAnew = 0;
    double seconds = 0;
    for (int k = 1; k <= games; ++k) {
        const DemoGame game = playDemoGame(session, tally);
        out << gameToJson(k, game).dump() << "\n";
        shots.push_back(game.shown.shots);
        if (game.ended)
            ++nineBy[game.nineBy];
        else
            ++unfinished;
        seconds += game.simulatedSeconds;
        rackedAnew += game.rackedAnew;
    }
    out << json{{"summary", true},
                {"games", games},
                {"zephLevel", session.g.zephLevel},
                {"unfinished", unfinished},
                {"rackedAnew", rackedAnew},
                {"nine", nineBy},
                {"shotsPerGame", shotsSummary(shots)},
                {"strategies", tally.counts},
                {"combinations", tally.combinations},
                {"simulatedSeconds", seconds}}
               .dump()
        << "\n";
    return 0;
}

} // namespace morvane::sim
