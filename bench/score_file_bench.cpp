// Loading the score file, whatever stands in its place: a real file, a FIFO that nobody writes,
// a link to /dev/zero, and a 100 MB file of real rows followed by junk. Each load is one read of
// the file and all three tables and zeph's level taken from it.
#include "records/profile_file.h"
#include "records/score_file.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>

using namespace morvane;

namespace {

constexpr size_t kBigFileBytes = 100'000'000;

// A folder of one score file each, made once for the whole run and removed at its end.
class HostileFiles {
  public:
    HostileFiles() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "morvane-bench-XXXXXX").string();
        root_ = ::mkdtemp(pattern.data()) ? pattern : "";
        GameState g;
        for (int i = 1; i <= 10; ++i)
            g.soloRecords[i].Name = "Player " + std::to_string(i);
        ::setenv("MORVANE_HOME", folder("good").c_str(), 1);
        saveSoloRecord(g);
        saveVsCpuRecord(g);
        saveZephLevel(g);
        const std::string rows = folder("good") + "/MVSCORE.INI";
        ::mkfifo((folder("fifo") + "/MVSCORE.INI").c_str(), 0600);
        std::filesystem::create_symlink("/dev/zero", folder("zero") + "/MVSCORE.INI");
        std::filesystem::copy_file(rows, folder("big") + "/MVSCORE.INI");
        std::ofstream big(folder("big") + "/MVSCORE.INI", std::ios::app);
        const std::string junk(79, 'j');
        for (size_t written = 0; written < kBigFileBytes; written += junk.size() + 1)
            big << junk << '\n';
    }
    ~HostileFiles() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }
    HostileFiles(const HostileFiles&) = delete;
    HostileFiles& operator=(const HostileFiles&) = delete;

    std::string folder(const std::string& name) const {
        const std::string path = root_ + "/" + name;
        std::filesystem::create_directories(path);
        return path;
    }

  private:
    std::string root_;
};

const HostileFiles& hostileFiles() {
    static const HostileFiles files;
    return files;
}

void BM_LoadScoreFile(benchmark::State& state, const char* which) {
    ::setenv("MORVANE_HOME", hostileFiles().folder(which).c_str(), 1);
    for (auto _ : state) {
        const IniDocument file = loadProfile(scoreFilePath());
        benchmark::DoNotOptimize(file.readInt("ZEPH", "LV", 1));
    }
}

void BM_LoadAllRecords(benchmark::State& state, const char* which) {
    ::setenv("MORVANE_HOME", hostileFiles().folder(which).c_str(), 1);
    GameState g;
    for (auto _ : state) {
        loadZephLevel(g);
        loadSoloRecord(g);
        loadVsCpuRecord(g);
        benchmark::DoNotOptimize(g.soloRecords[1].Name.data());
    }
}

} // namespace

BENCHMARK_CAPTURE(BM_LoadScoreFile, good_file, "good")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_LoadScoreFile, fifo, "fifo")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_LoadScoreFile, dev_zero, "zero")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_LoadScoreFile, file_of_100_MB, "big")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_LoadAllRecords, good_file, "good")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_LoadAllRecords, file_of_100_MB, "big")->Unit(benchmark::kMillisecond);
