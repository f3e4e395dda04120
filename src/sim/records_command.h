// morvane-sim records: both record tables and zeph's level as the game's folder holds them.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace morvane::sim {

int runRecordsCommand(const std::vector<std::string>& options, std::ostream& out,
                      std::ostream& err);

} // namespace morvane::sim
