#include "online/meteoblue_scraper.h"

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
using platform::Error;
using platform::Result;
using platform::Task;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using std::chrono_literals::operator""s;

const std::string kSite = "https://site.example";
const std::string kGeocoder = "https://geocoder.example";
const std::string kSearchAddress = kSite + "/en/server/search/query3?query=";
const std::string kPageAddress = kSite + "/en/weather/forecast/modelclimate/roma";
const std::string kReverse = "&format=json&accept-language=it&zoom=10";

const std::string kSpeedsTag = R"(<i id="blooimage" data-url="//charts.example/wind_speeds">)";
const std::string kRoseTag = R"(<i id="blooimage" data-url="//charts.example/wind_rose">)";
const std::string kBadRoseTag = R"(<i id="blooimage" data-url="https://h/wind_rose">)";
const std::string kCloudTag = R"(<i id="blooimage" data-url="//charts.example/cloud_coverage">)";
const std::string kSpeeds = "https://charts.example/wind_speeds";
const std::string kRose = "https://charts.example/wind_rose";
const std::string kCloud = "https://charts.example/cloud_coverage";

template <class T>
Task<void> keep(Task<T> task, std::optional<T>* result) {
    result->emplace(co_await std::move(task));
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

    [[nodiscard]] std::vector<std::string> requestedUrls() const {
        std::vector<std::string> urls;
        for (const auto& request : session.requests()) urls.push_back(request.url);
        return urls;
    }

    tests::ScriptedSession session;
    tests::RecordingDiagnostics diagnostics;
    MeteoblueScraper scraper{session, {.meteoblue = kSite, .nominatim = kGeocoder}, diagnostics};
    platform::TaskScope scope;
};

TEST_F(MeteoblueScraperTest, AsksTheSiteForPlacesAsABrowserDoes) {
    session.answer(kSearchAddress + "Rome%20&%20citt%C3%A0", std::string("{}"));
    const auto places = finished(scraper.searchLocations("Rome & città", {}, {}));
    ASSERT_TRUE(places);
    EXPECT_THAT(*places, IsEmpty());
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

TEST_F(MeteoblueScraperTest, FindsNoPlacesForATextThatNoAddressHolds) {
    const auto places = finished(scraper.searchLocations("\xFF", {}, {}));
    ASSERT_TRUE(places);
    EXPECT_THAT(*places, IsEmpty());
    EXPECT_THAT(session.requests(), IsEmpty());
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

    EXPECT_THAT(requestedUrls(), ElementsAre(kPageAddress, kSpeeds, kRose, kCloud));
    for (const auto& request : session.requests()) {
        EXPECT_EQ(request.timeout, request.url == kPageAddress ? 10s : 60s) << request.url;
        EXPECT_THAT(request.headers,
                    ElementsAre(Pair("User-Agent", testing::HasSubstr("AppleWebKit/537.36")),
                                Pair("Referer", kSite + "/")));
    }
}

TEST_F(MeteoblueScraperTest, DoesWithoutSkyConditions) {
    const auto withoutSky = [&](const std::string& cloudTag) {
        session.answer(kPageAddress, kSpeedsTag + kRoseTag + cloudTag);
        session.answer(kSpeeds, std::string("{}"));
        session.answer(kRose, std::string("{}"));
        const auto climate = finished(scraper.fetchClimateData("roma"));
        return climate.has_value() && !climate->solarData.has_value();
    };
    EXPECT_TRUE(withoutSky(""));
    EXPECT_EQ(session.requests().size(), 3U);
    EXPECT_TRUE(withoutSky(R"(<i id="blooimage" data-url="https://h/cloud_coverage">)"));
}

TEST_F(MeteoblueScraperTest, FailsWithoutItsWindCharts) {
    const struct {
        const char* slug;
        Answer page;
        Answer speeds;
        Error error;
        std::size_t requests;
    } kCases[] = {
        {"ro ma", "", "", {"InvalidURL", 400, ""}, 0},
        {"roma", kSpeedsTag + kRoseTag + "\xFF", "", {"InvalidData", 404, ""}, 1},
        {"roma", kSpeedsTag + kCloudTag, "", {"EndpointsNotFound", 404, ""}, 1},
        {"roma", kSpeedsTag + kRoseTag, "[]", {"InvalidJSON", 500, ""}, 2},
        {"roma", kSpeedsTag + kBadRoseTag, "{}", {"InvalidURL", 400, ""}, 2},
    };
    for (const auto& [slug, page, speeds, error, requests] : kCases) {
        tests::ScriptedSession scripted;
        scripted.answer(kPageAddress, page);
        scripted.answer(kSpeeds, speeds);
        MeteoblueScraper client{
            scripted, {.meteoblue = kSite, .nominatim = kGeocoder}, diagnostics};
        const auto climate = finished(client.fetchClimateData(slug));
        ASSERT_FALSE(climate) << error.description();
        EXPECT_EQ(climate.error(), error) << climate.error().description();
        EXPECT_EQ(scripted.requests().size(), requests) << error.description();
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

    session.answer(url, std::string("{}"));
    EXPECT_EQ(finished(scraper.reverseGeocode(-33.925, 9, "x")), "x");
    EXPECT_THAT(diagnostics.lines, IsEmpty());

    session.answer(url, tests::ScriptedSession::failure("timed out"));
    EXPECT_EQ(finished(scraper.reverseGeocode(-33.925, 9, "x")), "x");
    EXPECT_THAT(diagnostics.lines, ElementsAre("Reverse geocode error: timed out"));
}

}  // namespace
}  // namespace kalvo::online
