// The three profile-file functions of the INI files, with the contract that the game was written
// against: a missing file, section or key gives the default; numbers are read leniently; section
// and key names match without regard to case; a key is replaced where it stands, a new key goes
// to the end of its section and a new section to the end of the file. Files are UTF-8, and every
// write replaces the file at once, so it is never left half written.
#pragma once

#include <cstdint>
#include <string>

namespace morvane {

// Longest text that a read hands back, in characters: the game reads into 200 with a final NUL.
constexpr int kProfileStringLimit = 199;

// The key's value as a number: leading blanks skipped, an optional sign, then the digits up to
// the first other character. A value that doesn't start with a number reads as 0.
int32_t GetPrivateProfileIntA(const std::string& section, const std::string& key,
                              int32_t defaultValue, const std::string& file);

// The key's value without the blanks around it, at most kProfileStringLimit characters.
std::string GetPrivateProfileStringA(const std::string& section, const std::string& key,
                                     const std::string& defaultValue, const std::string& file);

// Sets the key to the value, creating the file and the section if need be. A file that can't be
// written loses this change and says so in one line on stderr; the result is then false.
bool WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                const std::string& value, const std::string& file);

} // namespace morvane
