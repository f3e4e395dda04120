// Whole-file reads, and writes that either replace a file completely or leave it as it was.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace morvane {

// The bytes of a file, or nothing when it can't be opened.
std::optional<std::string> readWholeFile(const std::string& path);

// Writes the text to a temporary file in the same folder, flushes it to the disk and renames it
// over the path. On any failure the old file stays whole, the temporary file is removed, one line
// goes to stderr and the result is false.
bool writeFileAtomically(const std::string& path, const std::string& text);

// Runs between the flushed write and the rename with the temporary file's path; a false answer
// stops the write there, as a crash or a full disk would. For tests; an empty hook does nothing.
using BeforeRenameHook = std::function<bool(const std::string& tempPath)>;
void setBeforeRenameHook(BeforeRenameHook hook);

} // namespace morvane
