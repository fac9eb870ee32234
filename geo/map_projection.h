#pragma once

#include "geojson/geojson.h"
#include "graphics/geometry.h"

namespace kalvo::geo {

/// The box round a map's positions, in degrees.
struct MapBounds {
    double minLng;
    double maxLng;
    double minLat;
    double maxLat;
    friend bool operator==(const MapBounds&, const MapBounds&) = default;
};

/// The box of a map without any usable position: Italy.
inline constexpr MapBounds kDefaultMapBounds{6.62, 18.51, 35.49, 47.09};

/// Tells whether the maps take a position for a real one: placeholders at 0, 0 and the like are
/// left out. Both in degrees.
[[nodiscard]] constexpr bool isUsable(double lng, double lat) { return lng > 1.0 && lat > 1.0; }

/// Returns the box round all usable positions of the features.
[[nodiscard]] MapBounds calculateBounds(const geojson::FeatureList& features);

/// Longitude and latitude scaled alike into a view: the box fitted with a margin of 14 points and
/// centered, north up.
class MapProjection {
 public:
    /// A box of one point is taken for one of a few kilometers round it.
    MapProjection(const MapBounds& bounds, graphics::Size viewSize);

    /// Returns where a place in degrees lands, in points.
    [[nodiscard]] graphics::Point project(double lng, double lat) const {
        return {offsetX_ + (lng - minLng_) * scale_, offsetY_ + (maxLat_ - lat) * scale_};
    }

 private:
    double minLng_;
    double maxLat_;
    double scale_;    // points per degree
    double offsetX_;  // points
    double offsetY_;
};

}  // namespace kalvo::geo
