#include "records/data_folder.h"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>

namespace morvane {

namespace {

constexpr const char* kAppFolder = "morvane";

std::string environmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string withSlash(std::string folder) {
    if (folder.empty() || folder.back() != '/')
        folder += '/';
    return folder;
}

std::string homeFolder() {
    std::string home = environmentValue("HOME");
    if (home.empty()) {
        if (const passwd* user = ::getpwuid(::getuid()))
            home = user->pw_dir ? user->pw_dir : "";
    }
    return home.empty() ? "." : home;
}

std::string chooseFolder() {
    if (std::string own = environmentValue("MORVANE_HOME"); !own.empty())
        return withSlash(own);
    // Only an absolute XDG_CONFIG_HOME counts; a relative one is to be ignored.
    if (std::string config = environmentValue("XDG_CONFIG_HOME"); config.starts_with('/'))
        return withSlash(config) + kAppFolder + "/";
    return withSlash(homeFolder()) + ".config/" + kAppFolder + "/";
}

} // namespace

std::string getWindowsPath() {
    const std::string folder = chooseFolder();
    // A folder that can't be made shows at the first write, which says so on stderr.
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    return folder;
}

} // namespace morvane
