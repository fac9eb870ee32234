#pragma once

#include <optional>

#include "engine/country_ring.h"
#include "graphics/geometry.h"

namespace kalvo::geo {

inline constexpr double kPi = 3.141592653589793;

using engine::toRadians;
[[nodiscard]] constexpr double toDegrees(double radians) { return radians * 180 / kPi; }

/// Like `engine::LatLon`, but in radians; the longitude may lie many turns away from 0.
struct LatLonRadians {
    double lat;
    double lon;
    friend bool operator==(const LatLonRadians&, const LatLonRadians&) = default;
};

/// A direction from the center of the sphere, of length 1: x points to 0° N 0° E, y to 0° N 90° E,
/// z to the north pole.
struct UnitVector {
    double x;
    double y;
    double z;
};

[[nodiscard]] UnitVector unitVector(engine::LatLon place);

[[nodiscard]] constexpr double dot(const UnitVector& a, const UnitVector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

/// The orthographic projection of the sphere on the disc at the center of a view (Snyder, Map
/// Projections: A Working Manual, USGS 1987, chapter 20). The sines and cosines of the view's
/// center are taken once; a point given as a unit vector then costs three scalar products.
class GlobeProjection {
 public:
    /// `viewCenter` is the place at the center of the view. The disc's diameter is the view's
    /// shorter side divided by 1.15.
    GlobeProjection(LatLonRadians viewCenter, graphics::Size viewSize);

    struct Projected {
        graphics::Point point;
        double cosDistance;  // of the angle from the center: not negative on the near side
    };
    [[nodiscard]] Projected project(const UnitVector& place) const {
        return {{center_.x + radius_ * dot(right_, place), center_.y - radius_ * dot(up_, place)},
                dot(viewDirection_, place)};
    }

    /// The place seen at a point of the view, its longitude from -180 (included) to 180 degrees
    /// (excluded); nothing outside the disc.
    [[nodiscard]] std::optional<engine::LatLon> invert(graphics::Point point) const;

    [[nodiscard]] graphics::Point center() const { return center_; }  // of the disc
    [[nodiscard]] double radius() const { return radius_; }           // points

    /// The direction from the center of the sphere to the eye.
    [[nodiscard]] const UnitVector& viewDirection() const { return viewDirection_; }

 private:
    double centerLon_;  // radians
    graphics::Point center_;
    double radius_;
    // The axes of the view on the sphere.
    UnitVector right_;
    UnitVector up_;
    UnitVector viewDirection_;
};

}  // namespace kalvo::geo
