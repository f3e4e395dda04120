// The help page beside the program, shown by the desktop's browser.
#pragma once

namespace morvane {

// Opens "help.html" from the game's data folders; returns whether the desktop took it.
bool openHelpPage();

} // namespace morvane
