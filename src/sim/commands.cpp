#include "sim/commands.h"

#include "sim/shot_command.h"

#include <iostream>

namespace morvane::sim {

namespace {

int usage(std::ostream& err) {
    err << "usage: morvane-sim COMMAND [options]\n"
           "commands:\n"
           "  shot [--seed N] [--trace]   one shot: a table as JSON on stdin, the result on "
           "stdout\n";
    return kBadInput;
}

} // namespace

int runCommand(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
               std::ostream& err) {
    if (args.empty())
        return usage(err);
    const std::string& command = args[0];
    const std::vector<std::string> options(args.begin() + 1, args.end());
    if (command == "shot")
        return runShotCommand(options, in, out, err);
    err << "morvane-sim: unknown command '" << command << "'\n";
    return usage(err);
}

int runCommand(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    return runCommand(args, std::cin, std::cout, std::cerr);
}

} // namespace morvane::sim
