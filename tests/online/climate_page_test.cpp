#include "online/climate_page.h"

#include <ctime>
#include <string>

#include <gmock/gmock.h>

namespace kalvo::online {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

std::string placeholder(const std::string& dataUrl) {
    return R"(<div id="blooimage" class="chart" data-url=")" + dataUrl + "\"></div>\n";
}

TEST(FindChartAddresses, DecodesEntitiesAndPutsTheSchemeInFront) {
    const std::string page = "<html>" + placeholder("//h/i?type=cloud_coverage&amp;a=1&amp;b=2") +
                             placeholder("//h/i?wind_rose") +
                             placeholder("https://h/wind_speeds&amp;amp;") +
                             placeholder("//h/later/wind_speeds");
    EXPECT_THAT(findChartAddresses(page),
                Optional(ChartAddresses{"https:https://h/wind_speeds&amp;", "https://h/i?wind_rose",
                                        "https://h/i?type=cloud_coverage&a=1&b=2"}));
}

TEST(FindChartAddresses, NeedsBothWindCharts) {
    const std::string speeds = placeholder("//h/wind_speeds");
    const std::string rose = placeholder("//h/wind_rose");
    const std::string cloud = placeholder("//h/cloud_coverage");
    EXPECT_EQ(findChartAddresses(""), std::nullopt);
    EXPECT_EQ(findChartAddresses(speeds + cloud), std::nullopt);
    EXPECT_EQ(findChartAddresses(rose + cloud), std::nullopt);
    EXPECT_THAT(
        findChartAddresses(rose + speeds),
        Optional(ChartAddresses{"https://h/wind_speeds", "https://h/wind_rose", std::nullopt}));
}

TEST(FindChartAddresses, KnowsThePlaceholderInItsVariants) {
    const std::string rose = placeholder("//h/wind_rose");
    const struct {
        const char* tag;
        std::optional<std::string> address;
    } kCases[] = {
        {"<i id='blooimage' data-url='//h/wind_speeds'>", "https://h/wind_speeds"},
        {"<i id='blooimage\" data-url=\"//h/wind_speeds'>", "https://h/wind_speeds"},
        {"<i id='blooimage'\n\tx='1'\ndata-url='//h/\nwind_speeds'>", "https://h/\nwind_speeds"},
        {"<i id='blooimage' città='è' data-url='//h/è_wind_speeds>_è'>",
         "https://h/è_wind_speeds>_è"},
        {"<i id='blooimage' data-url='//h/a' data-url='//h/wind_speeds'>", "https://h/wind_speeds"},
        // Of two addresses in one tag the greedy middle part leaves the last one.
        {"<i id='blooimage' data-url='//h/wind_speeds1' data-url='//h/wind_speeds2'>",
         "https://h/wind_speeds2"},
        {"<i data-url='//h/wind_speeds' id='blooimage'>", std::nullopt},
        {"<i id='blooimage'data-url='//h/wind_speeds'>", std::nullopt},
        {"<i id='blooimage'><i data-url='//h/wind_speeds'>", std::nullopt},
        {"<i id=blooimage data-url='//h/wind_speeds'>", std::nullopt},
        {"<i id='BlooImage' data-url='//h/wind_speeds'>", std::nullopt},
        {"<i id='blooimage' data-url='//h/wind_speed'>", std::nullopt},
    };
    for (const auto& [tag, address] : kCases) {
        const auto found = findChartAddresses(rose + tag);
        EXPECT_EQ(found ? std::optional(found->windSpeeds) : std::nullopt, address) << tag;
    }
}

TEST(Matches, ListsWhatGroupOneCaptured) {
    EXPECT_THAT(matches("a(.)", "ab ac a"), ElementsAre("b", "c"));
    EXPECT_THAT(matches("x|a(.)", "x ab"), ElementsAre("b"));
    EXPECT_THAT(matches("a()", "aa"), ElementsAre("", ""));
    EXPECT_THAT(matches("(b*)", "àb"), ElementsAre("", "b", ""));
    EXPECT_THAT(matches("a(b)(c)", "abc"), ElementsAre("b"));
    EXPECT_THAT(matches("a.", "ab"), IsEmpty());
    EXPECT_THAT(matches("a(", "a("), IsEmpty());
}

// Listing all matches, or capturing groups in one that is as long as the page, takes seconds; a
// backtracking engine takes minutes. Processor time, as the time on the wall tells of what else the
// machine does; an unoptimized build in a hurry is given four times the goal of 0.1 s.
TEST(FindChartAddresses, TakesLinearTimeForAnyPage) {
    constexpr std::size_t kSize = std::size_t{8} << 20;
    const std::string both = "id='blooimage' data-url='wind_speeds' data-url='wind_rose'";
    for (const std::string part :
         {"id='blooimage' ", "id='blooimage' data-url='", "id='blooimage' data-url='wind_speeds",
          ">", "id='blooimage' data-url='wind_speeds'>", "&amp;", "x"}) {
        std::string page = "id='blooimage' data-url='wind_speeds&amp;";
        std::string block;
        while (block.size() < 10'000) block += part;
        while (page.size() < kSize) page += block;
        page += both;
        const std::clock_t start = std::clock();
        EXPECT_TRUE(findChartAddresses(page)) << part;
        EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC / 5) << part;
    }
}

}  // namespace
}  // namespace kalvo::online
