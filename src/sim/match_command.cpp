#include "sim/match_command.h"

#include "cpu/cpu_constants.h"
#include "game/text.h"
#include "records/text_bytes.h"
#include "rules/modes.h"
#include "sim/command_options.h"
#include "sim/commands.h"
#include "sim/played_game.h"
#include "sim/records_json.h"

#include <ostream>

namespace morvane::sim {

using nlohmann::json;

namespace {

constexpr int64_t kLongestMatch = 15;
constexpr int64_t kDefaultMatchLength = 3;
constexpr int64_t kMostMatches = 100000;
constexpr int kYou = 0;
constexpr int kZeph = 1;
constexpr const char* kSideNames[] = {"You", "zeph"};

struct MatchOptions {
    int64_t target = kDefaultMatchLength;
    int64_t level = 0;
    int64_t youLevel = 0;
    int64_t matches = 1;
    uint64_t seed = 0;
};

std::string readMatchOptions(CommandOptions& opts, const std::vector<std::string>& options,
                             MatchOptions& read) {
    std::string error =
        opts.read(options, {"--target", "--level", "--you-level", "--matches", "--name", "--seed"});
    if (error.empty())
        error = opts.require("--you-level");
    if (error.empty())
        error = opts.wholeNumber("--you-level", kZephLevelMin, kZephLevelMax, read.youLevel);
    if (error.empty())
        error = opts.wholeNumber("--level", kZephLevelMin, kZephLevelMax, read.level);
    if (error.empty())
        error = opts.wholeNumber("--target", 1, kLongestMatch, read.target);
    if (error.empty())
        error = opts.wholeNumber("--matches", 1, kMostMatches, read.matches);
    if (error.empty())
        error = opts.seed(read.seed);
    return error;
}

struct Tally {
    std::array<int, 2> matches{};
    std::array<int, 2> games{};
    int unfinished = 0;
};

// Plays the games of one match; returns false if a game never ended.
bool playMatch(HeadlessSession& session, StandInPlayer& you, int number, Tally& tally,
               std::ostream& out) {
    GameState& g = session.g;
    const ScoreSaves before = scoreSaves(g);
    for (int game = 1;; ++game) {
        const PlayedGame played = playToEndOfGame(session, you);
        json line = playedGameToJson(played);
        line["match"] = number;
        line["game"] = game;
        if (!played.ended) {
            out << jsonLine(line);
            ++tally.unfinished;
            return false;
        }
        const ShownStatistics& s = played.shown;
        line["winner"] = kSideNames[s.winner];
        line["score"] = s.gamesWon;
        out << jsonLine(line);
        ++tally.games[s.winner];
        if (!s.matchOver)
            continue;
        ++tally.matches[s.winner];
        json result{{"match", number},
                    {"winner", kSideNames[s.winner]},
                    {"youWon", s.gamesWon[kYou]},
                    {"zephWon", s.gamesWon[kZeph]},
                    {"recordPlace", takeNewRowPlace(g, g.vsCpuRecords)}};
        addZephLevel(result, g);
        result["saved"] = savedSince(g, before);
        out << jsonLine(result);
        return true;
    }
}

} // namespace

int runMatchCommand(const std::vector<std::string>& options, std::ostream& out, std::ostream& err) {
    CommandOptions opts;
    MatchOptions read;
    const std::string error = readMatchOptions(opts, options, read);
    if (!error.empty())
        return reportBadInput(err, "match", error);

    FormAnswers answers;
    if (opts.has("--name"))
        answers.firstName = utf8FromAnyBytes(opts.text("--name"));
    answers.matchLength = int16_t(read.target);
    HeadlessSession session(read.seed, answers);
    GameState& g = session.g;
    if (opts.has("--level"))
        g.zephLevel = int16_t(read.level);
    const int16_t startLevel = g.zephLevel;
    const ScoreSaves before = scoreSaves(g);
    picVSCPU_Click(g, 0);
    StandInPlayer you{int16_t(read.youLevel)};
    Tally tally;
    for (int m = 1; m <= read.matches && playMatch(session, you, m, tally, out); ++m) {
    }
    json summary{{"summary", true},
                 {"name", trimBlanks(g.players[kYou].name)},
                 {"youLevel", read.youLevel},
                 {"target", read.target},
                 {"startLevel", startLevel},
                 {"matchesWon", {{"You", tally.matches[kYou]}, {"zeph", tally.matches[kZeph]}}},
                 {"gamesWon", {{"You", tally.games[kYou]}, {"zeph", tally.games[kZeph]}}},
                 {"unfinished", tally.unfinished}};
    addZephLevel(summary, g);
    summary["saved"] = savedSince(g, before);
    out << jsonLine(summary);
    return summary["saved"] == false ? kNotSaved : 0;
}

} // namespace morvane::sim
