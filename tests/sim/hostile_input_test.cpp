// Thousands of seeded hostile inputs to shot and think: each gets an honest answer, every number
// in it finite and every shot run out to rest within the cushion lines, or one line and status 2.
#include "command_run.h"
#include "game/shot_input.h"
#include "table/constants.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <random>

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

// Numbers a JSON reader takes but a float can't hold or a table can't use.
const std::vector<std::string> kHugeNumbers{"1e308",  "-1e308", "1e39", "-3.5e38",
                                            "1e400",  "1e-320", "-0.0", "9007199254740993",
                                            "-32769", "65536"};
struct Input {
    std::string kind;
    std::vector<std::string> args;
    std::string text;
};

class Hostile {
  public:
    explicit Hostile(uint64_t seed) : random_(seed) {}

    Input make() {
        const bool think = chance(0.3);
        Input in{"sane", {"shot"}, ""};
        if (think)
            in.args = {"think", "--level", std::to_string(whole(1, 11))};
        in.args.insert(in.args.end(), {"--seed", std::to_string(whole(0, 99))});
        const json sane = saneTable(think);
        in.text = sane.dump();
        const char* const kinds[] = {"sane", "sane", "huge", "truncated", "NUL"};
        in.kind = kinds[whole(0, 4)];
        if (in.kind == "huge")
            in.text = withToken(sane, kHugeNumbers);
        else if (in.kind == "truncated")
            in.text.resize(size_t(whole(1, int(in.text.size()) - 1)));
        else if (in.kind == "NUL")
            in.text.insert(size_t(whole(0, int(in.text.size()))), 1, '\0');
        return in;
    }

  private:
    double uniform(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    bool chance(double p) { return uniform(0, 1) < p; }
    template <typename T> const T& pick(const std::vector<T>& list) {
        return list[size_t(whole(0, int(list.size()) - 1))];
    }

    // Ten balls at rest, each in its own cell of a five-by-two grid of the table so that none
    // overlaps another, the cue ball always on the table.
    json balls() {
        std::array<int, kBallCount> cell{};
        std::iota(cell.begin(), cell.end(), 0);
        std::ranges::shuffle(cell, random_);
        json all = json::array();
        for (int n = 0; n < kBallCount; ++n)
            all.push_back({{"x", 280 + 460 * (cell[size_t(n)] % 5) + uniform(-170, 170)},
                           {"y", 325 + 550 * (cell[size_t(n)] / 5) + uniform(-200, 200)},
                           {"onTable", n == 0 || chance(0.8)}});
        return all;
    }
    json anyAim() { return {uniform(-3000, 5400), uniform(-2000, 3200)}; }

    json saneTable(bool think) {
        json table = {{"balls", balls()}};
        if (!think || chance(0.5))
            table["aim"] = anyAim();
        if (think && chance(0.3))
            table["ballInHand"] = true;
        if (!think && chance(0.5)) {
            const double a = uniform(-kPi, kPi), r = std::sqrt(uniform(0, 1));
            table["hit"] = {r * std::cos(a), r * std::sin(a)};
        }
        if (!think)
            table["power"] = whole(kPowerMin, kPowerMax);
        return table;
    }

    static std::vector<json::json_pointer> numbers(const json& input) {
        std::vector<json::json_pointer> found;
        const json flat = input.flatten();
        for (auto it = flat.begin(); it != flat.end(); ++it) {
            if (it.value().is_number())
                found.emplace_back(it.key());
        }
        return found;
    }
    // One number of the input written as a token of the list.
    std::string withToken(json input, const std::vector<std::string>& tokens) {
        const std::string marker = "7777777.25";
        input[pick(numbers(input))] = 7777777.25;
        std::string text = input.dump();
        return text.replace(text.find(marker), marker.size(), pick(tokens));
    }

    std::mt19937_64 random_;
};

bool insideCushionLines(const json& x, const json& y) {
    return x.get<double>() >= kCushionLeftX && x.get<double>() <= kCushionRightX &&
           y.get<double>() >= kCushionBottomY && y.get<double>() <= kCushionTopY;
}

// What is wrong with the answer to one input; empty when it is honest.
std::string problemOf(const Input& input, const CommandRun& run) {
    // A huge number may still be one the table can use; the other kinds are wrong every time.
    if (run.status == 0 && input.kind != "sane" && input.kind != "huge")
        return "answered a " + input.kind;
    if (run.status != 0 && input.kind == "sane")
        return "refused a sane table";
    if (run.status == 2) {
        const bool oneLine = std::ranges::count(run.err, '\n') == 1 && run.err.back() == '\n';
        return run.out.empty() && oneLine ? "" : "refused, yet not with one line on stderr alone";
    }
    if (run.status != 0)
        return "status " + std::to_string(run.status);
    if (std::ranges::count(run.out, '\n') != 1)
        return "the answer is not one line";
    const json r = json::parse(run.out, nullptr, false);
    if (r.is_discarded())
        return "the answer is not JSON";
    // JSON writes a number that isn't finite as null.
    if (run.out.find("null") != std::string::npos)
        return "a number is not finite";
    if (input.args[0] == "think") {
        if (r["power"].get<int>() < kPowerMin || r["power"].get<int>() > kPowerMax)
            return "the power is out of range";
        return insideCushionLines(r["cue"][0], r["cue"][1]) ? "" : "the cue ball stands outside";
    }
    if (!r["stopped"].get<bool>())
        return "the shot never stops";
    for (const json& ball : r["balls"]) {
        if (ball["speed"].get<double>() > 0)
            return "a ball still rolls";
        if (ball["onTable"].get<bool>() && !insideCushionLines(ball["x"], ball["y"]))
            return "a ball ends outside the cushion lines";
    }
    return "";
}

TEST(HostileInput, EveryAnswerIsFiniteAndEveryShotEndsAtRestOrTheInputIsRefused) {
    Hostile maker(20261123);
    std::map<std::string, int> problems;
    std::string examples;
    for (int k = 0; k < kInputs; ++k) {
        const Input input = maker.make();
        const CommandRun run = runTool(input.args, input.text);
        const std::string problem = problemOf(input, run);
        if (!problem.empty() && problems[problem]++ < 2)
            examples += problem + ": " + input.args[0] + " " + input.text + "\n";
    }
    EXPECT_TRUE(problems.empty()) << examples;
}

} // namespace
