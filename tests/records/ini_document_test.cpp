// The INI file held in memory: what a save keeps of the file as it stood, and what a read gives,
// its bytes taken as UTF-8 or Shift-JIS.
#include "records/ini_document.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

TEST(IniDocument, EachFileKeepsItsOwnLineEndsAndNewLinesTakeThoseOfItsFirstLine) {
    const std::pair<std::string, std::string> cases[] = {
        {"[SOLO]\r\nShots01= 3\r\n\r\n[VSCPU]\r\nName01=Ann\r\n",
         "[SOLO]\r\nShots01= 4\r\nTime01= 60\r\n\r\n[VSCPU]\r\nName01=Ann\r\n[ZEPH]\r\nLV= 2\r\n"},
        {"", "[solo]\nShots01= 4\nTime01= 60\n[ZEPH]\nLV= 2\n"},
    };
    for (const auto& [before, after] : cases) {
        IniDocument document(before);
        document.set("solo", "Shots01", " 4");
        document.set("SOLO", "Time01", " 60");
        document.set("ZEPH", "LV", " 2");
        EXPECT_EQ(document.text(), after) << before;
    }
    const std::string untouched = "\xEF\xBB\xBF; notes\r\n\r\n[S]\r\n  key =\t1 \r\n#x=2\n";
    EXPECT_EQ(IniDocument(untouched).text(), untouched) << "a file read and written back";
}

TEST(IniDocument, NumbersAreReadLenientlyAndTextsAsUtf8OfAtMost199Characters) {
    std::string balls;
    for (int i = 0; i < 300; ++i)
        balls += "球";
    const IniDocument document("[S]\nblank= 14\nminus=-1\ntail=12abc\nword=abc\n"
                               "huge=99999999999999\nhugeMinus=-99999999999999\n"
                               "utf8=玉突き\nsjis=\x8B\xCA\x93\xCB\x82\xAB\nbad=A\xFF\xFE"
                               "B\nlong=" +
                               balls + "\n");
    std::vector<int32_t> numbers;
    for (const char* key : {"blank", "minus", "tail", "word", "missing", "huge", "hugeMinus"})
        numbers.push_back(document.readInt("S", key, -99));
    EXPECT_EQ(numbers, (std::vector<int32_t>{14, -1, 12, 0, -99, INT32_MAX, INT32_MIN}));

    EXPECT_EQ(document.readString("S", "utf8", ""), "玉突き");
    EXPECT_EQ(document.readString("S", "sjis", ""), "玉突き") << "read as Shift-JIS";
    EXPECT_EQ(document.readString("S", "bad", ""), "A\uFFFD\uFFFDB") << "neither: replaced";
    EXPECT_EQ(document.readString("S", "long", ""), balls.substr(0, 199 * 3)) << "not bytes";
}

} // namespace
