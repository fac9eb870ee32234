#include "base/shown_text.h"

#include <gtest/gtest.h>

namespace kalvo::base {
namespace {

using std::string_view_literals::operator""sv;

std::string repeated(std::string_view text, std::size_t count) {
    std::string all;
    for (; count > 0; --count) all += text;
    return all;
}

TEST(ShownTextTest, IsCutAfterAWholeCodePoint) {
    for (const char* letter : {"a", "è", "€", "🌍"}) {
        const std::string longest = repeated(letter, kShownLength);
        EXPECT_EQ(shownText(longest), longest);
        EXPECT_EQ(shownText(longest + letter), longest + "…");
    }
    EXPECT_EQ(shownText(std::string(1001, '\x80')).size(), 4 * kShownLength + 3) << "no UTF-8";
}

TEST(ShownTextTest, HasNothingThatActs) {
    // Just outside and at both ends of each range.
    constexpr std::string_view kText =
        "\x1F !\0~\x7F|\u0080\u009F\u00A0|\u061B\u061C|\u200D\u200E\u200F\u2010|"
        "\u2027\u2028\u202E\u202F|\u2065\u2066\u2069\u206A"sv;
    EXPECT_EQ(shownText(kText),
              "  ! ~ |  \u00A0|\u061B |\u200D  \u2010|\u2027  \u202F|\u2065  \u206A");
}

TEST(ShownTextTest, BreaksLongRunsOnly) {
    EXPECT_EQ(withLineBreakOpportunities("Friuli-Venezia Giulia\n12.345.678 kWh/anno"),
              "Friuli-Venezia Giulia\n12.345.678 kWh/anno");
    const std::string run = repeated("è", 24);
    EXPECT_EQ(withLineBreakOpportunities(run + " " + run + run + run + "è"),
              run + " " + run + "\u200B" + run + "\u200B" + run + "\u200Bè");
}

}  // namespace
}  // namespace kalvo::base
