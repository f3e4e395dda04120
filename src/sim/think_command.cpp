#include "sim/think_command.h"

#include "cpu/cpu_constants.h"
#include "cpu/shot_choice.h"
#include "cpu/turn_driver.h"
#include "game/racking.h"
#include "game/table_queries.h"
#include "sim/command_options.h"
#include "sim/headless_session.h"
#include "sim/play_watch.h"
#include "sim/table_checks.h"
#include "sim/table_json.h"

#include <ostream>

namespace morvane::sim {

using nlohmann::json;

namespace {

std::string readTable(const json& input, GameState& g) {
    rackBalls(g);
    g.breakPending = false;
    g.ballInHand = false;
    std::string error = readBalls(input, g.Balls);
    if (error.empty())
        error = readFlag(input, "ballInHand", g.ballInHand);
    if (error.empty())
        error = readFlag(input, "breakPending", g.breakPending);
    PointType aim = g.breakPending ? straightBreakAim() : PointType{g.aimX, g.aimY};
    if (error.empty())
        error = readPoint(input, "aim", kMouseReach, aim);
    if (error.empty())
        error = checkBallPlaces(g.Balls);
    if (error.empty() && g.breakPending)
        error = checkBreak(g.Balls, aim);
    if (error.empty() && getLowestBall(g) == 0)
        error = "balls: no object ball is on the table";
    g.aimX = aim.x;
    g.aimY = aim.y;
    return error;
}

json planToJson(const ShotPlan& plan) {
    return {{"planX", plan.planX},   {"planY", plan.planY},     {"cutAngle", plan.cutAngle},
            {"cueRun", plan.cueRun}, {"ballRun", plan.ballRun}, {"found", plan.found}};
}

} // namespace

int runThinkCommand(const std::vector<std::string>& options, std::istream& in, std::ostream& out,
                    std::ostream& err) {
    CommandOptions opts;
    int64_t level = 0;
    uint64_t seed = 0;
    json input;
    std::string error = opts.read(options, {"--level", "--seed"});
    if (error.empty())
        error = opts.require("--level");
    if (error.empty())
        error = opts.wholeNumber("--level", kZephLevelMin, kZephLevelMax, level);
    if (error.empty())
        error = opts.seed(seed);
    if (error.empty())
        error = readInputObject(in, input);
    if (!error.empty())
        return reportBadInput(err, "think", error);
    HeadlessSession session(seed);
    GameState& g = session.g;
    error = readTable(input, g);
    if (!error.empty())
        return reportBadInput(err, "think", error);

    // zeph's turn in a match, tick by tick up to the one that shoots. The plan is worked out
    // again on the table as the decision tick finds it: the decision keeps it to itself.
    g.gameMode = kModeVersus;
    g.zephLevel = int16_t(level);
    json plan = nullptr;
    std::string strategy;
    while (g.cpuTickCounter < kTickShoot) {
        if (g.cpuTickCounter == kTickThink && !g.breakPending) {
            const ShotPlan chosen = choosePlan(g, g.zephLevel);
            plan = planToJson(chosen);
            strategy = strategyName(chosen.strategy);
        }
        timCom_Timer(g);
    }
    out << json{{"level", level},
                {"plan", plan},
                {"aimX", g.aimX},
                {"aimY", g.aimY},
                {"power", g.controls.power},
                {"remark", g.controls.zephsMessage},
                {"strategy", strategy},
                {"cue", {g.Balls[kCueBall].x, g.Balls[kCueBall].y}}}
               .dump()
        << "\n";
    return 0;
}

} // namespace morvane::sim
