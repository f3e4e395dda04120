// A seeded corpus of hostile inputs for the shot and think commands of morvane-sim: sane tables,
// and tables made wrong in every way a careless or malicious caller might: huge, non-finite,
// negative, overlapping, off-table, truncated, with NUL bytes, of the wrong types, and breaks that
// are no breaks.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace morvane::testing {

struct HostileInput {
    std::string kind;              // what was done to it, for the report
    std::vector<std::string> args; // the command and its options
    std::string text;              // the standard input
};

std::vector<HostileInput> hostileInputs(uint64_t seed, int count);

} // namespace morvane::testing
