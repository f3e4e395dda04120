// morvane-sim match: matches against zeph in which zeph's logic at another level plays the
// person's side, with zeph's level and the records kept in the game's folder as the game keeps
// them.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace morvane::sim {

// Options: --you-level M (required), --target N (default 3), --level L (zeph's level to start
// with; the level on disk when absent), --matches K (default 1), --name NAME (default "You"),
// --seed N.
int runMatchCommand(const std::vector<std::string>& options, std::ostream& out, std::ostream& err);

} // namespace morvane::sim
