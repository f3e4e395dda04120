#include "sim/commands.h"

#include "sim/demo_command.h"
#include "sim/match_command.h"
#include "sim/records_command.h"
#include "sim/shot_command.h"
#include "sim/solo_command.h"
#include "sim/table_json.h"
#include "sim/think_command.h"

#include <iostream>

namespace morvane::sim {

namespace {

int usage(std::ostream& err) {
    err << "usage: morvane-sim COMMAND [options]\n"
           "commands (JSON out; the game's files are in $MORVANE_HOME):\n"
           "  shot [--seed N] [--trace]\n"
           "      one shot: a table as JSON on stdin, the result on stdout:\n"
           "      {\"balls\": [ten {\"x\", \"y\", \"onTable\"}, the cue ball first], \"aim\": [x, "
           "y],\n"
           "       \"power\": 35..100, \"hit\": [side, follow], \"break\": true or false}\n"
           "  think --level L [--seed N]\n"
           "      zeph's turn up to the shot on a table from stdin (as for shot, with optional\n"
           "      ballInHand and breakPending): the plan, the aim, the power and the remark\n"
           "  demo [--games N] [--level L] [--seed N]\n"
           "      N demo games from the menu, one line each, then a summary\n"
           "  match --you-level M [--target N] [--level L] [--matches K] [--name NAME] "
           "[--seed N]\n"
           "      K matches of N won games against zeph (from level L, else the level on disk),\n"
           "      zeph's logic at level M playing your side; keeps the level and the records\n"
           "  solo --name NAME [--level M] [--seed N]\n"
           "      one solo game played by zeph's logic at level M (default 11), the name given\n"
           "      for the record table\n"
           "  records\n"
           "      both record tables and zeph's level\n"
           "the table of shot and think (table units, every number finite):\n"
           "  a ball on the table stands within the cushion lines "
        << kCushionLines.text()
        << ",\n"
           "  no two closer than a ball's width, 100 (the rack's own balls excepted); the cue\n"
           "  ball is on the table; a ball off the table lies within the table's frame\n"
           "  "
        << kTableFrame.text()
        << "\n"
           "  the aim lies where the mouse can put it over the table view:\n"
           "  "
        << kMouseReach.text()
        << "\n"
           "  the hit point: each part -1..1, the pair no longer than 1\n"
           "  a break starts from the rack (the cue ball anywhere on the table) and is aimed\n"
           "  where the break swing puts the aim: 100 from the foot spot (1800, 600) towards\n"
           "  the head, at most 32.4 degrees to either side; without an aim, at (1700, 600)\n"
           "exit status: 0 done; 2 bad input (one line on stderr); 3 done, but the records or\n"
           "  zeph's level could not be saved (\"saved\": false, and one line on stderr a save)\n";
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
    if (command == "think")
        return runThinkCommand(options, in, out, err);
    if (command == "demo")
        return runDemoCommand(options, out, err);
    if (command == "match")
        return runMatchCommand(options, out, err);
    if (command == "solo")
        return runSoloCommand(options, out, err);
    if (command == "records")
        return runRecordsCommand(options, out, err);
    err << "morvane-sim: unknown command '" << command << "'\n";
    return usage(err);
}

int runCommand(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    return runCommand(args, std::cin, std::cout, std::cerr);
}

} // namespace morvane::sim
