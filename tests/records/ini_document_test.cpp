// The INI file held in memory: what a save keeps of the file as it stood, and what a read gives,
// its bytes taken as UTF-8 or Shift-JIS.
#include "records/ini_document.h"
#include "records/text_bytes.h"

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

TEST(IniDocument, TheFirstOfEqualSectionsAndKeysCountsAndKeysOutsideASectionDont) {
    const IniDocument document("\xEF\xBB\xBFtop=0\n  [ S ]  \n; key=9\n  Key =\t 1 \t\nkey=2\n"
                               "[s]\nother=3\n[T]\nx = \n");
    EXPECT_EQ(document.value("s", "KEY"), "1");
    EXPECT_EQ(document.value("S", "other"), std::nullopt) << "in the second [s]";
    EXPECT_EQ(document.value("", "top"), std::nullopt);
    EXPECT_EQ(document.value("T", "x"), "");

    IniDocument changed = document;
    changed.set("s", "other", "4");
    changed.set("T", "note", "two\nlines");
    EXPECT_EQ(changed.text(), "\xEF\xBB\xBFtop=0\n  [ S ]  \n; key=9\n  Key =\t 1 \t\nkey=2\n"
                              "other=4\n[s]\nother=3\n[T]\nx = \nnote=two lines\n");
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

TEST(TextBytes, ShiftJisIsDecodedAndWhatIsNeitherIsReplacedByteByByte) {
    EXPECT_EQ(utf8FromAnyBytes("\x83\x5B\x83\x74 \xB1\xDD"), "ゼフ ｱﾝ");
    EXPECT_EQ(utf8FromAnyBytes("ok\xE3\x81 \xFF"), "ok\uFFFD\uFFFD \uFFFD")
        << "a cut sequence: each byte that isn't part of a whole one";
}

TEST(TextBytes, OnlyWellFormedUtf8CountsAsUtf8) {
    EXPECT_TRUE(isUtf8("a\x7F\xC2\x80\xE0\xA0\x80\xED\x9F\xBF\xF4\x8F\xBF\xBF"));
    for (const char* bad : {"\x80", "\xC0\xAF", "\xC1\xBF", "\xE0\x80\xAF", "\xED\xA0\x80",
                            "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE3\x81"})
        EXPECT_FALSE(isUtf8(bad)) << bad;
}

} // namespace
