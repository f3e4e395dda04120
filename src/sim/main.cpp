// morvane-sim: the game's logic without a window, reading and printing JSON.
#include "sim/commands.h"

int main(int argc, char** argv) {
    return morvane::sim::runCommand(argc, argv);
}
