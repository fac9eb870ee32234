#include "online/chart_decoders.h"

#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "engine/calculation_engine.h"

namespace kalvo::online {
namespace {

using engine::CalculationEngine;
using testing::Each;
using testing::ElementsAre;

using Counts = std::vector<std::int64_t>;

JsonDocument document(const std::string& body) {
    auto parsed = JsonDocument::parse(body);
    EXPECT_TRUE(parsed) << body;
    return *std::move(parsed);
}

/// One entry of "series".
std::string series(const std::string& name, const std::string& data) {
    return R"({"name": ")" + name + R"(", "data": )" + data + "}";
}

JsonDocument chart(const std::string& allSeries) {
    return document(R"({"title": {}, "series": [)" + allSeries + "]}");
}

Counts january(const std::string& allSeries) {
    const auto distribution = parseWindSpeedsJSON(chart(allSeries));
    const auto& counts = distribution.at("Gen");
    return {counts.begin(), counts.end()};
}

Counts direction(const engine::WindRoseData& rose, int sector) {
    const auto& counts = rose.at(sector);
    return {counts.begin(), counts.end()};
}

TEST(WindSpeedsDecoder, MakesMonthsWithoutDataCalm) {
    for (const char* body :
         {"{}", R"({"series": null})", R"({"series": {}})", R"({"series": []})",
          R"({"series": [{"name": "5-10 km/h", "data": [31]}, 7]})",
          R"({"series": [{"name": "5-10 km/h"}, {"name": "2-5 km/h", "data": "31"}]})"}) {
        const auto distribution = parseWindSpeedsJSON(document(body));
        ASSERT_EQ(distribution.size(), 12U) << body;
        for (std::size_t month = 0; month < 12; ++month) {
            const auto& counts = distribution.at(std::string(CalculationEngine::months[month]));
            EXPECT_THAT(counts,
                        ElementsAre(CalculationEngine::daysInMonth[month], 0, 0, 0, 0, 0, 0))
                << body;
        }
    }
}

TEST(WindSpeedsDecoder, BringsEveryMonthToItsLength) {
    const struct {
        std::string series;
        Counts january;
    } kCases[] = {
        // 10 / 30 x 31 = 10.33 each; the first of the largest gets the day left over.
        {series("<2", "[10]") + "," + series("2-5", "[10]") + "," + series("5-10", "[10]"),
         {11, 10, 10, 0, 0, 0, 0}},
        // 7 / 62 x 31 = 3.5 and 55 / 62 x 31 = 27.5 both round up: one day too many.
        {series("10-20", "[7]") + "," + series("20-30", "[55]"), {0, 0, 0, 4, 27, 0, 0}},
        // Fractions are cut off before scaling: 3 and 0.
        {series("30-40", "[3.9]") + "," + series("40-50", "[0.9]"), {0, 0, 0, 0, 0, 31, 0}},
        // Joint off toward zero: -0.5 is 0.
        {series("2-5", "[-0.5]") + "," + series("5-10", "[2]"), {0, 0, 31, 0, 0, 0, 0}},
        // Negative counts take part: -1 / 1 x 31 and 2 / 1 x 31.
        {series("2-5", "[-1]") + "," + series("5-10", "[2]"), {0, -31, 62, 0, 0, 0, 0}},
        {series("2-5", "[-5]") + "," + series("5-10", "[5]"), {31, 0, 0, 0, 0, 0, 0}},
        // Texts count as numbers, what cannot be a count does not.
        {series("2-5", "[\"3.9\"]") + "," + series("5-10", "[\"1e300\"]"), {0, 31, 0, 0, 0, 0, 0}},
    };
    for (const auto& [allSeries, expected] : kCases) {
        EXPECT_EQ(january(allSeries), expected) << allSeries;
    }
}

TEST(WindSpeedsDecoder, KeepsToTheMonthsLengthForCountsOfAnySize) {
    // The third total is 1, so that its largest class would come to 31 times 2^62 days.
    const std::string largest = "[9223372036854774784]";
    const std::string smallest = "[-9223372036854775808]";
    for (const std::string& allSeries :
         {series("<2", largest) + "," + series("2-5", largest) + "," + series("5-10", largest),
          series("<2", largest) + "," + series("2-5", smallest) + "," + series("5-10", "[2000]"),
          series("<2", "[4611686018427387904]") + "," + series("2-5", "[-4611686018427387392]") +
              "," + series("5-10", "[-511]"),
          series("<2", smallest) + "," + series("2-5", smallest)}) {
        const Counts counts = january(allSeries);
        EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), std::int64_t{0}), 31) << allSeries;
        EXPECT_GT(counts.front(), 0) << allSeries;
    }
}

TEST(WindSpeedsDecoder, LetsALaterSeriesOfAClassReplaceMonthByMonth) {
    // Class 0 is the measure: January has 10 to 10, 15.5 days each, February 10 to 5.
    const auto distribution = parseWindSpeedsJSON(
        chart(series("<2", "[10,10,0,0,0,0,0,0,0,0,0,1,31,31]") + "," +
              series("40-50 km/h", "[30, 5]") + "," + series("> 50 km/h", "[10, null]")));
    EXPECT_THAT(distribution.at("Gen"), ElementsAre(15, 0, 0, 0, 0, 0, 16));
    EXPECT_THAT(distribution.at("Feb"), ElementsAre(19, 0, 0, 0, 0, 0, 9));
    // There is no thirteenth month.
    EXPECT_EQ(distribution.size(), 12U);
    EXPECT_THAT(distribution.at("Dic"), ElementsAre(31, 0, 0, 0, 0, 0, 0));
}

TEST(WindRoseDecoder, PutsASeriesIntoTheFirstClassItsNameContains) {
    const struct {
        const char* name;
        std::size_t index;
    } kCases[] = {
        {"< 2 km/h", 0},  {"<2", 0},         {"2-5 km/h", 1}, {"2 - 5 KM/H", 1}, {"12-50", 1},
        {"5-10 km/h", 2}, {"10-20 km/h", 3}, {"20-30", 4},    {"30-40", 5},      {"40-50", 6},
        {"> 50", 6},      {"\\t2-\\t5", 6},  {"", 6},         {"<20-30", 0},
    };
    for (const auto& [name, index] : kCases) {
        Counts expected(7, 0);
        expected[index] = 9;
        EXPECT_EQ(direction(parseWindRoseJSON(chart(series(name, "[9]"))), 0), expected) << name;
    }
    const auto unnamed =
        parseWindRoseJSON(chart(R"({"data": [9]}, {"name": 5, "data": [null, 9]})"));
    EXPECT_EQ(direction(unnamed, 0), (Counts{0, 0, 0, 0, 0, 0, 9}));
    EXPECT_EQ(direction(unnamed, 1), (Counts{0, 0, 0, 0, 0, 0, 9}));
}

TEST(WindRoseDecoder, RoundsHalvesAwayFromZeroAndSkipsWhatIsNoCount) {
    const auto rose = parseWindRoseJSON(chart(
        series("5-10",
               R"([0.5, 2.5, -2.5, 0.49999999999999994, "12.5", " 1", "abc", "inf", "nan", 1e300,
            9223372036854775808, -9223372036854775808, true, [1], {"a": 1}, 7, 8, 9])")));
    const Counts expected{1, 3, -3, 0, 13, 0, 0, 0, 0, 0, 0, INT64_MIN, 0, 0, 0, 7};
    ASSERT_EQ(rose.size(), 16U);
    for (int sector = 0; sector < 16; ++sector) {
        const std::int64_t value = expected[static_cast<std::size_t>(sector)];
        EXPECT_EQ(direction(rose, sector), (Counts{0, 0, value, 0, 0, 0, 0})) << sector;
    }
}

TEST(WindRoseDecoder, KeepsZerosWhereThereAreNoValues) {
    for (const char* body : {"{}", R"({"series": [[]]})", R"({"series": [{"name": "2-5"}]})"}) {
        const auto rose = parseWindRoseJSON(document(body));
        ASSERT_EQ(rose.size(), 16U) << body;
        for (const auto& [sector, counts] : rose) {
            EXPECT_THAT(counts, ElementsAre(0, 0, 0, 0, 0, 0, 0)) << body << sector;
        }
    }
    const auto rose =
        parseWindRoseJSON(chart(series("2-5", "[1,1,1,1,1,1,1,1]") + "," + series("2 - 5", "[2]")));
    EXPECT_EQ(direction(rose, 0), (Counts{0, 2, 0, 0, 0, 0, 0}));
    EXPECT_EQ(direction(rose, 7), (Counts{0, 1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(direction(rose, 8), (Counts(7, 0)));
}

TEST(CloudCoverageDecoder, GivesNothingWithoutSeries) {
    EXPECT_EQ(parseCloudCoverageJSON(nullptr), std::nullopt);
    for (const char* body : {"{}", R"({"series": {}})", R"({"series": [{}, null]})"}) {
        const JsonDocument json = document(body);
        EXPECT_EQ(parseCloudCoverageJSON(&json), std::nullopt) << body;
    }
    const JsonDocument json = document(R"({"series": []})");
    const auto data = parseCloudCoverageJSON(&json);
    ASSERT_TRUE(data);
    for (const auto& list : {data->sunny, data->partlyCloudy, data->overcast, data->precip}) {
        EXPECT_THAT(list, testing::AllOf(testing::SizeIs(12), Each(0.0)));
    }
}

TEST(CloudCoverageDecoder, TellsSkyConditionsByName) {
    const struct {
        const char* name;
        const char* expected;  // sunny, partly cloudy, overcast, precipitation
    } kCases[] = {{"Sunny", "1000"},
                  {"Giorni soleggiati", "1000"},
                  {"Partly cloudy", "0100"},
                  {"PARZIALMENTE", "0100"},
                  {"Partly sunny", "1000"},
                  {"Overcast", "0010"},
                  {"Coperto", "0010"},
                  {"Precipitation sunny", "0001"},
                  {"Precipitation days", "0001"},
                  {"over cast", "0000"},
                  {"", "0000"}};
    for (const auto& [name, expected] : kCases) {
        const JsonDocument json = chart(series(name, "[1]"));
        const auto data = parseCloudCoverageJSON(&json);
        ASSERT_TRUE(data) << name;
        std::string found;
        for (const auto& list : {data->sunny, data->partlyCloudy, data->overcast, data->precip}) {
            found += list.front() == 1.0 ? '1' : '0';
        }
        EXPECT_EQ(found, expected) << name;
    }
}

TEST(CloudCoverageDecoder, KeepsValuesAsTheyAreIfFiguresCanBeMadeOfThem) {
    const JsonDocument json = chart(
        series("Sunny",
               R"([12.34, "12.5", "abc", -3, 1e280, null, "inf", "nan", -2e280, 4,5,6,7,8])") +
        "," + series("Sunny", "[null, 9]"));
    EXPECT_THAT(parseCloudCoverageJSON(&json)->sunny,
                ElementsAre(12.34, 9, 0, -3, 1e280, 0, 0, 0, 0, 4, 5, 6));
}

}  // namespace
}  // namespace kalvo::online
