#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

/// The source tables of the catalogue as records.
namespace kalvo::tools {

struct Place {
    std::string name;
    std::string province;  // abbreviation
    std::string region;
    double lat;  // degrees north
    double lon;  // degrees east
};

struct Station {
    std::string name;
    std::string code;
    double lat;            // degrees north
    double lon;            // degrees east
    double meanWind;       // m/s at 10 m
    bool isLocal;          // a cape or another exposed site, good for places near it only
    std::string grade;     // confidence, A to C
    std::string observed;  // how many typical months were observed
    std::string period;    // years
};

/// The places, in the table's order.
[[nodiscard]] base::Result<std::vector<Place>> readPlaces(std::string_view table);

/// The stations, in the table's order. A station's code is its ICAO code, else "WMO " and the
/// first five digits of its WMO number. An ICAO code that is also the name of a place, whatever
/// its case, gives way to the WMO form: whoever searches for the place must not get everything
/// that the station serves.
[[nodiscard]] base::Result<std::vector<Station>> readStations(std::string_view table,
                                                              const std::vector<Place>& places);

}  // namespace kalvo::tools
