// The INI files of the game. The three profile-file functions keep the contract that the game was
// written against: a missing file, section or key gives the default; numbers are read leniently;
// section and key names match without regard to case; a key is replaced where it stands, a new key
// goes to the end of its section and a new section to the end of the file. Texts are UTF-8. A
// file is read whole once (loadProfile), and a save changes it in memory and writes it once
// (saveProfile), so a file is never left half written and a save is told once if it fails.
#pragma once

#include "records/ini_document.h"

#include <cstdint>
#include <functional>
#include <string>

namespace morvane {

// The file as a document: empty when it is missing, and also, with one line on stderr, when
// something else than a regular file stands in its place or it can't be read.
IniDocument loadProfile(const std::string& file);

// Reads the file, makes the changes and writes it back whole, unless nothing changed. A file that
// can't be saved keeps what it held and costs the changes, with one line on stderr naming the file
// and the reason; the result is then false.
bool saveProfile(const std::string& file, const std::function<void(IniDocument&)>& change);

// The key's value as a number: leading blanks skipped, an optional sign, then the digits up to
// the first other character. A value that doesn't start with a number reads as 0.
int32_t GetPrivateProfileIntA(const std::string& section, const std::string& key,
                              int32_t defaultValue, const std::string& file);

// The key's value without the blanks around it, at most kProfileStringLimit characters.
std::string GetPrivateProfileStringA(const std::string& section, const std::string& key,
                                     const std::string& defaultValue, const std::string& file);

// Sets the key to the value, creating the file and the section if need be.
bool WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                const std::string& value, const std::string& file);

} // namespace morvane
