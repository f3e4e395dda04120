// The table in JSON: reading the balls and points of a command's input, writing the balls back.
// Each reader returns an empty text when all is well, else one line naming the field at fault.
#pragma once

#include "game/game_state.h"

#include <nlohmann/json.hpp>

#include <iosfwd>
#include <string>

namespace morvane::sim {

// A rectangle of table units, its edges included.
struct Box {
    double left;
    double right;
    double bottom;
    double top;

    bool holds(double x, double y) const;
    std::string text() const; // "left..right x bottom..top"
};

// Where a ball on the table may stand: its centre within the cushion lines.
extern const Box kCushionLines;
// Where any ball may be: the table and the table view's border of 30 pixels around it.
extern const Box kTableFrame;
// Where the aim may be: any position of the mouse over the table view, whose pixels are 16-bit
// signed numbers as the window system hands them over.
extern const Box kMouseReach;

// One JSON object from the whole of the input, which holds no NUL byte.
std::string readInputObject(std::istream& in, nlohmann::json& object);

// "balls": ten objects {x, y, onTable (optional, true)}, each ball on the table within the
// cushion lines and each ball off it within the table's frame. The balls are set at rest with no
// spin.
std::string readBalls(const nlohmann::json& input, BallArray& balls);

// A point given as [x, y] or {"x": x, "y": y}, within the box.
std::string readPoint(const nlohmann::json& input, const std::string& field, const Box& box,
                      PointType& point);

// A finite number, and a whole number within low..high.
std::string readNumber(const nlohmann::json& input, const std::string& field, double& value);
std::string readWholeNumber(const nlohmann::json& input, const std::string& field, int low,
                            int high, int& value);
std::string readFlag(const nlohmann::json& input, const std::string& field, bool& value);

// Ten objects {x, y, onTable, speed}.
nlohmann::json ballsToJson(const BallArray& balls);

} // namespace morvane::sim
