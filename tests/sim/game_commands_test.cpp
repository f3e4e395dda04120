// The whole-game commands of morvane-sim: zeph's decision, demo games, a solo game to the record
// table, matches that grow zeph's level and the records read back, each in a fresh folder.
#include "command_run.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace morvane::testing;
using nlohmann::json;

namespace {

constexpr double kDegree = 3.1415926 / 180;
constexpr double kMissReach = 100.0 / 6; // a disturbed aim lies at most this far off the plan

class GameCommands : public TempHomeTest {};

json think(const std::string& level, const std::string& input) {
    const CommandRun run = runTool({"think", "--level", level, "--seed", "3"}, input);
    EXPECT_EQ(run.status, 0) << run.err;
    return json::parse(run.out, nullptr, false);
}

TEST_F(GameCommands, ThinkGivesZephsPlanAimAndPlaceOfTheCueBallAndNoPlanForABreak) {
    json r = think("1", twoBalls(1800, 700, ""));
    const json& plan = r["plan"];
    EXPECT_NEAR(plan["planX"].get<double>(), 1722.6, 0.05);
    EXPECT_NEAR(plan["planY"].get<double>(), 636.7, 0.05);
    EXPECT_NEAR(plan["cutAngle"].get<double>() / kDegree, 37.42, 0.005);
    EXPECT_EQ(std::tie(plan["found"], r["power"], r["strategy"]),
              std::tuple(true, 100, "tryDirect"));
    EXPECT_LE(std::fabs(r["aimX"].get<double>() - plan["planX"].get<double>()), kMissReach);
    EXPECT_LE(std::fabs(r["aimY"].get<double>() - plan["planY"].get<double>()), kMissReach);
    EXPECT_EQ(r["cue"], json::array({600.0, 600.0})) << "no ball in hand: the cue ball stays";

    r = think("4", twoBalls(1800, 700, R"("ballInHand": true)"));
    EXPECT_NE(r["cue"], json::array({600.0, 600.0}));
    EXPECT_LT(r["plan"]["cutAngle"].get<double>(), 1 * kDegree) << "a straight shot from behind";

    EXPECT_TRUE(think("11", R"({"breakPending": true})")["plan"].is_null());
}

TEST_F(GameCommands, SeededDemoGamesGiveALineEachAndASummaryThatAddsUp) {
    const std::vector<std::string> args{"demo", "--games", "4", "--seed", "5", "--level", "6"};
    const CommandRun run = runTool(args);
    ASSERT_EQ(run.status, 0) << run.err;
    const std::vector<json> lines = run.lines();
    ASSERT_EQ(lines.size(), 5u);
    int shots = 0;
    for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(lines[k]["game"], k + 1);
        EXPECT_TRUE(lines[k]["ended"].get<bool>());
        EXPECT_TRUE(lines[k]["nine"] == "You" || lines[k]["nine"] == "zeph") << lines[k];
        EXPECT_LE(lines[k]["turns"].get<int>(), lines[k]["shots"].get<int>());
        shots += lines[k]["shots"].get<int>();
    }
    const json& summary = lines[4];
    EXPECT_EQ(std::tie(summary["games"], summary["unfinished"]), std::tuple(4, 0));
    int decisions = 0;
    for (const auto& [strategy, count] : summary["strategies"].items())
        decisions += count.get<int>();
    EXPECT_EQ(decisions, shots - 4) << "every shot but the break is one decision of zeph";
    EXPECT_EQ(runTool(args).out, run.out) << "the same seed plays the same games";
}

TEST_F(GameCommands, BadArgumentsGetOneLineNamingTheArgumentAndStatusTwo) {
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"think"}, "--level"},
        {{"think", "--level", "12"}, "--level"},
        {{"demo", "--games", "0"}, "--games"},
        {{"match", "--target", "3"}, "--you-level"},
        {{"solo", "--level", "3"}, "--name"},
        {{"records", "--all"}, "--all"},
    };
    for (const auto& [args, named] : cases) {
        const CommandRun run = runTool(args, twoBalls(1800, 700, ""));
        expectRefused(run, named);
        EXPECT_EQ(run.err.rfind("morvane-sim " + args[0] + ": ", 0), 0u) << run.err;
    }
    EXPECT_TRUE(folderEntries().empty()) << "bad input writes nothing";
}

TEST_F(GameCommands, ASoloGameEntersTheTableUnderTheNameGivenAndRecordsReadsItBack) {
    writeFile(".MVSCORE.INI.Ab12Cd", "[SOLO]\nShots01= 1"); // what a killed save left
    const CommandRun solo = runTool({"solo", "--name", "\x83\x5B\x83\x74", "--seed", "2"});
    ASSERT_EQ(solo.status, 0) << solo.err;
    const json game = json::parse(solo.out);
    EXPECT_EQ(game["balls"].get<std::string>().back(), '9');
    EXPECT_EQ(std::tie(game["ended"], game["entered"], game["place"], game["saved"]),
              std::tuple(true, true, 1, true))
        << "an empty table takes any game of ten turns or less";
    EXPECT_EQ(folderEntries(), std::vector<std::string>{"MVSCORE.INI"});

    const json r = json::parse(runTool({"records"}).out);
    ASSERT_EQ(r["soloRecords"].size(), 10u);
    const json& first = r["soloRecords"][0];
    EXPECT_EQ(first["Name"], "ゼフ" + std::string(18, ' ')) << "a Shift-JIS name read as text";
    EXPECT_EQ(std::tie(first["Turn"], first["Shots"], first["Balls"]),
              std::tie(game["turns"], game["shots"], game["balls"]));
    EXPECT_EQ(r["soloRecords"][1]["Name"], "zeph" + std::string(16, ' '));
    EXPECT_EQ(r["zephLevel"], 1);
}

TEST_F(GameCommands, MatchesWonInARowRaiseZephsLevelAndTheLevelIsKept) {
    const CommandRun run = runTool({"match", "--matches", "4", "--level", "1", "--you-level", "11",
                                    "--target", "1", "--seed", "1"});
    ASSERT_EQ(run.status, 0) << run.err;
    int level = 0;
    for (const json& m : run.lines()) {
        if (m.contains("game") || m.contains("summary"))
            continue;
        EXPECT_EQ(m["recordPlace"].is_null(), m["winner"] == "zeph") << m;
        EXPECT_GE(m["zephLevel"].get<int>(), level) << m;
        level = m["zephLevel"].get<int>();
    }
    EXPECT_GT(level, 1) << "this seed wins two matches in a row";
    EXPECT_EQ(json::parse(runTool({"records"}).out)["zephLevel"], level);
}

} // namespace
