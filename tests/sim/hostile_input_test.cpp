// Thousands of seeded hostile inputs to shot and think: each gets an honest answer, every number
// in it finite and every shot run out to rest within the cushion lines, or one line and status 2.
#include "command_run.h"
#include "hostile_inputs.h"
#include "table/constants.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <map>

using namespace morvane;
using namespace morvane::testing;
using nlohmann::json;

namespace {

// Under the sanitizers every shot costs many times more: fewer inputs, the same kinds.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kInputs = 600;
#else
constexpr int kInputs = 3000;
#endif

// Every number in the answer is finite; JSON writes any other as null, which only the plan of a
// break may be.
std::string nonFiniteIn(const json& value, const std::string& where) {
    if (value.is_null())
        return where == "/plan" ? "" : where + " is null";
    if (value.is_number_float() && !std::isfinite(value.get<double>()))
        return where + " is not finite";
    if (value.is_structured()) {
        for (auto it = value.begin(); it != value.end(); ++it) {
            const std::string key =
                value.is_array() ? std::to_string(std::distance(value.begin(), it)) : it.key();
            const std::string problem = nonFiniteIn(it.value(), where + "/" + key);
            if (!problem.empty())
                return problem;
        }
    }
    return "";
}

bool insideCushionLines(double x, double y) {
    return x >= kCushionLeftX && x <= kCushionRightX && y >= kCushionBottomY && y <= kCushionTopY;
}

std::string shotProblem(const json& r) {
    if (!r["stopped"].get<bool>())
        return "the shot never stops";
    for (const json& ball : r["balls"]) {
        if (ball["speed"].get<double>() > 0)
            return "a ball still rolls";
        if (ball["onTable"].get<bool>() &&
            !insideCushionLines(ball["x"].get<double>(), ball["y"].get<double>()))
            return "a ball ends outside the cushion lines";
    }
    return "";
}

std::string thinkProblem(const json& r) {
    const int power = r["power"].get<int>();
    if (power < kPowerMin || power > kPowerMax)
        return "the power is out of range";
    if (!insideCushionLines(r["cue"][0].get<double>(), r["cue"][1].get<double>()))
        return "the cue ball stands outside the cushion lines";
    return "";
}

// Kinds of input that are wrong every time they are made.
bool mustBeRefused(const std::string& kind) {
    return kind == "NUL byte" || kind == "false break" || kind == "overlapping" ||
           kind == "truncated" || kind == "not a number";
}

// What is wrong with the answer to one input; empty when it is honest.
std::string problemOf(const HostileInput& input, const CommandRun& run) {
    if (run.status == 0 && mustBeRefused(input.kind))
        return "answered a " + input.kind;
    if (run.status != 0 && input.kind == "sane")
        return "refused a sane table";
    if (run.status == 2) {
        if (!run.out.empty())
            return "refused, yet answered on stdout";
        if (std::count(run.err.begin(), run.err.end(), '\n') != 1 || run.err.back() != '\n')
            return "refused without exactly one line";
        return "";
    }
    if (run.status != 0)
        return "status " + std::to_string(run.status);
    if (std::count(run.out.begin(), run.out.end(), '\n') != 1)
        return "the answer is not one line";
    const json r = json::parse(run.out, nullptr, false);
    if (r.is_discarded())
        return "the answer is not JSON";
    const std::string problem = nonFiniteIn(r, "");
    if (!problem.empty())
        return problem;
    return input.args[0] == "shot" ? shotProblem(r) : thinkProblem(r);
}

TEST(HostileInput, EveryAnswerIsFiniteAndEveryShotEndsAtRestOrTheInputIsRefused) {
    std::map<std::string, int> problems;
    std::map<std::string, std::pair<int, int>> answeredAndRefused;
    std::string firstExamples;
    for (const HostileInput& input : hostileInputs(20261123, kInputs)) {
        const CommandRun run = runTool(input.args, input.text);
        auto& tally = answeredAndRefused[input.kind];
        ++(run.status == 0 ? tally.first : tally.second);
        const std::string problem = problemOf(input, run);
        if (problem.empty())
            continue;
        if (problems[problem]++ < 2)
            firstExamples += problem + ": " + input.args[0] + " " + input.text + "\n";
    }
    for (const auto& [kind, tally] : answeredAndRefused)
        std::cout << kind << ": " << tally.first << " answered, " << tally.second << " refused\n";
    for (const auto& [problem, count] : problems)
        std::cout << problem << ": " << count << "\n";
    EXPECT_TRUE(problems.empty()) << firstExamples;
}

} // namespace
