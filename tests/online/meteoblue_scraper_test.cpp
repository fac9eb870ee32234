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
using testing::Pair;
using std::chrono_literals::operator""s;

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

TEST_F(MeteoblueScraperTest, AsksTheSiteForPlacesAsABrowserDoes) {
    session.answer(kSearchAddress + "Rome%20&%20citt%C3%A0", std::string("{}"));
    const auto places = finished(scraper.searchLocations("Rome & città", {}, {}));
    ASSERT_TRUE(places);
    EXPECT_THAT(*places, IsEmpty());
    EXPECT_TRUE(finished(scraper.searchLocations("\xFF", {}, {}))) << "no address holds this text";
    ASSERT_EQ(session.requests().size(), 1U);
    EXPECT_EQ(session.requests()[0].timeout, 8s);
    EXPECT_THAT(session.requests()[0].headers,
                ElementsAre(Pair("User-Agent",
                                 "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) "
                                 "AppleWebKit/537.36"),
                            Pair("Referer", "https://site.example/")));
}

TEST_F(MeteoblueScraperTest, OrdersPlacesOnlyAroundACompletePoint) {
    const std::string body = R"({"results": [{"name": "far", "url": "f", "lat": 45, "lon": 10.5},
                                             {"name": "near", "url": "n", "lat": 44, "lon": 9}]})";
    const auto firstNamed = [&](std::optional<double> lat, std::optional<double> lon) {
        session.answer(kSearchAddress + "a", body);
        return finished(scraper.searchLocations("a", lat, lon)).value().at(0).name;
    };
    EXPECT_EQ(firstNamed(45.0, 9.0), "near");
    EXPECT_EQ(firstNamed(45.0, std::nullopt), "far");
    EXPECT_EQ(firstNamed(std::nullopt, 9.0), "far");
}

TEST_F(MeteoblueScraperTest, FetchesThePageAndItsChartsOneAfterAnother) {
    const auto requestCount = [&] { return session.requests().size(); };
    for (const std::string& url : {kPageAddress, kSpeeds, kRose, kCloud}) session.hold(url);
    std::optional<Result<ClimateData>> climate;
    scope.start(keep(scraper.fetchClimateData("roma"), &climate));
    session.release(kPageAddress, kCloudTag + kRoseTag + kSpeedsTag);
    EXPECT_EQ(requestCount(), 2U);
    session.release(kSpeeds, std::string(R"({"series": [{"name": "2-5", "data": [3]}]})"));
    EXPECT_EQ(requestCount(), 3U);
    session.release(kRose, std::string(R"({"series": [{"name": "5-10", "data": [4]}]})"));
    EXPECT_EQ(requestCount(), 4U);
    EXPECT_FALSE(climate);
    session.release(kCloud, std::string(R"({"series": [{"name": "sunny", "data": [5]}]})"));

    ASSERT_TRUE(climate && *climate);
    EXPECT_THAT((*climate)->windDistribution.at("Gen"), ElementsAre(0, 31, 0, 0, 0, 0, 0));
    EXPECT_THAT((*climate)->windRose.at(0), ElementsAre(0, 0, 4, 0, 0, 0, 0));
    ASSERT_TRUE((*climate)->solarData);
    EXPECT_EQ((*climate)->solarData->sunny.front(), 5.0);

    EXPECT_THAT(session.requests(), testing::SizeIs(4));
    for (const auto& request : session.requests()) {
        EXPECT_EQ(request.timeout, request.url == kPageAddress ? 10s : 60s) << request.url;
        EXPECT_THAT(request.headers,
                    ElementsAre(Pair("User-Agent", testing::HasSubstr("AppleWebKit/537.36")),
                                Pair("Referer", kSite + "/")));
    }
}

TEST_F(MeteoblueScraperTest, ComesToAnEndWhicheverAnswerIsFaulty) {
    const std::string search = kSearchAddress + "Roma";
    const std::string name = kGeocoder + "/reverse?lat=41.9&lon=12.5" + kReverse;
    const std::vector<std::pair<std::string, std::string>> sound{
        {search, R"({"results": [{"name": "Roma", "url": "roma", "lat": 41.9, "lon": 12.5}]})"},
        {kPageAddress, kSpeedsTag + kRoseTag + kCloudTag},
        {kSpeeds, "{}"},
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

TEST_F(MeteoblueScraperTest, NamesAPoint) {
    const std::string url = kGeocoder + "/reverse?lat=-33.925&lon=9.0" + kReverse;
    session.answer(url, std::string(R"({"address": {"city": "Roma"}})"));
    EXPECT_EQ(finished(scraper.reverseGeocode(-33.925, 9, "x")), "Roma");
    ASSERT_EQ(session.requests().size(), 1U);
    EXPECT_EQ(session.requests()[0].timeout, 4s);
    EXPECT_THAT(
        session.requests()[0].headers,
        ElementsAre(
            Pair("User-Agent", "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) Kalvo-Tool/1.0")));
}

}  // namespace
}  // namespace kalvo::online
