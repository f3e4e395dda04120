#include "game/text.h"
#include "records/atomic_file.h"
#include "records/profile_file.h"
#include "support/temp_home.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <random>

using namespace morvane;

namespace {

class ProfileFile : public morvane::testing::TempHomeTest {
  protected:
    std::string file() const { return path("TEST.INI"); }
    int32_t readInt(const std::string& key) const {
        return GetPrivateProfileIntA("S", key, -99, file());
    }
};

TEST_F(ProfileFile, FindsKeysWithoutRegardToCaseAndFallsBackToDefaults) {
    EXPECT_EQ(GetPrivateProfileStringA("S", "a", "none", file()), "none") << "no file";
    writeFile("TEST.INI", "\xEF\xBB\xBF  [ Solo ]  \r\n"
                          "; Shots01=5\r\n"
                          "  shots01 =\t 14 \t\r\n"
                          "NAME01=  zeph  \r\n"
                          "Shots01=99\r\n"
                          "[OTHER]\nTurn01=3\n");
    EXPECT_EQ(GetPrivateProfileIntA("SOLO", "Shots01", 0, file()), 14)
        << "comment skipped, the first of two equal keys wins";
    EXPECT_EQ(GetPrivateProfileStringA("solo", "Name01", "", file()), "zeph");
    EXPECT_EQ(GetPrivateProfileIntA("SOLO", "Turn01", 7, file()), 7) << "a key of another section";
    EXPECT_EQ(GetPrivateProfileIntA("MISSING", "Shots01", 7, file()), 7);
}

TEST_F(ProfileFile, ReadsNumbersLeniently) {
    writeFile("TEST.INI", "[S]\nblank= 14\nminus=-1\nplus=+7\ntail=12abc\nword=abc\nempty=\n"
                          "sign=-\nhuge=99999999999999\nhugeMinus=-99999999999999\n");
    const std::pair<const char*, int32_t> expected[] = {
        {"blank", 14},   {"minus", -1},       {"plus", 7},
        {"tail", 12},    {"word", 0},         {"empty", 0},
        {"sign", 0},     {"huge", INT32_MAX}, {"hugeMinus", INT32_MIN},
        {"missing", -99}};
    for (const auto& [key, value] : expected)
        EXPECT_EQ(readInt(key), value) << key;
}

TEST_F(ProfileFile, WritesInPlaceAtTheEndOfTheSectionOrInANewSection) {
    writeFile("TEST.INI", "; my records\n[solo]\nshots01 = 3\n\n[VSCPU]\nName01=Ann\n");
    WritePrivateProfileStringA("SOLO", "Shots01", " 4", file());
    WritePrivateProfileStringA("SOLO", "Time01", " 60", file());
    WritePrivateProfileStringA("ZEPH", "LV", " 1", file());
    WritePrivateProfileStringA("VSCPU", "Note", "two\nlines", file());
    WritePrivateProfileStringA("SOLO", "Time01", " 61", file());
    EXPECT_EQ(readFile("TEST.INI"), "; my records\n"
                                    "[solo]\n"
                                    "shots01= 4\n"
                                    "Time01= 61\n"
                                    "\n"
                                    "[VSCPU]\n"
                                    "Name01=Ann\n"
                                    "Note=two lines\n"
                                    "[ZEPH]\n"
                                    "LV= 1\n");
}

TEST_F(ProfileFile, CopesWithRandomBytesAndOneVeryLongLine) {
    std::mt19937 random(4);
    std::string noise;
    for (int i = 0; i < 64 * 1024; ++i)
        noise += char(random());
    writeFile("TEST.INI", noise + "\n[S]\nkey=5\n");
    EXPECT_EQ(readInt("key"), 5);
    EXPECT_TRUE(WritePrivateProfileStringA("S", "key", " 6", file()));
    EXPECT_EQ(readInt("key"), 6);

    std::string balls;
    for (int i = 0; i < 300 * 1024; ++i)
        balls += "球";
    writeFile("TEST.INI", "[S]\nkey=" + balls);
    EXPECT_EQ(GetPrivateProfileStringA("S", "key", "", file()), balls.substr(0, 199 * 3))
        << "cut at 199 characters, not bytes";
    EXPECT_TRUE(WritePrivateProfileStringA("S", "other", "x", file()));
    EXPECT_EQ(GetPrivateProfileStringA("S", "other", "", file()), "x");
}

TEST_F(ProfileFile, AWriteThatFailsAtAnyStepLeavesTheOldFileWholeAndSaysSoOnce) {
    const std::string old = "[S]\nkey= 1\nname=Ann\n";
    for (SaveStep failing :
         {SaveStep::CreateTemporary, SaveStep::Write, SaveStep::FlushFile, SaveStep::Rename}) {
        writeFile("TEST.INI", old);
        setSaveStepHook([&](SaveStep step) { return step == failing ? ENOSPC : 0; });
        ::testing::internal::CaptureStderr();
        const bool written = WritePrivateProfileStringA("S", "key", " 2", file());
        const std::string warning = ::testing::internal::GetCapturedStderr();
        setSaveStepHook(nullptr);

        EXPECT_FALSE(written);
        EXPECT_EQ(readFile("TEST.INI"), old);
        EXPECT_EQ(folderEntries(), std::vector<std::string>{"TEST.INI"}) << "no temporary file";
        EXPECT_EQ(warning, "morvane: could not save " + file() +
                               " (No space left on device); the change is lost\n");
    }
    setSaveStepHook([](SaveStep step) { return step == SaveStep::FlushFolder ? EIO : 0; });
    EXPECT_TRUE(WritePrivateProfileStringA("S", "key", " 2", file()))
        << "the new file is in place before the folder is flushed";
    setSaveStepHook(nullptr);
    EXPECT_EQ(readInt("key"), 2);
}

TEST_F(ProfileFile, AFileThatCannotBeWrittenCostsOnlyTheChange) {
    const std::string nowhere = path("no-such-folder/TEST.INI");
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(WritePrivateProfileStringA("S", "key", " 1", nowhere));
    EXPECT_NE(::testing::internal::GetCapturedStderr().find("no-such-folder"), std::string::npos);
}

} // namespace
