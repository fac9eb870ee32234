#include "engine/lat_lon.h"

#include <cmath>

namespace kalvo::engine {

double greatCircleKm(LatLon one, LatLon other) {
    constexpr double kEarthRadius = 6371;  // km
    const double sinLat = std::sin(toRadians(other.lat - one.lat) / 2);
    const double sinLon = std::sin(toRadians(other.lon - one.lon) / 2);
    const double cosines = std::cos(toRadians(one.lat)) * std::cos(toRadians(other.lat));
    return 2 * kEarthRadius * std::asin(std::sqrt(sinLat * sinLat + cosines * sinLon * sinLon));
}

}  // namespace kalvo::engine
