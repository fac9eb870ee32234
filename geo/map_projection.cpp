#include "geo/map_projection.h"

#include <algorithm>

namespace kalvo::geo {

namespace {

constexpr double kMargin = 14;  // points, on every side

/// About ten centimeters: nothing narrower is an outline.
constexpr double kSmallestSpan = 1e-6;  // degrees
constexpr double kPointSpan = 0.1;      // degrees, shown round a single point

MapBounds widenedToSee(const MapBounds& bounds) {
    if (std::max(bounds.maxLng - bounds.minLng, bounds.maxLat - bounds.minLat) >= kSmallestSpan) {
        return bounds;
    }
    const double half = kPointSpan / 2;
    return {bounds.minLng - half, bounds.maxLng + half, bounds.minLat - half, bounds.maxLat + half};
}

}  // namespace

MapBounds calculateBounds(const geojson::FeatureList& features) {
    MapBounds bounds{180, -180, 90, -90};
    for (const geojson::GeoFeature& feature : features) {
        geojson::traverse(feature.geometry.coordinates, [&](geojson::AnyCodable value) {
            if (!value.isPosition()) return true;
            const double lng = value[0].number();
            const double lat = value[1].number();
            if (isUsable(lng, lat)) {
                bounds = {std::min(bounds.minLng, lng), std::max(bounds.maxLng, lng),
                          std::min(bounds.minLat, lat), std::max(bounds.maxLat, lat)};
            }
            return false;
        });
    }
    return bounds.minLng > bounds.maxLng ? kDefaultMapBounds : bounds;
}

MapProjection::MapProjection(const MapBounds& bounds, graphics::Size viewSize) {
    const MapBounds shown = widenedToSee(bounds);
    const double spanLng = shown.maxLng - shown.minLng;
    const double spanLat = shown.maxLat - shown.minLat;
    // A view narrower than its margins shows nothing, not a mirrored map.
    const double width = std::max(0.0, viewSize.width - 2 * kMargin);
    const double height = std::max(0.0, viewSize.height - 2 * kMargin);
    minLng_ = shown.minLng;
    maxLat_ = shown.maxLat;
    // A box without height divides by zero, and the width alone then decides; or the reverse.
    scale_ = std::min(width / spanLng, height / spanLat);
    offsetX_ = (viewSize.width - scale_ * spanLng) / 2;
    offsetY_ = (viewSize.height - scale_ * spanLat) / 2;
}

}  // namespace kalvo::geo
