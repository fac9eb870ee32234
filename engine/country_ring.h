#pragma once

#include <vector>

namespace kalvo::engine {

/// A position on the earth, in degrees north and east.
struct LatLon {
    double lat;
    double lon;
    friend bool operator==(const LatLon&, const LatLon&) = default;
};

/// The outline of a piece of a country, in the order of its file.
using CountryRing = std::vector<LatLon>;

}  // namespace kalvo::engine
