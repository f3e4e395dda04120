#include "records/profile_file.h"

#include "records/atomic_file.h"
#include "records/file_read.h"

#include <cstdio>

namespace morvane {

namespace {

using Problem = FileRead::Problem;

// What keeps a file from being saved at all: something that isn't a file in its place, or a file
// that can't be read, whose other sections a save would lose.
bool reportUnsavable(const std::string& file, const FileRead& read) {
    if (read.problem == Problem::NotAFile)
        std::fprintf(stderr,
                     "morvane: could not save %s (%s stands in its place); the change is lost\n",
                     file.c_str(), read.reason.c_str());
    else if (read.problem == Problem::Unreadable)
        std::fprintf(stderr,
                     "morvane: could not save %s (it can't be read: %s); the change is lost\n",
                     file.c_str(), read.reason.c_str());
    else
        return false;
    return true;
}

} // namespace

IniDocument loadProfile(const std::string& file) {
    const FileRead read = readSmallFile(file);
    reportReadProblem(file, read);
    return IniDocument(read.text);
}

bool saveProfile(const std::string& file, const std::function<void(IniDocument&)>& change) {
    const FileRead read = readSmallFile(file);
    if (reportUnsavable(file, read))
        return false;
    reportReadProblem(file, read);
    IniDocument document(read.text);
    change(document);
    const std::string text = document.text();
    if (read.problem == Problem::None && text == read.text)
        return true;
    return writeFileAtomically(file, text);
}

int32_t GetPrivateProfileIntA(const std::string& section, const std::string& key,
                              int32_t defaultValue, const std::string& file) {
    return loadProfile(file).readInt(section, key, defaultValue);
}

std::string GetPrivateProfileStringA(const std::string& section, const std::string& key,
                                     const std::string& defaultValue, const std::string& file) {
    return loadProfile(file).readString(section, key, defaultValue);
}

bool WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                const std::string& value, const std::string& file) {
    return saveProfile(file, [&](IniDocument& document) { document.set(section, key, value); });
}

} // namespace morvane
