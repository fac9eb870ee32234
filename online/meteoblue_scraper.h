#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "base/diagnostics.h"
#include "engine/climate_data.h"
#include "net/http_session.h"
#include "online/meteoblue_search_result.h"
#include "online/service_origins.h"

namespace kalvo::online {

class JsonDocument;

/// What the climate page of a place gives.
struct ClimateData {
    engine::WindDistribution windDistribution;
    engine::WindRoseData windRose;
    std::optional<engine::SolarData> solarData;  // absent when the page has no usable cloud chart
};

/// The web client of the Meteoblue site and of OpenStreetMap's reverse geocoding. Calls are
/// independent of each other and remember nothing. All of it runs on the user-interface thread;
/// a call suspends while its requests are under way. The status code of an answer plays no part:
/// whatever body arrives is read. Failures are those of the session ("Transport"), of JSON
/// ("JSON"), or have one of the domains and codes given below and no message.
class MeteoblueScraper {
 public:
    /// The session and the diagnostics outlive the scraper, the scraper its calls.
    MeteoblueScraper(net::HttpSession& session,
                     ServiceOrigins origins,
                     base::Diagnostics& diagnostics);

    /// Returns the application's own instance, on the public services through libcurl.
    [[nodiscard]] static MeteoblueScraper& shared();

    /// Returns the places that match the text, in the site's order, or by distance from the click
    /// point (degrees) when both of its coordinates are given. An answer that cannot be read gives
    /// none; only a failed transport is a failure.
    [[nodiscard]] base::Task<base::Result<std::vector<MeteoblueSearchResult>>> searchLocations(
        std::string query, std::optional<double> clickLat, std::optional<double> clickLon);

    /// Returns the climate of the place whose search result has this slug: the page, then its wind
    /// speeds, wind rose and cloud charts, one after another. Fails with "InvalidURL", 400 for a
    /// slug that an address cannot hold, "InvalidData", 404 for a page that is not UTF-8,
    /// "EndpointsNotFound", 404 for one without its wind charts, and as `fetchJSON` does for the
    /// wind charts.
    [[nodiscard]] base::Task<base::Result<ClimateData>> fetchClimateData(std::string slug);

    /// Returns an Italian name for a point (degrees), or `countryName` when none is available. A
    /// failed transport leaves a diagnostic line.
    [[nodiscard]] base::Task<std::string> reverseGeocode(double lat,
                                                         double lon,
                                                         std::string countryName);

    /// Returns the JSON object at an address of the site; internal to this library. Fails with
    /// "InvalidURL", 400 for what is no address and "InvalidJSON", 500 for JSON that is no object.
    [[nodiscard]] base::Task<base::Result<JsonDocument>> fetchJSON(std::string urlString);

 private:
    [[nodiscard]] net::HttpRequest siteRequest(std::string url, std::chrono::seconds timeout) const;

    net::HttpSession& session_;
    ServiceOrigins origins_;
    base::Diagnostics& diagnostics_;
};

}  // namespace kalvo::online
