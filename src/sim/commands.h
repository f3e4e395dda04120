// The commands of morvane-sim, each reading its arguments and input and printing JSON.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace morvane::sim {

// The exit status of a command given bad input.
constexpr int kBadInput = 2;
// The exit status of a command that did its work but could not save the records or zeph's level.
constexpr int kNotSaved = 3;

// Picks the command named by the first argument; returns the process's exit status.
int runCommand(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
               std::ostream& err);
// The same on the process's own arguments and standard streams.
int runCommand(int argc, char** argv);

} // namespace morvane::sim
