#include "tools/catalogue/source_tables.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

#include "base/numbers.h"
#include "base/text.h"
#include "engine/csv_reader.h"

namespace kalvo::tools {

namespace {

using base::Failure;
using base::Result;
using engine::CsvRow;
using engine::readTable;

Failure badTable(std::string message) {
    return Failure({"CatalogueSource", 1, std::move(message)});
}

Result<double> exposureOf(const Exposures& exposures, const std::string& key) {
    const auto found = exposures.find(key);
    if (found == exposures.end()) return badTable("no exposure: " + key);
    return found->second;
}

Result<engine::LatLon> position(const CsvRow& row, std::size_t latColumn) {
    const auto lat = base::parseDouble(row[latColumn]);
    const auto lon = base::parseDouble(row[latColumn + 1]);
    if (!lat || !lon) return badTable("no coordinates: " + std::string(row[0]));
    return engine::LatLon{*lat, *lon};
}

}  // namespace

double exposure(double seaShare, double coastKm) {
    return 2.6 * seaShare + 0.5 * std::exp(-coastKm / 5);
}

Result<Exposures> readExposures(std::string_view table) {
    const auto rows = readTable(table, "chiave;mare_100km;costa_km");
    if (!rows) return Failure(rows.error());
    Exposures exposures;
    for (const CsvRow& row : *rows) {
        const auto seaShare = base::parseDouble(row[1]);
        const auto coastKm = base::parseDouble(row[2]);
        if (!seaShare || !coastKm) return badTable("a faulty number: " + std::string(row[0]));
        exposures.emplace(row[0], exposure(*seaShare, *coastKm));
    }
    return exposures;
}

Result<std::vector<SourcePlace>> readPlaces(std::string_view table, const Exposures& exposures) {
    const auto rows = readTable(table, "name;sigla;region;lat;lon;istat");
    if (!rows) return Failure(rows.error());
    std::vector<SourcePlace> places;
    for (const CsvRow& row : *rows) {
        const auto at = position(row, 3);
        if (!at) return Failure(at.error());
        const auto exposed = exposureOf(exposures, std::string(row[5]));
        if (!exposed) return Failure(exposed.error());
        places.push_back({.name = std::string(row[0]),
                          .province = std::string(row[1]),
                          .region = std::string(row[2]),
                          .position = *at,
                          .exposure = *exposed});
    }
    return places;
}

Result<std::vector<SourceStation>> readStations(std::string_view table,
                                                const std::vector<SourcePlace>& places,
                                                const Exposures& exposures) {
    const auto rows = readTable(table,
                                "nome;icao;wmo;lat;lon;quota_m;vento_medio_ms;errore_std_ms;uso;"
                                "grado;mesi_osservati;periodo");
    if (!rows) return Failure(rows.error());

    std::set<std::string> placeNames;
    for (const SourcePlace& place : places) placeNames.insert(base::lowercased(place.name));
    const auto codeOf = [&placeNames](std::string_view icao, std::string_view wmo) {
        const bool isUsable = !icao.empty() && !placeNames.contains(base::lowercased(icao));
        return isUsable ? std::string(icao) : "WMO " + std::string(wmo.substr(0, 5));
    };

    std::vector<SourceStation> stations;
    for (const CsvRow& row : *rows) {
        const auto at = position(row, 3);
        if (!at) return Failure(at.error());
        const auto meanWind = base::parseDouble(row[6]);
        if (!meanWind) return badTable("a faulty number: " + std::string(row[0]));
        if (row[8] != "G" && row[8] != "L") return badTable("no known use: " + std::string(row[0]));
        const std::string code = codeOf(row[1], row[2]);
        const auto exposed = exposureOf(exposures, code);
        if (!exposed) return Failure(exposed.error());
        stations.push_back({.station = {.code = code,
                                        .name = std::string(row[0]),
                                        .position = *at,
                                        .meanWind = *meanWind,
                                        .isExposed = row[8] == "L",
                                        .years = std::string(row[11])},
                            .exposure = *exposed,
                            .grade = std::string(row[9]),
                            .observed = std::string(row[10])});
    }
    std::sort(stations.begin(), stations.end(),
              [](const SourceStation& one, const SourceStation& other) {
                  return one.station.code < other.station.code;
              });
    return stations;
}

}  // namespace kalvo::tools
