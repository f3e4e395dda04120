#include "sim/commands.h"

#include <cstdio>
#include <cstring>
#include <string>

namespace morvane::sim {

namespace {

constexpr int kBadInput = 2;

int usage() {
    std::fputs("usage: morvane-sim COMMAND [options]\n"
               "commands:\n"
               "  shot [--seed N] [--trace]   one shot: a table as JSON on stdin, the result on "
               "stdout\n",
               stderr);
    return kBadInput;
}

} // namespace

int runCommand(int argc, char** argv) {
    if (argc < 2)
        return usage();
    const std::string command = argv[1];
    std::fprintf(stderr, "morvane-sim: unknown command '%s'\n", command.c_str());
    return usage();
}

} // namespace morvane::sim
