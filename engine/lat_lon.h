#pragma once

#include <numbers>

namespace kalvo::engine {

/// A position on the earth, in degrees north and east.
struct LatLon {
    double lat;
    double lon;
    friend bool operator==(const LatLon&, const LatLon&) = default;
};

/// Returns the angle in radians; the product comes before the quotient.
[[nodiscard]] constexpr double toRadians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

/// Returns the great-circle distance in km on a sphere of 6371 km, by the haversine formula (R. W.
/// Sinnott, "Virtues of the Haversine", Sky and Telescope 68, 1984).
[[nodiscard]] double greatCircleKm(LatLon one, LatLon other);

}  // namespace kalvo::engine
