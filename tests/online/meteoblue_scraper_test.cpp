#include "online/meteoblue_scraper.h"

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "online/json_document.h"
#include "tests/support/recording_diagnostics.h"
#include "tests/support/scripted_session.h"

namespace kalvo::online {
namespace {

using Answer = tests::ScriptedSession::Answer;
using base::Result;
using base::Task;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kSite = "https://site.example";
const std::string kGeocoder = "https://geocoder.example";
const ServiceOrigins kOrigins{.meteoblue = kSite, .nominatim = kGeocoder};
const std::string kSearchAddress = kSite + "/en/server/search/query3?query=";
const std::string kPageAddress = kSite + "/en/weather/forecast/modelclimate/roma";
const std::string kReverse = "&format=json&accept-language=it&zoom=10";

const std::string kSpeedsTag = R"(<i id="blooimage" data-url="//charts.example/wind_speeds">)";
const std::string kRoseTag = R"(<i id="blooimage" data-url="//charts.example/wind_rose">)";
const std::string kBadTag = R"(<i id="blooimage" data-url="https://h/)";  // gets a second scheme
const std::string kCloudTag = R"(<i id="blooimage" data-url="//charts.example/cloud_coverage">)";
const std::string kSpeeds = "https://charts.example/wind_speeds";
const std::string kRose = "https://charts.example/wind_rose";
const std::string kCloud = "https://charts.example/cloud_coverage";

template <class T>
Task<void> keep(Task<T> task, std::optional<T>* result) {
    result->emplace(co_await std::move(task));
}

/// What an error says, or for one of JSON, whose text is the library's, where it comes from.
std::string wordFor(const base::Error& error) {
    return error.domain == "JSON" ? error.domain : error.description();
}

class MeteoblueScraperTest : public testing::Test {
 protected:
    /// The result of a call that ends without waiting.
    template <class T>
    T finished(Task<T> task) {
        std::optional<T> result;
        scope.start(keep(std::move(task), &result));
        EXPECT_TRUE(result.has_value());
        return *std::move(result);
    }

    tests::ScriptedSession session;
    tests::RecordingDiagnostics diagnostics;
    MeteoblueScraper scraper{session, kOrigins, diagnostics};
    base::TaskScope scope;
};

TEST_F(MeteoblueScraperTest, EncodesTheTextOfASearch) {
    session.answer(kSearchAddress + "Rome%20&%20citt%C3%A0", std::string("{}"));
    EXPECT_THAT(finished(scraper.searchLocations("Rome & città", {}, {})).value(), IsEmpty());
    EXPECT_TRUE(finished(scraper.searchLocations("\xFF", {}, {}))) << "no address holds this text";
    EXPECT_EQ(session.requests().size(), 1U);
}

TEST_F(MeteoblueScraperTest, ComesToAnEndWhicheverAnswerIsFaulty) {
    const std::string search = kSearchAddress + "Roma";
    const std::string name = kGeocoder + "/reverse?lat=41.9&lon=12.5" + kReverse;
    const std::vector<std::pair<std::string, std::string>> sound{
        {search, R"({"results": [{"name": "Roma", "url": "roma", "lat": 41.9, "lon": 12.5}]})"},
        {kPageAddress, kSpeedsTag + kRoseTag + kCloudTag},
        {kSpeeds, "\xEF\xBB\xBF {}"},
        {kRose, "{}"},
        {kCloud, R"({"series": []})"},
        {name, R"({"address": {"city": "Roma"}})"}};
    const struct {
        Answer answer;
        std::array<const char*, 6> outcomes;  // with the faulty answer to each of those addresses
    } kCases[] = {
        {tests::ScriptedSession::failure("cut"), {"cut", "cut", "cut", "cut", "no sky", "no name"}},
        {"<html>Down</html>",
         {"no place", "EndpointsNotFound (404)", "JSON", "JSON", "no sky", "no name"}},
        {"[1]",
         {"no place", "EndpointsNotFound (404)", "InvalidJSON (500)", "InvalidJSON (500)", "no sky",
          "no name"}},
        {kSpeedsTag + kRoseTag + "\xFF",
         {"no place", "InvalidData (404)", "JSON", "JSON", "no sky", "no name"}},
    };
    for (const auto& [faulty, outcomes] : kCases) {
        for (std::size_t point = 0; point < sound.size(); ++point) {
            tests::ScriptedSession scripted;
            for (const auto& [url, body] : sound) {
                scripted.answer(url, url == sound[point].first ? faulty : Answer(body));
            }
            MeteoblueScraper client(scripted, kOrigins, diagnostics);
            const auto places = finished(client.searchLocations("Roma", {}, {}));
            const auto climate = finished(client.fetchClimateData("roma"));
            const std::string named = finished(client.reverseGeocode(41.9, 12.5, "no name"));
            std::vector<std::string> found;
            if (!places) found.push_back(wordFor(places.error()));
            if (places && places->empty()) found.emplace_back("no place");
            if (!climate) found.push_back(wordFor(climate.error()));
            if (climate && !climate->solarData) found.emplace_back("no sky");
            if (named != "Roma") found.push_back(named);
            EXPECT_THAT(found, ElementsAre(outcomes[point])) << sound[point].first;
        }
    }
    EXPECT_THAT(diagnostics.lines, ElementsAre("Reverse geocode error: cut"));
}

TEST_F(MeteoblueScraperTest, AsksForNothingAtAFaultyAddress) {
    const struct {
        const char* slug;
        std::string page;
        const char* outcome;
        std::size_t requests;
    } kCases[] = {
        {"ro ma", "", "InvalidURL (400)", 0},
        {"roma", kSpeedsTag + kCloudTag, "EndpointsNotFound (404)", 1},
        {"roma", kSpeedsTag + kBadTag + "wind_rose\">", "InvalidURL (400)", 2},
        {"roma", kSpeedsTag + kRoseTag + kBadTag + "cloud_coverage\">", "no sky", 3},
        {"roma", kSpeedsTag + kRoseTag, "no sky", 3},
    };
    for (const auto& [slug, page, outcome, requests] : kCases) {
        tests::ScriptedSession scripted;
        scripted.answer(kPageAddress, page);
        for (const std::string& url : {kSpeeds, kRose}) scripted.answer(url, "{}");
        MeteoblueScraper client(scripted, kOrigins, diagnostics);
        const auto climate = finished(client.fetchClimateData(slug));
        EXPECT_EQ(climate ? climate->solarData ? "sky" : "no sky" : wordFor(climate.error()),
                  outcome);
        EXPECT_EQ(scripted.requests().size(), requests) << outcome;
    }
}

}  // namespace
}  // namespace kalvo::online
