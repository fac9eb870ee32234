#include "platform/color.h"

#include <gtest/gtest.h>

namespace kalvo::platform {
namespace {

constexpr Color kFallback{1 / 255.0, 1 / 255.0, 0, 1 / 255.0};

struct HexCase {
    const char* text;
    Color color;
};

class ColorHex : public testing::TestWithParam<HexCase> {};

TEST_P(ColorHex, ReadsTheText) { EXPECT_EQ(Color::hex(GetParam().text), GetParam().color); }

INSTANTIATE_TEST_SUITE_P(
    Texts,
    ColorHex,
    testing::Values(HexCase{"#ffd600", {1, 214 / 255.0, 0, 1}},
                    HexCase{"ffd600", {1, 214 / 255.0, 0, 1}},
                    HexCase{"  (#FFD600) ", {1, 214 / 255.0, 0, 1}},
                    HexCase{"#fff", {1, 1, 1, 1}},
                    HexCase{"#1a0", {17 / 255.0, 170 / 255.0, 0, 1}},
                    HexCase{"#80ff0000", {1, 0, 0, 128 / 255.0}},
                    // Digits end at the first other character, the length counts all of them.
                    HexCase{"#12345g", {1 / 255.0, 0x23 / 255.0, 0x45 / 255.0, 1}},
                    HexCase{"0x1234", {0, 0x12 / 255.0, 0x34 / 255.0, 1}},
                    // Lengths count characters, not bytes: an accented letter is one of six.
                    HexCase{"12345\u00e8", {1 / 255.0, 0x23 / 255.0, 0x45 / 255.0, 1}},
                    HexCase{"#zzzzzz", {0, 0, 0, 1}},
                    HexCase{"#ffd60", kFallback},
                    HexCase{"", kFallback},
                    HexCase{"#", kFallback},
                    HexCase{"#ffffffffffffffffffff", kFallback}));

}  // namespace
}  // namespace kalvo::platform
