#include "tools/catalogue/source_tables.h"

#include <limits>
#include <set>

#include "base/numbers.h"
#include "base/text.h"
#include "engine/csv_reader.h"

namespace kalvo::tools {

namespace {

using Fields = std::vector<std::string_view>;
using base::Failure;
using base::Result;

Failure badTable(std::string message) {
    return Failure({"CatalogueSource", 1, std::move(message)});
}

/// Every line below the header, which must name these columns.
Result<std::vector<Fields>> readRows(std::string_view table, std::string_view columns) {
    constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max();
    const std::string message = "the columns are not " + std::string(columns);
    Fields expected;
    engine::readRow(columns, kAll, expected);
    Fields header;
    engine::readRow(table, kAll, header);
    if (header != expected) return badTable(message);

    std::vector<Fields> rows;
    while (!table.empty()) {
        engine::readRow(table, kAll, rows.emplace_back());
        if (rows.back().size() != header.size()) {
            return badTable("line " + std::to_string(rows.size() + 1) +
                            " has too few or too many fields");
        }
    }
    return rows;
}

}  // namespace

Result<std::vector<Place>> readPlaces(std::string_view table) {
    const auto rows = readRows(table, "name;sigla;region;lat;lon;istat");
    if (!rows) return Failure(rows.error());
    std::vector<Place> places;
    for (const Fields& row : *rows) {
        const auto lat = base::parseDouble(row[3]);
        const auto lon = base::parseDouble(row[4]);
        if (!lat || !lon) return badTable("no coordinates: " + std::string(row[0]));
        places.push_back({.name = std::string(row[0]),
                          .province = std::string(row[1]),
                          .region = std::string(row[2]),
                          .lat = *lat,
                          .lon = *lon});
    }
    return places;
}

Result<std::vector<Station>> readStations(std::string_view table,
                                          const std::vector<Place>& places) {
    const auto rows = readRows(table,
                               "nome;icao;wmo;lat;lon;quota_m;vento_medio_ms;errore_std_ms;uso;"
                               "grado;mesi_osservati;periodo");
    if (!rows) return Failure(rows.error());

    std::set<std::string> placeNames;
    for (const Place& place : places) placeNames.insert(base::lowercased(place.name));
    const auto codeOf = [&placeNames](std::string_view icao, std::string_view wmo) {
        const bool isUsable = !icao.empty() && !placeNames.contains(base::lowercased(icao));
        return isUsable ? std::string(icao) : "WMO " + std::string(wmo.substr(0, 5));
    };

    std::vector<Station> stations;
    for (const Fields& row : *rows) {
        const auto lat = base::parseDouble(row[3]);
        const auto lon = base::parseDouble(row[4]);
        const auto meanWind = base::parseDouble(row[6]);
        if (!lat || !lon || !meanWind) return badTable("a faulty number: " + std::string(row[0]));
        if (row[8] != "G" && row[8] != "L") return badTable("no known use: " + std::string(row[0]));
        stations.push_back({.name = std::string(row[0]),
                            .code = codeOf(row[1], row[2]),
                            .lat = *lat,
                            .lon = *lon,
                            .meanWind = *meanWind,
                            .isLocal = row[8] == "L",
                            .grade = std::string(row[9]),
                            .observed = std::string(row[10]),
                            .period = std::string(row[11])});
    }
    return stations;
}

}  // namespace kalvo::tools
