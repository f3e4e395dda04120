#include "startup/command_line.h"

#include <algorithm>
#include <cctype>

namespace morvane {

namespace {

constexpr const char* kDebugSwitch = "/debug";
constexpr const char* kNoMidiSwitch = "/nomidi";

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return char(std::tolower(c)); });
    return text;
}

} // namespace

void readCommandLine(GameState& g, const std::string& commandLine) {
    const std::string text = lowered(commandLine);
    g.debugStart = text.find(kDebugSwitch) != std::string::npos;
    g.noMidi = text.find(kNoMidiSwitch) != std::string::npos;
}

std::string joinArguments(int argc, const char* const argv[]) {
    std::string line;
    for (int i = 1; i < argc; ++i) {
        if (i > 1)
            line += ' ';
        line += argv[i];
    }
    return line;
}

} // namespace morvane
