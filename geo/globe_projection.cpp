#include "geo/globe_projection.h"

#include <algorithm>
#include <cmath>

namespace kalvo::geo {

namespace {

/// A longitude in radians brought into the turn from -pi (included) to pi (excluded).
double wrapped(double lon) {
    // The IEEE remainder is exact: no rounding can leave the turn.
    const double turned = std::remainder(lon, 2 * kPi);
    return turned == kPi ? -kPi : turned;
}

}  // namespace

UnitVector unitVector(engine::LatLon place) {
    const double lat = toRadians(place.lat);
    const double lon = toRadians(place.lon);
    return {std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)};
}

GlobeProjection::GlobeProjection(LatLonRadians viewCenter, graphics::Size viewSize)
    : centerLon_(viewCenter.lon),
      center_{viewSize.width * 0.5, viewSize.height * 0.5},
      radius_(std::min(viewSize.width, viewSize.height) / 2.3) {
    const double sinLat = std::sin(viewCenter.lat);
    const double cosLat = std::cos(viewCenter.lat);
    const double sinLon = std::sin(viewCenter.lon);
    const double cosLon = std::cos(viewCenter.lon);
    right_ = {-sinLon, cosLon, 0};
    up_ = {-sinLat * cosLon, -sinLat * sinLon, cosLat};
    viewDirection_ = {cosLat * cosLon, cosLat * sinLon, sinLat};
}

std::optional<engine::LatLon> GlobeProjection::invert(graphics::Point point) const {
    const double x = (point.x - center_.x) / radius_;
    const double y = (center_.y - point.y) / radius_;
    const double squaredDistance = x * x + y * y;
    if (!(squaredDistance <= 1)) return std::nullopt;
    const double z = std::sqrt(1 - squaredDistance);
    const double cosCenter = up_.z;
    const double sinCenter = viewDirection_.z;
    const double sinLat = std::clamp(y * cosCenter + z * sinCenter, -1.0, 1.0);
    const double lat = std::asin(sinLat);
    // At a pole every longitude is the same place: the center's own is the natural one to name.
    const bool isPole = std::cos(lat) <= 0.000001;
    const double turn = isPole ? 0 : std::atan2(x, z * cosCenter - y * sinCenter);
    return engine::LatLon{toDegrees(lat), toDegrees(wrapped(centerLon_ + turn))};
}

}  // namespace kalvo::geo
