#include "records/text_bytes.h"

#include <gtest/gtest.h>

using namespace morvane;

namespace {

TEST(TextBytes, Utf8StaysShiftJisIsDecodedAndAnythingElseIsReplaced) {
    EXPECT_EQ(utf8FromAnyBytes("zeph ゼフ 🎱"), "zeph ゼフ 🎱");
    EXPECT_EQ(utf8FromAnyBytes(""), "");
    EXPECT_EQ(utf8FromAnyBytes("\x83\x5B\x83\x74"), "ゼフ");
    EXPECT_EQ(utf8FromAnyBytes("Ann \xB1\xDD"), "Ann ｱﾝ") << "half-width katakana";
    EXPECT_EQ(utf8FromAnyBytes("\xFF\xFE"), "\uFFFD\uFFFD");
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
