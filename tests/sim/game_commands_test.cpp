// The whole-game commands of morvane-sim: zeph's decision, demo games, a solo game to the record
// table, matches that grow zeph's level, and the records read back, each in a fresh folder.
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

json thinkOnTheWorkedTable(const std::string& level) {
    const CommandRun run =
        runTool({"think", "--level", level, "--seed", "3"}, twoBalls(1800, 700, ""));
    EXPECT_EQ(run.status, 0) << run.err;
    return json::parse(run.out);
}

TEST_F(GameCommands, ThinkAtLevelOneCutsBallOneIntoTheCornerWithFullPower) {
    const json r = thinkOnTheWorkedTable("1");
    const json& plan = r["plan"];
    EXPECT_TRUE(plan["found"].get<bool>());
    EXPECT_NEAR(plan["planX"].get<double>(), 1722.6, 0.05);
    EXPECT_NEAR(plan["planY"].get<double>(), 636.7, 0.05);
    EXPECT_NEAR(plan["cutAngle"].get<double>() / kDegree, 37.42, 0.005);
    EXPECT_EQ(r["power"], 100);
    EXPECT_EQ(r["remark"], "Simple is best.");
    EXPECT_EQ(r["strategy"], "tryDirect");
    EXPECT_LE(std::fabs(r["aimX"].get<double>() - plan["planX"].get<double>()), kMissReach);
    EXPECT_LE(std::fabs(r["aimY"].get<double>() - plan["planY"].get<double>()), kMissReach);
    EXPECT_EQ(r["cue"], json::array({600.0, 600.0})) << "no ball in hand: the cue ball stays";
}

TEST_F(GameCommands, ThinkWithBallInHandPlacesTheCueBallAndWithABreakDoesNotThink) {
    CommandRun run = runTool({"think", "--level", "4", "--seed", "1"},
                             twoBalls(1800, 700, R"("ballInHand": true)"));
    json r = json::parse(run.out);
    EXPECT_EQ(r["remark"], "Simple is best.");
    EXPECT_NE(r["cue"], json::array({600.0, 600.0}));
    EXPECT_LT(r["plan"]["cutAngle"].get<double>(), 1 * kDegree) << "a straight shot from behind";

    run = runTool({"think", "--level", "11"}, R"({"breakPending": true})");
    r = json::parse(run.out);
    EXPECT_TRUE(r["plan"].is_null());
    EXPECT_EQ(r["remark"], "My first shot.");
    EXPECT_EQ(r["strategy"], "");
    // A break is played from a rack only.
    run = runTool({"think", "--level", "11"}, twoBalls(1800, 700, R"("breakPending": true)"));
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("balls: a break needs"), std::string::npos) << run.err;
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
    EXPECT_EQ(summary["games"], 4);
    EXPECT_EQ(summary["unfinished"], 0);
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
        {{"think", "--level", "one"}, "--level"},
        {{"demo", "--games", "0"}, "--games"},
        {{"demo", "--games"}, "--games"},
        {{"demo", "--seed", "-1"}, "--seed"},
        {{"match", "--target", "3"}, "--you-level"},
        {{"match", "--you-level", "5", "--target", "16"}, "--target"},
        {{"match", "--you-level", "5", "--matches", "x"}, "--matches"},
        {{"solo", "--level", "3"}, "--name"},
        {{"records", "--all"}, "--all"},
    };
    for (const auto& [args, named] : cases) {
        const CommandRun run = runTool(args, twoBalls(1800, 700, ""));
        EXPECT_EQ(run.status, 2) << args[0];
        EXPECT_TRUE(run.out.empty()) << run.out;
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
        EXPECT_EQ(run.err.rfind("morvane-sim " + args[0] + ": ", 0), 0u) << run.err;
        EXPECT_NE(run.err.find(named), std::string::npos) << run.err;
    }
    EXPECT_EQ(runTool({"think", "--level", "3"}, twoBalls(1800, 700, R"("ballInHand": 1)")).status,
              2);
    const std::vector<std::string> entries = folderEntries();
    EXPECT_EQ(std::count(entries.begin(), entries.end(), "MVSCORE.INI"), 0)
        << "bad input writes nothing";
}

TEST_F(GameCommands, ASoloGameEntersTheTableUnderTheNameGivenAndRecordsReadsItBack) {
    const CommandRun solo = runTool({"solo", "--name", "Tester", "--seed", "2"});
    ASSERT_EQ(solo.status, 0) << solo.err;
    const json game = json::parse(solo.out);
    EXPECT_TRUE(game["ended"].get<bool>());
    EXPECT_EQ(game["balls"].get<std::string>().back(), '9');
    ASSERT_TRUE(game["entered"].get<bool>())
        << "an empty table takes any game of ten turns or less";
    EXPECT_EQ(game["place"], 1);

    const std::vector<std::string> file = lines("MVSCORE.INI");
    const std::string turns = "Turn01= " + std::to_string(game["turns"].get<int>());
    EXPECT_NE(std::find(file.begin(), file.end(), "Name01=Tester" + std::string(14, ' ')),
              file.end());
    EXPECT_NE(std::find(file.begin(), file.end(), turns), file.end()) << turns;

    const CommandRun records = runTool({"records"});
    ASSERT_EQ(records.status, 0) << records.err;
    const json r = json::parse(records.out);
    ASSERT_EQ(r["soloRecords"].size(), 10u);
    const json& first = r["soloRecords"][0];
    EXPECT_EQ(first["Name"], "Tester" + std::string(14, ' '));
    EXPECT_EQ(first["Turn"], game["turns"]);
    EXPECT_EQ(first["Shots"], game["shots"]);
    EXPECT_EQ(first["Balls"], game["balls"]);
    EXPECT_EQ(first["place"], 1);
    EXPECT_EQ(r["soloRecords"][1]["Name"], "zeph" + std::string(16, ' '));
    EXPECT_EQ(r["vsCpuRecords"][0]["LevelOfZeph"], 0);
    EXPECT_EQ(r["zephLevel"], 1);
}

TEST_F(GameCommands, MatchesWonInARowRaiseZephsLevelAndTheLevelIsKept) {
    const CommandRun run = runTool({"match", "--matches", "4", "--level", "1", "--you-level", "11",
                                    "--target", "1", "--seed", "1"});
    ASSERT_EQ(run.status, 0) << run.err;
    std::vector<json> matches;
    for (const json& line : run.lines()) {
        if (!line.contains("game") && !line.contains("summary"))
            matches.push_back(line);
    }
    ASSERT_EQ(matches.size(), 4u);
    // The growth rule over the winners as they came.
    int level = 1;
    int progress = 0;
    int rises = 0;
    for (const json& m : matches) {
        progress = m["winner"] == "You" ? progress + 1 : 0;
        if (progress >= 2) {
            level = std::min(level + 1, 11);
            progress = 0;
            ++rises;
        }
        EXPECT_EQ(m["zephLevel"], level) << m;
        EXPECT_EQ(m["zephProgress"], progress) << m;
        EXPECT_EQ(m["recordPlace"].is_null(), m["winner"] == "zeph") << m;
    }
    EXPECT_GE(rises, 1) << "this seed wins two matches in a row";
    const std::vector<std::string> file = lines("MVSCORE.INI");
    EXPECT_NE(std::find(file.begin(), file.end(), "LV= " + std::to_string(level)), file.end());
    EXPECT_EQ(json::parse(runTool({"records"}).out)["zephLevel"], level);
}

} // namespace
