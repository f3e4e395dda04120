#include "hostile_inputs.h"

#include "game/shot_input.h"
#include "table/constants.h"
#include "table/rack.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <functional>
#include <random>

namespace morvane::testing {

using nlohmann::json;

namespace {

// Stands in for a number while the text is made, then is replaced by a hostile token.
constexpr const char* kSentinel = "7777777.25";
constexpr double kSentinelValue = 7777777.25;

// Numbers that a JSON reader takes but a float can't hold, or that mean nothing on a table.
const std::vector<std::string> kHugeNumbers{"1e308",
                                            "-1e308",
                                            "1e39",
                                            "-3.5e38",
                                            "1e400",
                                            "-1e400",
                                            "1.7976931348623157e308",
                                            "1e-320",
                                            "-0.0",
                                            "1e20",
                                            "9007199254740993",
                                            "4294967296",
                                            "-32769",
                                            "65536"};
// Tokens that are not JSON numbers at all, or numbers dressed up.
const std::vector<std::string> kNotNumbers{
    "NaN", "nan", "Infinity", "-Infinity",  "\"NaN\"", "\"1e308\"", "null", "true",
    "[]",  "{}",  "\"\"",     "[600, 600]", "0x10",    "1e",        "--1",  "+1"};

class Maker {
  public:
    explicit Maker(uint64_t seed) : random_(seed) {}

    double uniform(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    bool chance(double p) { return uniform(0, 1) < p; }
    template <typename T> const T& pick(const std::vector<T>& list) {
        return list[size_t(whole(0, int(list.size()) - 1))];
    }

    // Ten balls at rest, none overlapping, some off the table, the cue ball always on it.
    json saneBalls() {
        json balls = json::array();
        std::vector<std::pair<double, double>> placed;
        for (int n = 0; n < kBallCount; ++n) {
            const bool onTable = n == 0 || chance(0.8);
            double x = uniform(kCushionLeftX, kCushionRightX);
            double y = uniform(kCushionBottomY, kCushionTopY);
            for (int tries = 0; onTable && tries < 200 && overlapsAny(placed, x, y); ++tries) {
                x = uniform(kCushionLeftX, kCushionRightX);
                y = uniform(kCushionBottomY, kCushionTopY);
            }
            const bool free = !overlapsAny(placed, x, y);
            json ball{{"x", x}, {"y", y}};
            if (!onTable || !free)
                ball["onTable"] = false;
            else
                placed.emplace_back(x, y);
            balls.push_back(ball);
        }
        return balls;
    }

    // The game's own rack, the cue ball anywhere free on the table.
    json rackedBalls() {
        BallArray rack;
        rackBalls(rack);
        json balls = json::array();
        for (const BallType& b : rack)
            balls.push_back({{"x", b.x}, {"y", b.y}});
        if (chance(0.5)) {
            balls[0]["x"] = uniform(kCushionLeftX, 1500);
            balls[0]["y"] = uniform(kCushionBottomY, kCushionTopY);
        }
        return balls;
    }

    // A point of the break swing's arc: a ball's width before the foot spot, up to a third of a
    // right angle to either side.
    json swingAim() {
        const double d = uniform(-kSwingReach, kSwingReach);
        return json::array(
            {kFootSpotX - kSwingRadius * std::cos(d), kFootSpotY + kSwingRadius * std::sin(d)});
    }

    json anyAim() { return json::array({uniform(-3000, 5400), uniform(-2000, 3200)}); }

    json saneShot() {
        json shot{
            {"balls", saneBalls()}, {"aim", anyAim()}, {"power", whole(kPowerMin, kPowerMax)}};
        if (chance(0.5)) {
            const double a = uniform(-kPi, kPi);
            const double r = std::sqrt(uniform(0, 1));
            shot["hit"] = json::array({r * std::cos(a), r * std::sin(a)});
        }
        return shot;
    }

    json saneBreak() {
        json shot{{"break", true}, {"aim", swingAim()}, {"power", whole(kPowerMin, kPowerMax)}};
        if (chance(0.5))
            shot["balls"] = rackedBalls();
        return shot;
    }

    json saneTable(bool forThink) {
        if (!forThink)
            return chance(0.2) ? saneBreak() : saneShot();
        json table{{"balls", saneBalls()}};
        if (chance(0.5))
            table["aim"] = anyAim();
        if (chance(0.3))
            table["ballInHand"] = true;
        if (chance(0.1)) {
            table["balls"] = rackedBalls();
            table["breakPending"] = true;
            table["aim"] = swingAim();
        }
        return table;
    }

    // Where the leaves of the input are, those with numbers only if asked.
    static std::vector<json::json_pointer> leavesOf(const json& input, bool numbersOnly) {
        std::vector<json::json_pointer> leaves;
        const json flat = input.flatten();
        for (auto it = flat.begin(); it != flat.end(); ++it) {
            if (!numbersOnly || it.value().is_number())
                leaves.emplace_back(it.key());
        }
        return leaves;
    }

    // One number somewhere in the input replaced by the sentinel.
    void markOneNumber(json& input) {
        const auto numbers = leavesOf(input, true);
        if (!numbers.empty())
            input[pick(numbers)] = kSentinelValue;
    }

    std::string withToken(json input, const std::vector<std::string>& tokens) {
        markOneNumber(input);
        std::string text = input.dump();
        const auto at = text.find(kSentinel);
        if (at != std::string::npos)
            text.replace(at, std::string(kSentinel).size(), pick(tokens));
        return text;
    }

    std::string negative(json input) {
        for (const auto& at : leavesOf(input, true)) {
            if (chance(0.3))
                input[at] = -std::fabs(input[at].get<double>()) - whole(0, 3000);
        }
        return input.dump();
    }

    std::string overlapping(json input) {
        json& balls = input["balls"];
        const double x = uniform(kCushionLeftX, kCushionRightX);
        const double y = uniform(kCushionBottomY, kCushionTopY);
        const int how = whole(0, 2);
        for (int n = 0; n < kBallCount; ++n) {
            if (how == 0) { // ten balls on one spot
                balls[n] = {{"x", x}, {"y", y}};
            } else if (n == 1) { // two balls closer than a ball's width
                const double gap = how == 1 ? uniform(0, 99.9) : uniform(99.0, 100.0);
                const double a = uniform(-kPi, kPi);
                balls[1] = {{"x", balls[0]["x"].get<double>() + gap * std::cos(a)},
                            {"y", balls[0]["y"].get<double>() + gap * std::sin(a)}};
            }
        }
        return input.dump();
    }

    std::string offTable(json input) {
        json& balls = input["balls"];
        const int n = chance(0.6) ? 0 : whole(1, kBallCount - 1);
        switch (whole(0, 3)) {
        case 0: // outside the cushion lines, yet said to be on the table
            balls[n] = {{"x", uniform(-1000, 3400)},
                        {"y", chance(0.5) ? uniform(-500, 49.9) : uniform(1150.1, 1700)}};
            break;
        case 1: // the cue ball in a pocket
            balls[0]["onTable"] = false;
            break;
        case 2: // every object ball gone
            for (int k = 1; k < kBallCount; ++k)
                balls[k]["onTable"] = false;
            break;
        default: // a pocketed ball far beyond the table's frame
            balls[n] = {{"x", uniform(-1e7, 1e7)}, {"y", uniform(-1e7, 1e7)}, {"onTable", false}};
            break;
        }
        return input.dump();
    }

    std::string truncated(const json& input) {
        const std::string text = input.dump();
        return text.substr(0, size_t(whole(0, int(text.size()) - 1)));
    }

    std::string withNul(const json& input) {
        std::string text = input.dump();
        const size_t at = chance(0.5) ? text.size() : size_t(whole(0, int(text.size())));
        text.insert(at, 1, '\0');
        if (chance(0.5))
            text += "garbage";
        return text;
    }

    std::string wrongType(json input) {
        const std::vector<json> wrong{"600",   json::array(), json::object(),        true,
                                      nullptr, "x",           json::array({1, 2, 3})};
        if (chance(0.3)) { // a whole part of the input of the wrong kind
            const std::vector<std::string> parts{"balls", "aim",        "power",       "hit",
                                                 "break", "ballInHand", "breakPending"};
            input[pick(parts)] = pick(wrong);
            return input.dump();
        }
        input[pick(leavesOf(input, false))] = pick(wrong);
        return input.dump();
    }

    // A break that the game could never play: aimed off the swing's arc, or at a table that isn't
    // a rack.
    std::string falseBreak(bool forThink) {
        json input = forThink ? json{{"breakPending", true}} : json{{"break", true}};
        switch (whole(0, 2)) {
        case 0: // aimed anywhere: away from the rack, or beside the arc
            input["aim"] = chance(0.5) ? anyAim() : swingAim();
            input["aim"][whole(0, 1)] = input["aim"][0].get<double>() + uniform(-400, 400);
            if (chance(0.5))
                input["balls"] = rackedBalls();
            break;
        case 1: // balls anywhere
            input["aim"] = swingAim();
            input["balls"] = saneBalls();
            break;
        default: // one rack ball nudged or gone
            input["aim"] = swingAim();
            input["balls"] = rackedBalls();
            if (chance(0.5))
                input["balls"][whole(1, kBallCount - 1)]["onTable"] = false;
            else
                input["balls"][whole(1, kBallCount - 1)]["x"] =
                    input["balls"][1]["x"].get<double>() + uniform(-300, -1);
            break;
        }
        return input.dump();
    }

    HostileInput make() {
        const bool forThink = chance(0.3);
        HostileInput h;
        h.args = forThink
                     ? std::vector<std::string>{"think", "--level", std::to_string(whole(1, 11)),
                                                "--seed", std::to_string(whole(0, 99))}
                     : std::vector<std::string>{"shot", "--seed", std::to_string(whole(0, 99))};
        const json sane = saneTable(forThink);
        const json table =
            sane.contains("balls") ? sane : json{{"balls", saneBalls()}, {"aim", anyAim()}};
        using Spoil = std::function<std::string()>;
        const std::vector<std::pair<const char*, Spoil>> kinds{
            {"sane", [&] { return sane.dump(); }},
            {"sane", [&] { return sane.dump(); }},
            {"huge", [&] { return withToken(sane, kHugeNumbers); }},
            {"not a number", [&] { return withToken(sane, kNotNumbers); }},
            {"negative", [&] { return negative(sane); }},
            {"overlapping", [&] { return overlapping(table); }},
            {"off the table", [&] { return offTable(table); }},
            {"truncated", [&] { return truncated(sane); }},
            {"NUL byte", [&] { return withNul(sane); }},
            {"wrong type", [&] { return wrongType(sane); }},
            {"false break", [&] { return falseBreak(forThink); }},
        };
        const auto& [kind, spoil] = kinds[size_t(whole(0, int(kinds.size()) - 1))];
        h.kind = kind;
        h.text = spoil();
        return h;
    }

  private:
    static bool overlapsAny(const std::vector<std::pair<double, double>>& placed, double x,
                            double y) {
        for (const auto& [px, py] : placed) {
            if (std::hypot(px - x, py - y) < kBallDiameter + 0.01)
                return true;
        }
        return false;
    }

    std::mt19937_64 random_;
};

} // namespace

std::vector<HostileInput> hostileInputs(uint64_t seed, int count) {
    Maker maker(seed);
    std::vector<HostileInput> inputs;
    inputs.reserve(size_t(count));
    for (int k = 0; k < count; ++k)
        inputs.push_back(maker.make());
    return inputs;
}

} // namespace morvane::testing
