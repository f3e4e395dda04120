// Writes that either replace a file completely or leave it as it was, even when the process is
// killed in the middle, and the clearing away of what such a kill leaves behind.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace morvane {

// Writes the text to a temporary file ".NAME.XXXXXX" in the same folder, flushes it to the disk,
// renames it over the path and flushes the folder. A link is followed, so the file it points to
// is replaced and the link stays. On any failure the old file stays whole, the temporary file is
// removed, one line naming the file and the reason goes to stderr and the result is false.
bool writeFileAtomically(const std::string& path, const std::string& text);

// Removes the temporary files of the named files that a save cut off by a crash or a kill left
// in the folder, and nothing else: a temporary file that a running save still holds stays.
void removeUnfinishedSaves(const std::string& folder, const std::vector<std::string>& fileNames);

// The steps of a save, in order.
enum class SaveStep { CreateTemporary, Write, FlushFile, Rename, FlushFolder };

// Asked before each step of a save; an answer other than 0 makes the step fail with that error
// number, as a full disk or a read-only folder would. For tests, which may also end the process
// there; an empty hook lets every step run.
using SaveStepHook = std::function<int(SaveStep step)>;
void setSaveStepHook(SaveStepHook hook);

} // namespace morvane
