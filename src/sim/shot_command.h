// morvane-sim shot: one shot fired through the game's own code, from launch to rest.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace morvane::sim {

// Options: --seed N, --trace. Input: one JSON object with balls, aim, power, hit and break.
int runShotCommand(const std::vector<std::string>& options, std::istream& in, std::ostream& out,
                   std::ostream& err);

} // namespace morvane::sim
