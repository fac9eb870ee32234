#include "graphics/color.h"

#include <utility>

#include <gtest/gtest.h>

namespace kalvo::graphics {
namespace {

constexpr Color kFallback{1 / 255.0, 1 / 255.0, 0, 1 / 255.0};

TEST(ColorHexTest, ReadsTheText) {
    const std::pair<const char*, Color> kCases[] = {
        {"#ffd600", {1, 214 / 255.0, 0, 1}},
        {"  (#FFD600) ", {1, 214 / 255.0, 0, 1}},
        {"#fff", {1, 1, 1, 1}},
        {"1a0", {17 / 255.0, 170 / 255.0, 0, 1}},
        {"#80ff0000", {1, 0, 0, 128 / 255.0}},
        // Digits end at the first other character, the length counts all of them.
        {"#12345g", {1 / 255.0, 0x23 / 255.0, 0x45 / 255.0, 1}},
        {"0x1234", {0, 0x12 / 255.0, 0x34 / 255.0, 1}},
        {"0X1234", {0, 0x12 / 255.0, 0x34 / 255.0, 1}},
        // Lengths count characters, not bytes: an accented letter is one of six.
        {"12345\u00e8", {1 / 255.0, 0x23 / 255.0, 0x45 / 255.0, 1}},
        {"#zzzzzz", {0, 0, 0, 1}},
        {"#ffd60", kFallback},
        {"", kFallback},
        {"#", kFallback},
        {"#ffffffffffffffffffff", kFallback},
    };
    for (const auto& [text, color] : kCases) EXPECT_EQ(Color::hex(text), color) << text;
}

}  // namespace
}  // namespace kalvo::graphics
