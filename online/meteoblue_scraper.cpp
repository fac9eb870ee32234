#include "online/meteoblue_scraper.h"

#include <string_view>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "net/url.h"
#include "online/chart_decoders.h"
#include "online/climate_page.h"
#include "online/json_document.h"
#include "online/place_name_decoder.h"
#include "online/search_decoder.h"

namespace kalvo::online {

using base::Failure;
using base::Result;
using base::Task;
using net::HttpRequest;
using std::chrono_literals::operator""s;

namespace {

constexpr std::string_view kBrowserUserAgent =
    "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/537.36";
constexpr std::string_view kGeocodingUserAgent =
    "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) Kalvo-Tool/1.0";

constexpr std::chrono::seconds kDefaultTimeout = 60s;
constexpr std::chrono::seconds kSearchTimeout = 8s;
constexpr std::chrono::seconds kPageTimeout = 10s;
constexpr std::chrono::seconds kGeocodingTimeout = 4s;

/// A failure that its domain and code say all about.
Failure failure(std::string domain, int code) {
    return Failure(base::Error{std::move(domain), code, {}});
}

}  // namespace

MeteoblueScraper::MeteoblueScraper(net::HttpSession& session,
                                   ServiceOrigins origins,
                                   base::Diagnostics& diagnostics)
    : session_(session), origins_(std::move(origins)), diagnostics_(diagnostics) {}

Task<Result<std::vector<MeteoblueSearchResult>>> MeteoblueScraper::searchLocations(
    std::string query, std::optional<double> clickLat, std::optional<double> clickLon) {
    std::vector<MeteoblueSearchResult> results;
    const std::optional<std::string> encoded = net::percentEncodedQuery(query);
    if (!encoded) co_return results;
    std::string url = origins_.meteoblue + "/en/server/search/query3?query=" + *encoded;
    if (!net::isValidUrl(url)) co_return results;

    HttpRequest request = siteRequest(std::move(url), kSearchTimeout);
    Result<std::string> body = co_await session_.get(std::move(request));
    if (!body) co_return Failure(std::move(body.error()));

    results = decodeSearchResults(*body);
    if (clickLat && clickLon) sortByDistance(results, *clickLat, *clickLon);
    co_return results;
}

Task<Result<ClimateData>> MeteoblueScraper::fetchClimateData(std::string slug) {
    std::string url = origins_.meteoblue + "/en/weather/forecast/modelclimate/" + slug;
    if (!net::isValidUrl(url)) co_return failure("InvalidURL", 400);

    HttpRequest request = siteRequest(std::move(url), kPageTimeout);
    Result<std::string> page = co_await session_.get(std::move(request));
    if (!page) co_return Failure(std::move(page.error()));
    if (!base::isValidUtf8(*page)) co_return failure("InvalidData", 404);

    std::optional<ChartAddresses> charts = findChartAddresses(*page);
    if (!charts) co_return failure("EndpointsNotFound", 404);

    Result<JsonDocument> windSpeeds = co_await fetchJSON(std::move(charts->windSpeeds));
    if (!windSpeeds) co_return Failure(std::move(windSpeeds.error()));

    Result<JsonDocument> windRose = co_await fetchJSON(std::move(charts->windRose));
    if (!windRose) co_return Failure(std::move(windRose.error()));

    // The sky conditions alone have a stand-in offline, so that their failure is none of the call.
    std::optional<JsonDocument> cloudCoverage;
    if (charts->cloudCoverage) {
        Result<JsonDocument> fetched = co_await fetchJSON(*std::move(charts->cloudCoverage));
        if (fetched) cloudCoverage = *std::move(fetched);
    }

    ClimateData climate{
        .windDistribution = parseWindSpeedsJSON(*windSpeeds),
        .windRose = parseWindRoseJSON(*windRose),
        .solarData = parseCloudCoverageJSON(cloudCoverage ? &*cloudCoverage : nullptr)};
    co_return climate;
}

Task<std::string> MeteoblueScraper::reverseGeocode(double lat,
                                                   double lon,
                                                   std::string countryName) {
    std::string url = origins_.nominatim + "/reverse?lat=" + base::shortestDecimal(lat) +
                      "&lon=" + base::shortestDecimal(lon) +
                      "&format=json&accept-language=it&zoom=10";
    if (!net::isValidUrl(url)) co_return countryName;

    HttpRequest request{.url = std::move(url),
                        .headers = {{"User-Agent", std::string(kGeocodingUserAgent)}},
                        .timeout = kGeocodingTimeout};
    Result<std::string> body = co_await session_.get(std::move(request));
    if (!body) {
        diagnostics_.print("Reverse geocode error: " + body.error().description());
        co_return countryName;
    }
    co_return decodePlaceName(*body).value_or(countryName);
}

Task<Result<JsonDocument>> MeteoblueScraper::fetchJSON(std::string urlString) {
    if (!net::isValidUrl(urlString)) co_return failure("InvalidURL", 400);
    HttpRequest request = siteRequest(std::move(urlString), kDefaultTimeout);
    Result<std::string> body = co_await session_.get(std::move(request));
    if (!body) co_return Failure(std::move(body.error()));
    co_return JsonDocument::parse(*body);
}

HttpRequest MeteoblueScraper::siteRequest(std::string url, std::chrono::seconds timeout) const {
    return {.url = std::move(url),
            .headers = {{"User-Agent", std::string(kBrowserUserAgent)},
                        {"Referer", origins_.meteoblue + "/"}},
            .timeout = timeout};
}

}  // namespace kalvo::online
