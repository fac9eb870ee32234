#include "tools/catalogue/catalogue_maker.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>

#include <fmt/format.h>

#include "engine/wind_scale.h"
#include "tools/catalogue/source_tables.h"

namespace kalvo::tools {

namespace {

using base::Failure;
using base::Result;

Failure failed(std::string message) { return Failure({"Catalogue", 1, std::move(message)}); }

double radians(double degrees) { return degrees * std::numbers::pi / 180; }

/// Great-circle distance in km, by the haversine formula on a sphere of 6371 km
/// (R. W. Sinnott, "Virtues of the Haversine", Sky and Telescope 68, 1984).
double distance(const Place& place, const Station& station) {
    const double sinLat = std::sin(radians(station.lat - place.lat) / 2);
    const double sinLon = std::sin(radians(station.lon - place.lon) / 2);
    const double cosines = std::cos(radians(place.lat)) * std::cos(radians(station.lat));
    return 2 * 6371 * std::asin(std::sqrt(sinLat * sinLat + cosines * sinLon * sinLon));
}

/// The station that serves a place whatever the distance, where geography misleads: none of the
/// two small states has a station, and each belongs to the one of the plain or city round it.
std::string_view fixedStation(const Place& place) {
    if (place.province == "SM") return "Rimini";
    if (place.province == "SCV") return "Roma Urbe";
    return "";
}

/// Null when there is none.
const Station* stationFor(const Place& place, const std::vector<Station>& stations) {
    constexpr double kLocalReach = 15;  // km
    if (const std::string_view name = fixedStation(place); !name.empty()) {
        const auto found =
            std::find_if(stations.begin(), stations.end(),
                         [name](const Station& station) { return station.name == name; });
        return found == stations.end() ? nullptr : &*found;
    }
    const Station* nearest = nullptr;
    double nearestDistance = std::numeric_limits<double>::infinity();
    for (const Station& station : stations) {
        const double away = distance(place, station);
        if ((station.isLocal && away > kLocalReach) || away >= nearestDistance) continue;
        nearest = &station;
        nearestDistance = away;
    }
    return nearest;
}

/// The yield that stands for the mean wind at a turbine's hub. All three columns are read on one
/// scale, so a larger turbine must differ by its height alone, not by its power. The wind is
/// carried up by the one-seventh power law from the 10 m of the station's anemometer.
double yieldAtHub(const Station& station, double hubHeight) {
    constexpr double kKmhPerMs = 3.6;
    return engine::yieldFromMeanSpeed(station.meanWind * kKmhPerMs *
                                      std::pow(hubHeight / 10, 1.0 / 7));
}

std::string catalogueLine(const Place& place, const Station& station) {
    return fmt::format("{};{};{};{};{:.0f};{:.0f};{:.0f};{:.5f};{:.5f}\n", place.name,
                       place.province, place.region, station.code,
                       std::round(yieldAtHub(station, 10)), std::round(yieldAtHub(station, 12)),
                       std::round(yieldAtHub(station, 15)), place.lat, place.lon);
}

std::string tableOf(const std::vector<Station>& stations) {
    std::string table =
        "| code | station | lat | lon | mean wind, m/s | use | grade | months | years |\n"
        "|---|---|---|---|---|---|---|---|---|\n";
    for (const Station& station : stations) {
        table += fmt::format("| {} | {} | {:.4f} | {:.4f} | {:.2f} | {} | {} | {} | {} |\n",
                             station.code, station.name, station.lat, station.lon, station.meanWind,
                             station.isLocal ? "within 15 km" : "general", station.grade,
                             station.observed, station.period);
    }
    return table;
}

}  // namespace

Result<CatalogueFiles> makeCatalogue(const CatalogueSources& sources) {
    const auto places = readPlaces(sources.places);
    if (!places) return Failure(places.error());
    auto stations = readStations(sources.stations, *places);
    if (!stations) return Failure(stations.error());

    std::map<std::string, std::string> linesByLabel;
    for (const Place& place : *places) {
        const Station* station = stationFor(place, *stations);
        if (station == nullptr) return failed("no station for " + place.name);
        const std::string label =
            fmt::format("{} ({}) - {}", place.name, place.province, station->code);
        if (!linesByLabel.emplace(label, catalogueLine(place, *station)).second) {
            return failed("two places are called " + label);
        }
    }
    std::string catalogue =
        "luogo;provincia;regione;centralina;kwh_1kw_annui;kwh_2kw_annui;kwh_3kw_annui;latitude;"
        "longitude\n";
    for (const auto& [label, line] : linesByLabel) catalogue += line;

    std::sort(stations->begin(), stations->end(),
              [](const Station& one, const Station& other) { return one.code < other.code; });
    return CatalogueFiles{.catalogue = std::move(catalogue), .stationTable = tableOf(*stations)};
}

}  // namespace kalvo::tools
