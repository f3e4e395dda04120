// morvane-sim solo: one solo game played by zeph's logic for the person, to the record table.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace morvane::sim {

// Options: --name NAME (required, typed into the name form), --level M (default 11), --seed N.
int runSoloCommand(const std::vector<std::string>& options, std::ostream& out, std::ostream& err);

} // namespace morvane::sim
