#include "engine/stations.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/numbers.h"
#include "engine/csv_reader.h"
#include "engine/wind_scale.h"

namespace kalvo::engine {

double typicalWindError(double meanWind, double kmToNearest) {
    return 0.19 + 0.054 * meanWind + 0.0011 * kmToNearest;
}

base::Result<Stations> Stations::read(std::string_view table) {
    const auto rows =
        readTable(table, "centralina;nome;latitude;longitude;vento_medio_ms;uso;anni");
    if (!rows) return base::Failure(rows.error());
    std::vector<Station> stations;
    for (const CsvRow& row : *rows) {
        const auto lat = base::parseDouble(row[2]);
        const auto lon = base::parseDouble(row[3]);
        const auto meanWind = base::parseDouble(row[4]);
        const bool isUseKnown = row[5] == "G" || row[5] == "L";
        if (!lat || !lon || !meanWind || !isUseKnown) {
            return base::Failure({"Stations", 1, "a faulty line: " + std::string(row[1])});
        }
        stations.push_back({.code = std::string(row[0]),
                            .name = std::string(row[1]),
                            .position = {*lat, *lon},
                            .meanWind = *meanWind,
                            .isExposed = row[5] == "L",
                            .years = std::string(row[6])});
    }
    return Stations(std::move(stations));
}

const Station* Stations::find(std::string_view code) const {
    const auto found =
        std::find_if(stations_.begin(), stations_.end(),
                     [code](const Station& station) { return station.code == code; });
    return found == stations_.end() ? nullptr : &*found;
}

std::vector<StationWeight> Stations::weightsAt(LatLon place) const {
    constexpr std::ptrdiff_t kNearest = 8;
    constexpr double kExposedReach = 10;  // km
    std::vector<StationWeight> general;
    std::vector<StationWeight> exposed;
    for (const Station& station : stations_) {
        // Without the bound a station in the place itself would outweigh all others.
        const double km = std::max(greatCircleKm(place, station.position), 1.0);
        if (!station.isExposed) {
            general.push_back({.station = &station, .km = km, .share = 1 / km});
        } else if (km < kExposedReach) {
            exposed.push_back({.station = &station, .km = km, .share = 1 / km - 1 / kExposedReach});
        }
    }
    std::stable_sort(
        general.begin(), general.end(),
        [](const StationWeight& one, const StationWeight& other) { return one.km < other.km; });
    if (std::ssize(general) > kNearest) general.erase(general.begin() + kNearest, general.end());
    general.insert(general.end(), exposed.begin(), exposed.end());

    double sum = 0;
    for (const StationWeight& weight : general) sum += weight.share;
    for (StationWeight& weight : general) weight.share /= sum;
    return general;
}

std::optional<WindEstimate> Stations::estimateFor(const Location& place) const {
    const Station* main = find(place.station);
    if (main == nullptr || !place.kwh1kw || !place.latitude || !place.longitude) {
        return std::nullopt;
    }
    const std::vector<StationWeight> weights = weightsAt({*place.latitude, *place.longitude});
    const auto mainWeight =
        std::find_if(weights.begin(), weights.end(),
                     [main](const StationWeight& weight) { return weight.station == main; });
    if (mainWeight == weights.end()) return std::nullopt;
    const double meanWind = meanSpeed(*place.kwh1kw) / kKmhPerMs;
    return WindEstimate{.meanWind = meanWind,
                        .typicalError = typicalWindError(meanWind, weights.front().km),
                        .mainStation = main,
                        .mainStationKm = mainWeight->km,
                        .mainStationShare = mainWeight->share,
                        .stationCount = weights.size()};
}

}  // namespace kalvo::engine
