// Where the game finds the files it brings along: the pictures, sounds, tunes and the help page.
// Beside the program first, then in the installed data folder. The picture files that the game
// looks for "in the current directory" are looked for there before all.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace morvane {

// The folder of the running program (from /proc/self/exe); empty if it can't be told.
std::filesystem::path programFolder();

// The folders searched for a data file, in order: beside the program, the data folder of an
// installation next to it (<prefix>/bin -> <prefix>/share/morvane), and the data folder that the
// build was configured to install into.
std::vector<std::filesystem::path> dataFolders(const std::filesystem::path& program,
                                               const std::filesystem::path& installedData);

// The first of the folders that holds the named file; the first folder if none does, so that a
// missing file is named where it was expected.
std::filesystem::path findDataFile(const std::string& name,
                                   const std::vector<std::filesystem::path>& folders);

// The same, with the current directory searched before the others.
std::filesystem::path findInCurrentDirectory(const std::string& name,
                                             std::vector<std::filesystem::path> folders);

// The folders of this run: dataFolders() of the program's folder and the configured data folder.
std::vector<std::filesystem::path> gameDataFolders();

} // namespace morvane
