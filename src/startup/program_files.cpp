#include "startup/program_files.h"

#include <system_error>

#ifndef MORVANE_INSTALLED_DATA_DIR
#define MORVANE_INSTALLED_DATA_DIR ""
#endif

namespace morvane {

namespace fs = std::filesystem;

namespace {
constexpr const char* kSelfLink = "/proc/self/exe";
constexpr const char* kRelativeDataFolder = "../share/morvane";

bool isFile(const fs::path& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

void addOnce(std::vector<fs::path>& folders, const fs::path& folder) {
    if (folder.empty())
        return;
    const fs::path normal = folder.lexically_normal();
    for (const fs::path& f : folders) {
        if (f == normal)
            return;
    }
    folders.push_back(normal);
}

} // namespace

fs::path programFolder() {
    std::error_code error;
    const fs::path self = fs::read_symlink(kSelfLink, error);
    return error ? fs::path() : self.parent_path();
}

std::vector<fs::path> dataFolders(const fs::path& program, const fs::path& installedData) {
    std::vector<fs::path> folders;
    addOnce(folders, program);
    if (!program.empty())
        addOnce(folders, program / kRelativeDataFolder);
    addOnce(folders, installedData);
    return folders;
}

fs::path findDataFile(const std::string& name, const std::vector<fs::path>& folders) {
    for (const fs::path& folder : folders) {
        if (isFile(folder / name))
            return folder / name;
    }
    return folders.empty() ? fs::path(name) : folders.front() / name;
}

fs::path findInCurrentDirectory(const std::string& name, std::vector<fs::path> folders) {
    std::error_code error;
    const fs::path current = fs::current_path(error);
    if (!error)
        folders.insert(folders.begin(), current);
    return findDataFile(name, folders);
}

std::vector<fs::path> gameDataFolders() {
    return dataFolders(programFolder(), MORVANE_INSTALLED_DATA_DIR);
}

} // namespace morvane
