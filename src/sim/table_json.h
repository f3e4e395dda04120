// The table in JSON: reading the balls and points of a command's input, writing the balls back.
// Each reader returns an empty text when all is well, else one line naming the field at fault.
#pragma once

#include "game/game_state.h"

#include <nlohmann/json.hpp>

#include <iosfwd>
#include <string>

namespace morvane::sim {

// One JSON object from the whole of the input.
std::string readInputObject(std::istream& in, nlohmann::json& object);

// "balls": ten objects {x, y, onTable (optional, true)}, each ball on the table within the
// cushion lines. The balls are set at rest with no spin.
std::string readBalls(const nlohmann::json& input, BallArray& balls);

// A point given as [x, y] or {"x": x, "y": y}.
std::string readPoint(const nlohmann::json& input, const std::string& field, PointType& point);

// A number, and a whole number within low..high.
std::string readNumber(const nlohmann::json& input, const std::string& field, double& value);
std::string readWholeNumber(const nlohmann::json& input, const std::string& field, int low,
                            int high, int& value);
std::string readFlag(const nlohmann::json& input, const std::string& field, bool& value);

// Ten objects {x, y, onTable, speed}.
nlohmann::json ballsToJson(const BallArray& balls);

} // namespace morvane::sim
