// Saves killed at each of their steps, in a child process that dies there, and the clearing up
// at the next start.
#include "records/atomic_file.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace morvane;

namespace {

class AtomicFile : public morvane::testing::TempHomeTest {
  protected:
    const std::string oldText = "[SOLO]\nName01=Good Record\n";
    const std::string newText = "[SOLO]\nName01=Another\nName02=Good Record\n";
    const SaveStep steps[5] = {SaveStep::CreateTemporary, SaveStep::Write, SaveStep::FlushFile,
                               SaveStep::Rename, SaveStep::FlushFolder};

    std::string file() const { return path("MVSCORE.INI"); }
    void removeLeftovers() const { removeUnfinishedSaves(home_, {"MVSCORE.INI", "MORVANE.INI"}); }
};

TEST_F(AtomicFile, AKillAtAnyStepLeavesTheOldFileOrTheNewWholeAndTheNextStartClearsUp) {
    for (SaveStep dying : steps) {
        writeFile("MVSCORE.INI", oldText);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            setSaveStepHook([&](SaveStep step) {
                if (step == dying)
                    ::raise(SIGKILL);
                return 0;
            });
            writeFileAtomically(file(), newText);
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);

        const bool renamed = dying == SaveStep::FlushFolder;
        EXPECT_EQ(readFile("MVSCORE.INI"), renamed ? newText : oldText) << int(dying);
        const bool leftBehind = dying != SaveStep::CreateTemporary && !renamed;
        EXPECT_EQ(folderEntries().size(), leftBehind ? 2u : 1u) << int(dying);
        removeLeftovers();
        EXPECT_EQ(folderEntries(), std::vector<std::string>{"MVSCORE.INI"}) << int(dying);
    }
}

TEST_F(AtomicFile, OnlyTheGamesOwnTemporaryNamesAreClearedAndNotOneThatASaveHolds) {
    std::vector<std::string> kept = {".MVSCORE.INI.abc", ".OTHER.INI.a1B2c3", "MVSCORE.INI.a1B2c3",
                                     ".MVSCORE.INI.Held12", "elsewhere"};
    for (const std::string& name : kept)
        writeFile(name, "x");
    writeFile(".MVSCORE.INI.a1B2c3", "half a sa");
    writeFile(".MORVANE.INI.ZZ9zz9", "");
    std::filesystem::create_directory(path(".MVSCORE.INI.Dir123"));
    std::filesystem::create_symlink(path("elsewhere"), path(".MVSCORE.INI.Link12"));
    const int held = ::open(path(".MVSCORE.INI.Held12").c_str(), O_RDONLY);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    removeLeftovers();
    ::close(held);
    kept.insert(kept.end(), {".MVSCORE.INI.Dir123", ".MVSCORE.INI.Link12"});
    std::vector<std::string> entries = folderEntries();
    std::ranges::sort(kept);
    std::ranges::sort(entries);
    EXPECT_EQ(entries, kept);
}

} // namespace
