// What the decoders make of the services' answers, as transcripts. The documents/ are written in
// the shape of the real ones, with much in them that nobody asks for.

#include <ctime>
#include <numeric>

#include <gtest/gtest.h>

#include "engine/calculation_engine.h"
#include "online/chart_decoders.h"
#include "online/climate_page.h"
#include "online/place_name_decoder.h"
#include "online/search_decoder.h"
#include "tests/support/transcript.h"

namespace kalvo::online {
namespace {

/// The document that a question names or holds, or a chart of the series that it lists, a line
/// `"name": data` each.
std::string documentOf(const std::string& question) {
    if (question.starts_with("file ")) {
        return tests::readFile("online/documents/" + question.substr(5));
    }
    if (!question.starts_with('"')) return question;
    std::string series;
    std::istringstream lines(question);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t end = line.find("\": ") + 1;
        series +=
            (series.empty() ? "" : ",") +
            fmt::format(R"({{"name": {}, "data": {}}})", line.substr(0, end), line.substr(end + 2));
    }
    return R"({"title": {}, "series": [)" + series + "]}";
}

JsonDocument chartOf(const std::string& question) {
    return JsonDocument::parse(documentOf(question)).value();
}

/// The counts of each month or direction that are not `usual`, and how many are told.
template <class Counts>
std::string told(const Counts& all, const std::function<std::string(std::size_t)>& usual) {
    std::string found;
    std::size_t index = 0;
    for (const auto& [key, counts] : all) {
        const std::string text = fmt::format("{}", fmt::join(counts, " "));
        if (text != usual(index++)) {
            found += fmt::format("{}: {} = {}\n", key, text,
                                 std::accumulate(counts.begin(), counts.end(), std::int64_t{0}));
        }
    }
    return found + fmt::format("{} in all", all.size());
}

TEST(DecodersTest, ReadTheWindSpeeds) {
    using engine::CalculationEngine;
    tests::expectTranscript("online/transcripts/wind_speeds.txt", [](const std::string& question) {
        // In the calendar's order, as the months' lengths are.
        std::vector<std::pair<std::string, engine::ClassCounts>> months;
        auto read = parseWindSpeedsJSON(chartOf(question));
        for (const std::string_view month : CalculationEngine::months) {
            months.emplace_back(month, read.at(std::string(month)));
        }
        EXPECT_EQ(read.size(), months.size());
        return told(months, [](std::size_t month) {
            return fmt::format("{} 0 0 0 0 0 0", CalculationEngine::daysInMonth[month]);
        });
    });
}

TEST(DecodersTest, ReadTheWindRose) {
    tests::expectTranscript("online/transcripts/wind_rose.txt", [](const std::string& question) {
        return told(parseWindRoseJSON(chartOf(question)),
                    [](std::size_t) { return "0 0 0 0 0 0 0"; });
    });
}

TEST(DecodersTest, ReadTheCloudCoverage) {
    EXPECT_EQ(parseCloudCoverageJSON(nullptr), std::nullopt);
    tests::expectTranscript(
        "online/transcripts/cloud_coverage.txt", [](const std::string& question) {
            const JsonDocument chart = chartOf(question);
            const auto data = parseCloudCoverageJSON(&chart);
            if (!data) return std::string("no sky");
            return fmt::format("sunny    {:g}\npartly   {:g}\novercast {:g}\nprecip   {:g}",
                               fmt::join(data->sunny, " "), fmt::join(data->partlyCloudy, " "),
                               fmt::join(data->overcast, " "), fmt::join(data->precip, " "));
        });
}

TEST(DecodersTest, ReadThePlacesFound) {
    tests::expectTranscript("online/transcripts/places.txt", [](const std::string& question) {
        std::string found;
        for (const MeteoblueSearchResult& place : decodeSearchResults(documentOf(question))) {
            found += fmt::format("{} | {} | {} {} | {} | {} | {}\n", place.name, place.country,
                                 place.lat, place.lon, place.slug, place.iso2, place.label);
        }
        return found;
    });
}

TEST(DecodersTest, ReadThePlaceName) {
    tests::expectTranscript("online/transcripts/place_name.txt", [](const std::string& question) {
        const auto name = decodePlaceName(documentOf(question));
        return name ? "\"" + *name + "\"" : "";
    });
}

TEST(DecodersTest, FindTheChartsOfAPage) {
    tests::expectTranscript("online/transcripts/climate_page.txt", [](const std::string& question) {
        const auto found = findChartAddresses(documentOf(question));
        if (!found) return std::string();
        return found->windSpeeds + "\n" + found->windRose + "\n" +
               found->cloudCoverage.value_or("no clouds");
    });
}

TEST(MatchesTest, ListsWhatGroupOneCaptured) {
    tests::expectTranscript("online/transcripts/matches.txt", [](const std::string& question) {
        const std::size_t end = question.find(" in ");
        std::string found;
        for (const std::string& part : matches(question.substr(0, end), question.substr(end + 4))) {
            found += "[" + part + "]";
        }
        return found;
    });
}

TEST(SortByDistanceTest, PutsTheNearestFirstAndKeepsTheOrderOfEquals) {
    // On plain degrees: a meridian's convergence or the date line would put the last one second.
    std::vector<MeteoblueSearchResult> places;
    for (const auto& [name, lat, lon] : {std::tuple{"across the date line", 80.0, -179.0},
                                         {"1.5 east", 80.0, 180.5},
                                         {"1 north", 81.0, 179.0},
                                         {"1 south", 79.0, 179.0},
                                         {"here", 80.0, 179.0}}) {
        places.push_back({name, "", lat, lon, "", "", ""});
    }
    sortByDistance(places, 80.0, 179.0);
    std::string names;
    for (const auto& place : places) names += place.name + ", ";
    EXPECT_EQ(names, "here, 1 north, 1 south, 1.5 east, across the date line, ");
}

TEST(MeteoblueSearchResultTest, HashesByEveryFieldAndZerosAlike) {
    const std::hash<MeteoblueSearchResult> hash;
    const MeteoblueSearchResult empty{};
    EXPECT_EQ(hash({"", "", -0.0, -0.0, "", "", ""}), hash(empty));
    for (const MeteoblueSearchResult& other :
         std::vector<MeteoblueSearchResult>{{"x", "", 0, 0, "", "", ""},
                                            {"", "x", 0, 0, "", "", ""},
                                            {"", "", 1, 0, "", "", ""},
                                            {"", "", 0, 1, "", "", ""},
                                            {"", "", 0, 0, "x", "", ""},
                                            {"", "", 0, 0, "", "x", ""},
                                            {"", "", 0, 0, "", "", "x"}}) {
        EXPECT_NE(hash(other), hash(empty));
    }
}

// Listing all matches, or capturing groups in one that is as long as the page, takes seconds; a
// backtracking engine takes minutes. Processor time, as the time on the wall tells of what else the
// machine does; an unoptimized build in a hurry is given four times the goal of 0.1 s.
TEST(FindChartAddressesTest, TakesLinearTimeForAnyPage) {
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
