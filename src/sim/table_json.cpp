#include "sim/table_json.h"

#include <cmath>
#include <istream>
#include <iterator>

namespace morvane::sim {

using nlohmann::json;

namespace {

bool insideCushionLines(double x, double y) {
    return x >= kCushionLeftX && x <= kCushionRightX && y >= kCushionBottomY && y <= kCushionTopY;
}

std::string readBall(const json& item, const std::string& field, BallType& ball) {
    if (!item.is_object())
        return field + ": expected an object with x and y";
    double x = 0;
    double y = 0;
    bool onTable = true;
    for (const char* key : {"x", "y"}) {
        if (!item.contains(key))
            return field + "." + key + ": missing";
    }
    std::string error = readNumber(item, field + ".x", x);
    if (error.empty())
        error = readNumber(item, field + ".y", y);
    if (error.empty())
        error = readFlag(item, field + ".onTable", onTable);
    if (!error.empty())
        return error;
    if (onTable && !insideCushionLines(x, y))
        return field + ": (" + std::to_string(x) + ", " + std::to_string(y) +
               ") lies outside the cushion lines 50..2350 x 50..1150";
    ball = BallType{};
    ball.x = ball.prevX = float(x);
    ball.y = ball.prevY = float(y);
    ball.onTable = onTable;
    return "";
}

// The last part of a dotted field name: the key within its object.
std::string keyOf(const std::string& field) {
    const auto dot = field.rfind('.');
    return dot == std::string::npos ? field : field.substr(dot + 1);
}

// An optional field of one JSON kind: absent leaves the value as it is.
template <typename T>
std::string readTyped(const json& input, const std::string& field,
                      bool (json::*isKind)() const noexcept, const char* kind, T& value) {
    const std::string key = keyOf(field);
    if (!input.contains(key))
        return "";
    if (!(input[key].*isKind)())
        return field + ": expected " + kind;
    value = input[key].get<T>();
    return "";
}

} // namespace

std::string readInputObject(std::istream& in, json& object) {
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    object = json::parse(text, nullptr, false);
    if (object.is_discarded())
        return "input: not valid JSON";
    if (!object.is_object())
        return "input: expected one JSON object";
    return "";
}

std::string readNumber(const json& input, const std::string& field, double& value) {
    return readTyped(input, field, &json::is_number, "a number", value);
}

std::string readWholeNumber(const json& input, const std::string& field, int low, int high,
                            int& value) {
    const std::string key = keyOf(field);
    if (!input.contains(key))
        return "";
    const json& item = input[key];
    const std::string range = std::to_string(low) + " to " + std::to_string(high);
    if (!item.is_number() || std::floor(item.get<double>()) != item.get<double>())
        return field + ": expected a whole number from " + range;
    const double number = item.get<double>();
    if (number < low || number > high)
        return field + ": " + item.dump() + " is outside " + range;
    value = int(number);
    return "";
}

std::string readFlag(const json& input, const std::string& field, bool& value) {
    return readTyped(input, field, &json::is_boolean, "true or false", value);
}

std::string readPoint(const json& input, const std::string& field, PointType& point) {
    if (!input.contains(field))
        return "";
    const json& item = input[field];
    double x = 0;
    double y = 0;
    if (item.is_array() && item.size() == 2 && item[0].is_number() && item[1].is_number()) {
        x = item[0].get<double>();
        y = item[1].get<double>();
    } else if (item.is_object() && item.contains("x") && item.contains("y") &&
               item["x"].is_number() && item["y"].is_number()) {
        x = item["x"].get<double>();
        y = item["y"].get<double>();
    } else {
        return field + ": expected [x, y] or {\"x\": x, \"y\": y} with numbers";
    }
    point = {float(x), float(y)};
    return "";
}

std::string readBalls(const json& input, BallArray& balls) {
    if (!input.contains("balls"))
        return "";
    const json& list = input["balls"];
    if (!list.is_array() || list.size() != size_t(kBallCount))
        return "balls: expected an array of exactly ten balls, the cue ball first";
    BallArray read{};
    for (int n = 0; n < kBallCount; ++n) {
        const std::string error = readBall(list[n], "balls[" + std::to_string(n) + "]", read[n]);
        if (!error.empty())
            return error;
    }
    balls = read;
    return "";
}

json ballsToJson(const BallArray& balls) {
    json list = json::array();
    for (const BallType& b : balls)
        list.push_back({{"x", b.x}, {"y", b.y}, {"onTable", b.onTable}, {"speed", b.speed}});
    return list;
}

} // namespace morvane::sim
