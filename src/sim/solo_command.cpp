#include "sim/solo_command.h"

#include "cpu/cpu_constants.h"
#include "records/text_bytes.h"
#include "rules/modes.h"
#include "sim/command_options.h"
#include "sim/commands.h"
#include "sim/played_game.h"
#include "sim/records_json.h"

#include <ostream>

namespace morvane::sim {

int runSoloCommand(const std::vector<std::string>& options, std::ostream& out, std::ostream& err) {
    CommandOptions opts;
    int64_t level = kZephLevelMax;
    uint64_t seed = 0;
    std::string error = opts.read(options, {"--name", "--level", "--seed"});
    if (error.empty())
        error = opts.require("--name");
    if (error.empty())
        error = opts.wholeNumber("--level", kZephLevelMin, kZephLevelMax, level);
    if (error.empty())
        error = opts.seed(seed);
    if (!error.empty())
        return reportBadInput(err, "solo", error);

    FormAnswers answers;
    answers.recordName = utf8FromAnyBytes(opts.text("--name"));
    HeadlessSession session(seed, answers);
    GameState& g = session.g;
    const ScoreSaves before = scoreSaves(g);
    picSoloPlay_Click(g, 0);
    StandInPlayer player{int16_t(level)};
    const PlayedGame game = playToEndOfGame(session, player);
    const nlohmann::json place = takeNewRowPlace(g, g.soloRecords);
    nlohmann::json result = playedGameToJson(game);
    result["level"] = level;
    result["entered"] = !place.is_null();
    result["place"] = place;
    result["recordName"] = place.is_null() ? nlohmann::json(nullptr)
                                           : nlohmann::json(g.soloRecords[place.get<int>()].Name);
    result["saved"] = savedSince(g, before);
    out << jsonLine(result);
    return result["saved"] == false ? kNotSaved : 0;
}

} // namespace morvane::sim
