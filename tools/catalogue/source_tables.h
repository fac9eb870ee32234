#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "engine/stations.h"

/// The source tables of the catalogue as records.
namespace kalvo::tools {

/// Key (a place's ISTAT code or a station's code) to exposure to the sea, m/s.
using Exposures = std::map<std::string, double, std::less<>>;

struct SourcePlace {
    std::string name;
    std::string province;  // abbreviation
    std::string region;
    engine::LatLon position;
    double exposure;  // m/s
};

struct SourceStation {
    engine::Station station;
    double exposure;       // m/s
    std::string grade;     // confidence, A to C
    std::string observed;  // how many typical months were observed
};

/// The mean wind that the sea adds at a place: 2.6 m/s times the share of sea within 100 km, and
/// 0.5 m/s times exp(-km / 5) for the distance to the coast. Both constants are the least-squares
/// fit over the general stations, rounded (resources/README.md).
[[nodiscard]] double exposure(double seaShare, double coastKm);

[[nodiscard]] base::Result<Exposures> readExposures(std::string_view table);

/// The places, in the table's order. Fails on a faulty number or a place without an exposure.
[[nodiscard]] base::Result<std::vector<SourcePlace>> readPlaces(std::string_view table,
                                                                const Exposures& exposures);

/// The stations, in ascending order of their codes. A station's code is its ICAO code, else "WMO "
/// and the first five digits of its WMO number. An ICAO code that is also the name of a place,
/// whatever its case, gives way to the WMO form: whoever searches for the place must not get
/// everything that the station serves. Fails as `readPlaces` does.
[[nodiscard]] base::Result<std::vector<SourceStation>> readStations(
    std::string_view table, const std::vector<SourcePlace>& places, const Exposures& exposures);

}  // namespace kalvo::tools
