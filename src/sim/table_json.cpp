#include "sim/table_json.h"

#include "game/view_coords.h"

#include <cmath>
#include <cstdint>
#include <iomanip>
#include <istream>
#include <iterator>
#include <limits>
#include <sstream>

namespace morvane::sim {

using nlohmann::json;

namespace {

// The table view's border of 30 pixels, at five table units a pixel.
constexpr double kFrameMargin = 150;
constexpr float kLowestPixel = std::numeric_limits<int16_t>::min();
constexpr float kHighestPixel = std::numeric_limits<int16_t>::max();

std::string number(double value) {
    std::ostringstream text;
    text << std::setprecision(10) << value;
    return text.str();
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
    const Box& box = onTable ? kCushionLines : kTableFrame;
    if (!box.holds(x, y))
        return field + ": (" + number(x) + ", " + number(y) + ") lies outside " +
               (onTable ? "the cushion lines " : "the table's frame ") + box.text();
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

bool Box::holds(double x, double y) const {
    return x >= left && x <= right && y >= bottom && y <= top;
}

std::string Box::text() const {
    return number(left) + ".." + number(right) + " x " + number(bottom) + ".." + number(top);
}

const Box kCushionLines{kCushionLeftX, kCushionRightX, kCushionBottomY, kCushionTopY};
const Box kTableFrame{-kFrameMargin, kTableLength + kFrameMargin, -kFrameMargin,
                      kTableWidth + kFrameMargin};
const Box kMouseReach{pixelToTableX(kLowestPixel), pixelToTableX(kHighestPixel),
                      pixelToTableY(kHighestPixel), pixelToTableY(kLowestPixel)};

std::string readInputObject(std::istream& in, json& object) {
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    const auto nul = text.find('\0');
    if (nul != std::string::npos)
        return "input: a NUL byte at offset " + std::to_string(nul);
    object = json::parse(text, nullptr, false);
    if (object.is_discarded())
        return "input: not valid JSON";
    if (!object.is_object())
        return "input: expected one JSON object";
    return "";
}

std::string readNumber(const json& input, const std::string& field, double& value) {
    const std::string error = readTyped(input, field, &json::is_number, "a number", value);
    if (error.empty() && !std::isfinite(value))
        return field + ": expected a finite number";
    return error;
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

std::string readPoint(const json& input, const std::string& field, const Box& box,
                      PointType& point) {
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
    if (!box.holds(x, y))
        return field + ": (" + number(x) + ", " + number(y) + ") lies outside " + box.text();
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
