// The folder of the settings and the score file.
#pragma once

#include <string>

namespace morvane {

// $MORVANE_HOME if set, else $XDG_CONFIG_HOME/morvane/, else ~/.config/morvane/, always ending
// in '/'. The folder is created when it doesn't exist yet; asked afresh on every call.
std::string getWindowsPath();

} // namespace morvane
