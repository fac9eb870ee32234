#include "tools/catalogue/catalogue_maker.h"

#include <cmath>
#include <map>
#include <utility>

#include <fmt/format.h>

#include "engine/wind_scale.h"
#include "tools/catalogue/source_tables.h"

namespace kalvo::tools {

namespace {

using base::Failure;
using base::Result;

struct Tables {
    std::vector<SourcePlace> places;
    std::vector<SourceStation> stations;
};

Failure failed(std::string message) { return Failure({"Catalogue", 1, std::move(message)}); }

Result<Tables> readTables(const CatalogueSources& sources) {
    const auto exposures = readExposures(sources.exposures);
    if (!exposures) return Failure(exposures.error());
    auto places = readPlaces(sources.places, *exposures);
    if (!places) return Failure(places.error());
    auto stations = readStations(sources.stations, *places, *exposures);
    if (!stations) return Failure(stations.error());
    return Tables{.places = std::move(*places), .stations = std::move(*stations)};
}

std::string catalogueLine(const SourcePlace& place, const WindRule::Estimate& estimate) {
    const double meanWind = std::round(estimate.meanWind * 100) / 100;
    const auto yield = [meanWind](int kw) { return std::round(engine::yieldAtHub(meanWind, kw)); };
    return fmt::format("{};{};{};{};{:.0f};{:.0f};{:.0f};{:.5f};{:.5f}\n", place.name,
                       place.province, place.region, estimate.mainStation->code, yield(1), yield(2),
                       yield(3), place.position.lat, place.position.lon);
}

std::string shippedStations(const std::vector<SourceStation>& stations) {
    std::string table = "centralina;nome;latitude;longitude;vento_medio_ms;uso;anni\n";
    for (const auto& [station, exposure, grade, observed] : stations) {
        table += fmt::format("{};{};{:.4f};{:.4f};{:.2f};{};{}\n", station.code, station.name,
                             station.position.lat, station.position.lon, station.meanWind,
                             station.isExposed ? 'L' : 'G', station.years);
    }
    return table;
}

std::string tableOf(const std::vector<SourceStation>& stations) {
    std::string table =
        "| code | station | lat | lon | mean wind, m/s | exposure, m/s | use | grade | months | "
        "years |\n|---|---|---|---|---|---|---|---|---|---|\n";
    for (const auto& [station, exposure, grade, observed] : stations) {
        table += fmt::format(
            "| {} | {} | {:.4f} | {:.4f} | {:.2f} | {:.2f} | {} | {} | {} | {} |\n", station.code,
            station.name, station.position.lat, station.position.lon, station.meanWind, exposure,
            station.isExposed ? "within 10 km" : "general", grade, observed, station.years);
    }
    return table;
}

}  // namespace

Result<CatalogueFiles> makeCatalogue(const CatalogueSources& sources) {
    const auto tables = readTables(sources);
    if (!tables) return Failure(tables.error());

    const WindRule rule(tables->stations);
    std::map<std::string, std::string> linesByLabel;
    for (const SourcePlace& place : tables->places) {
        const auto estimate = rule.estimate(place.position, place.exposure);
        if (!estimate) return failed("no station for " + place.name);
        const std::string label =
            fmt::format("{} ({}) - {}", place.name, place.province, estimate->mainStation->code);
        if (!linesByLabel.emplace(label, catalogueLine(place, *estimate)).second) {
            return failed("two places are called " + label);
        }
    }
    std::string catalogue =
        "luogo;provincia;regione;centralina;kwh_1kw_annui;kwh_2kw_annui;kwh_3kw_annui;latitude;"
        "longitude\n";
    for (const auto& [label, line] : linesByLabel) catalogue += line;
    return CatalogueFiles{.catalogue = std::move(catalogue),
                          .stations = shippedStations(tables->stations),
                          .stationTable = tableOf(tables->stations)};
}

Result<LeaveOneOutError> checkError(const CatalogueSources& sources) {
    return readTables(sources).map(
        [](const Tables& tables) { return leaveOneOutError(tables.stations); });
}

}  // namespace kalvo::tools
