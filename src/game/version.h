// The program's version, shown in the window's caption and on the version form.
#pragma once

#include <string>

namespace morvane {

inline constexpr const char* kVersion = "3.02";

// "MORVANE Ver.3.02": the caption before any music has played.
inline std::string versionCaption() {
    return std::string("MORVANE Ver.") + kVersion;
}

} // namespace morvane
