// morvane-sim think: zeph's turn on a given table, up to the moment of the shot.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace morvane::sim {

// Options: --level L (required), --seed N. Input: a table as for shot, with optional ballInHand
// and breakPending.
int runThinkCommand(const std::vector<std::string>& options, std::istream& in, std::ostream& out,
                    std::ostream& err);

} // namespace morvane::sim
