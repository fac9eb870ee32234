#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/climate_data.h"
#include "online/meteoblue_search_result.h"
#include "platform/diagnostics.h"
#include "platform/http_session.h"

namespace kalvo::online {

/// What the climate page of a place gives.
struct ClimateData {
    engine::WindDistribution windDistribution;
    engine::WindRoseData windRose;
    std::optional<engine::SolarData> solarData;  // absent when the page has no usable cloud chart
};

/// The services' origins, scheme and host without a trailing slash.
struct ServiceOrigins {
    std::string meteoblue;
    std::string nominatim;
};

/// The web client of the Meteoblue site and of OpenStreetMap's reverse geocoding. Calls are
/// independent of each other and remember nothing. All of it runs on the user-interface thread;
/// a call suspends while its requests are under way.
class MeteoblueScraper {
 public:
    /// The session and the diagnostics outlive the scraper and its calls.
    MeteoblueScraper(platform::HttpSession& session,
                     ServiceOrigins origins,
                     platform::Diagnostics& diagnostics);

    /// Places that match the text, in the site's order, or by distance from the click point
    /// (degrees) when both of its coordinates are given.
    [[nodiscard]] platform::Task<platform::Result<std::vector<MeteoblueSearchResult>>>
    searchLocations(std::string query,
                    std::optional<double> clickLat,
                    std::optional<double> clickLon);

    /// The climate of the place whose search result has this slug.
    [[nodiscard]] platform::Task<platform::Result<ClimateData>> fetchClimateData(std::string slug);

    /// An Italian name for a point (degrees), or `countryName` when there is none to be had.
    [[nodiscard]] platform::Task<std::string> reverseGeocode(double lat,
                                                             double lon,
                                                             std::string countryName);

 private:
    platform::HttpSession& session_;
    ServiceOrigins origins_;
    platform::Diagnostics& diagnostics_;
};

}  // namespace kalvo::online
