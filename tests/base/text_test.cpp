#include "base/text.h"

#include <gtest/gtest.h>

namespace kalvo::base {
namespace {

TEST(TextTest, MapsCaseBeyondAscii) {
    EXPECT_EQ(lowercased("VALLE D'AOSTE/VALL\u00c9E"), "valle d'aoste/vall\u00e9e");
    EXPECT_EQ(lowercased("Roma"), "roma");
    EXPECT_EQ(uppercased("forl\u00ec"), "FORL\u00cc");
}

TEST(TextTest, TrimsUnicodeSpacesAndNewlinesApart) {
    EXPECT_EQ(trimmedSpaces(" \t\u00a0Roma \u2003"), "Roma");
    EXPECT_EQ(trimmedSpaces(" Roma\r"), "Roma\r");
    EXPECT_EQ(trimmedSpacesAndNewlines("\u0085 \u2028Roma \r\n"), "Roma");
    EXPECT_EQ(trimmedSpaces(" \t "), "");
    EXPECT_EQ(trimmedSpacesAndNewlines("\x80 stray bytes \xff"), "\x80 stray bytes \xff");
}

TEST(TextTest, KnowsUtf8) {
    EXPECT_TRUE(isValidUtf8("citt\u00e0 \U0001F32C"));
    EXPECT_TRUE(isValidUtf8(""));
    EXPECT_FALSE(isValidUtf8("citt\xe0"));
    EXPECT_FALSE(isValidUtf8("\xc0\x80"));
    EXPECT_FALSE(isValidUtf8("\xed\xa0\x80"));
    EXPECT_FALSE(isValidUtf8("cut off \xe2\x82"));
}

}  // namespace
}  // namespace kalvo::base
