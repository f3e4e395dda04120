// The commands of morvane-sim, each reading its arguments and stdin and printing JSON.
#pragma once

namespace morvane::sim {

// Picks the command named by the first argument; returns the process's exit status.
int runCommand(int argc, char** argv);

} // namespace morvane::sim
