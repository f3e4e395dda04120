// The INI file held in memory: what a save keeps of the file as it stood, and what a read gives.
#include "records/ini_document.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

std::string afterSets(const std::string& file) {
    IniDocument document(file);
    document.set("solo", "Shots01", " 4");
    document.set("SOLO", "Time01", " 60");
    document.set("ZEPH", "LV", " 2");
    return document.text();
}

TEST(IniDocument, EachFileKeepsItsOwnLineEndsAndNewLinesTakeThoseOfItsFirstLine) {
    EXPECT_EQ(afterSets("[SOLO]\r\nShots01= 3\r\n\r\n[VSCPU]\r\nName01=Ann\r\n"),
              "[SOLO]\r\nShots01= 4\r\nTime01= 60\r\n\r\n[VSCPU]\r\nName01=Ann\r\n"
              "[ZEPH]\r\nLV= 2\r\n");
    EXPECT_EQ(afterSets("[SOLO]\nShots01= 3\n"), "[SOLO]\nShots01= 4\nTime01= 60\n[ZEPH]\nLV= 2\n");
    EXPECT_EQ(afterSets("; mixed\r\n[SOLO]\nShots01= 3\n[VSCPU]\r\nName01=Ann"),
              "; mixed\r\n[SOLO]\nShots01= 4\nTime01= 60\r\n[VSCPU]\r\nName01=Ann\r\n"
              "[ZEPH]\r\nLV= 2\r\n")
        << "a changed line keeps its end; a last line without one gets the file's";
    EXPECT_EQ(afterSets(""), "[solo]\nShots01= 4\nTime01= 60\n[ZEPH]\nLV= 2\n");
    EXPECT_EQ(afterSets("\xEF\xBB\xBF[SOLO]\r\n"),
              "\xEF\xBB\xBF[SOLO]\r\nShots01= 4\r\nTime01= 60\r\n[ZEPH]\r\nLV= 2\r\n");

    const std::string untouched = "\xEF\xBB\xBF; notes\r\n\r\n[S]\r\n  key =\t1 \r\n#x=2\n";
    EXPECT_EQ(IniDocument(untouched).text(), untouched) << "a file read and written back";
}

TEST(IniDocument, TheFirstOfEqualSectionsAndKeysCountsAndKeysOutsideASectionDont) {
    const IniDocument document("top=0\n[S]\nKey=1\nkey=2\n[s]\nother=3\n[T]\nx = \n");
    EXPECT_EQ(document.value("s", "KEY"), "1");
    EXPECT_EQ(document.value("S", "other"), std::nullopt) << "in the second [s]";
    EXPECT_EQ(document.value("", "top"), std::nullopt);
    EXPECT_EQ(document.value("T", "x"), "");
    EXPECT_EQ(document.readInt("T", "x", 5), 0) << "an empty value is no number";
    EXPECT_EQ(document.readInt("T", "y", 5), 5);

    IniDocument changed = document;
    changed.set("s", "other", "4");
    EXPECT_EQ(changed.text(), "top=0\n[S]\nKey=1\nkey=2\nother=4\n[s]\nother=3\n[T]\nx = \n");
}

TEST(IniDocument, TextsComeBackAsUtf8WhateverTheirBytes) {
    const IniDocument document("[S]\nutf8=玉突き\nsjis=\x8B\xCA\x93\xCB\x82\xAB\n"
                               "bad=A\xFF\xFE"
                               "B\n");
    EXPECT_EQ(document.readString("S", "utf8", ""), "玉突き");
    EXPECT_EQ(document.readString("S", "sjis", ""), "玉突き") << "read as Shift-JIS";
    EXPECT_EQ(document.readString("S", "bad", ""), "A\uFFFD\uFFFDB") << "neither: replaced";
    EXPECT_EQ(document.value("S", "bad"), "A\xFF\xFE"
                                          "B")
        << "the file itself keeps its bytes";
}

} // namespace
