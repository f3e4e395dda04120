#include "command_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <iostream>

using namespace morvane::testing;
using nlohmann::json;

namespace {

CommandRun runShot(const std::string& input, std::vector<std::string> options = {"--seed", "9"}) {
    options.insert(options.begin(), "shot");
    return runTool(options, input);
}

json shotResult(const std::string& input, std::vector<std::string> options = {"--seed", "9"}) {
    const CommandRun run = runShot(input, options);
    EXPECT_EQ(run.status, 0) << run.err;
    return json::parse(run.out);
}

// The two balls of twoBalls, one field of one ball changed.
std::string withBall(int ball, const char* field, const json& value) {
    json input = json::parse(twoBalls(900, 600, R"("aim": [0, 0])"));
    input["balls"][ball][field] = value;
    return input.dump();
}

} // namespace

TEST(ShotCommand, ABreakAtFullPowerRunsToRestAndReportsTheShot) {
    const json r = shotResult(R"({"break": true, "aim": [1700, 600], "power": 100})");
    ASSERT_EQ(r["balls"].size(), 10u);
    EXPECT_EQ(r["firstHitBall"], 1);
    EXPECT_TRUE(r["stopped"].get<bool>());
    EXPECT_GT(r["frames"].get<int>(), 20);
    const json& events = r["events"];
    EXPECT_EQ(std::tie(events.at(0)["ball"], events.at(0)["partner"]), std::tuple(0, 1))
        << "the cue ball reaches the rack first";
    for (const json& ball : r["balls"])
        EXPECT_LE(ball["speed"].get<double>(), 0);
    // Every ball listed as pocketed is off the table, and has its capture among the events.
    for (const json& n : r["pocketed"]) {
        EXPECT_FALSE(r["balls"][n.get<int>()]["onTable"].get<bool>());
        EXPECT_TRUE(std::ranges::any_of(
            events, [&](const json& e) { return e["ball"] == n && e.contains("pocket"); }));
    }
    EXPECT_EQ(shotResult(R"({"break": true})"),
              shotResult(R"({"break": true, "aim": [1700, 600]})"))
        << "without an aim the break goes straight at the rack";
}

TEST(ShotCommand, TheSeedDecidesTheShotAndTheTraceWritesALineAContact) {
    const std::string input = R"({"break": true, "aim": [1700, 600]})";
    EXPECT_NE(shotResult(input, {"--seed", "1"})["balls"],
              shotResult(input, {"--seed", "2"})["balls"]);
    const CommandRun run = runShot(input, {"--seed", "4", "--trace"});
    ASSERT_EQ(run.status, 0);
    EXPECT_EQ(size_t(std::ranges::count(run.err, '\n')), json::parse(run.out)["events"].size());
}

TEST(ShotCommand, BallsOnTheCushionLinesStandOnTheTable) {
    for (const auto& [x, y] : {std::pair(50, 600), {2350, 600}, {1200, 50}, {1200, 1150}})
        EXPECT_EQ(runShot(twoBalls(x, y, R"("aim": [0, 0])")).status, 0) << x << ", " << y;
}

TEST(ShotCommand, BadInputGetsOneLineNamingTheFieldAndStatusTwo) {
    const std::pair<std::string, std::string> cases[] = {
        {"not json", "input"},
        {R"({"power": 34})", "power"},
        {R"({"hit": [0.8, 0.8]})", "hit"},
        {R"({"break": "yes"})", "break"},
        {R"({"balls": [{"x": 600, "y": 600}]})", "balls"},
        {twoBalls(2351, 600, R"("aim": [0, 0])"), "balls[1]"},
        {twoBalls(1200, 600, R"("power": 50)"), "aim"},
        {R"({"break": true, "aim": [0, 600]})", "aim"},    // away from the rack
        {R"({"break": true, "aim": [1710, 600]})", "aim"}, // where the marker stands, not the aim
        {twoBalls(1800, 700, R"("aim": [1700, 600], "break": true)"), "balls"},
        {twoBalls(650, 640, R"("aim": [0, 0])"), "balls[1]"}, // 64 from the cue ball
        {withBall(0, "onTable", false), "balls[0]"},
        {withBall(2, "x", -151), "balls[2]"}, // pocketed, yet beyond the table's frame
    };
    for (const auto& [input, field] : cases)
        expectRefused(runShot(input), field + ":");
    expectRefused(runShot("{}", {"--fast"}), "unknown option '--fast'");
    for (const CommandRun& run : {runTool({"bounce"}), runTool({})})
        EXPECT_EQ(std::tuple(run.status, run.err.find("usage") != std::string::npos),
                  std::tuple(2, true));
}

// An option given last without its value: a reading past the end of the arguments would crash,
// so the command runs in a child of its own.
TEST(ShotCommandDeathTest, AnOptionWithoutItsValueIsRefusedSayingSo) {
    const auto run = [] {
        const CommandRun r = runShot("{}", {"--seed"});
        std::cerr << r.err;
        std::_Exit(r.status);
    };
    EXPECT_EXIT(run(), ::testing::ExitedWithCode(2), "--seed: expects a value");
}
