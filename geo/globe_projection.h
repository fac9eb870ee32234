#pragma once

#include <optional>

#include "engine/country_ring.h"
#include "graphics/geometry.h"

namespace kalvo::geo {

inline constexpr double kPi = 3.141592653589793;

[[nodiscard]] constexpr double toRadians(double degrees) { return degrees * kPi / 180; }
[[nodiscard]] constexpr double toDegrees(double radians) { return radians * 180 / kPi; }

/// A direction from the middle of the sphere, of length 1: x points to 0° N 0° E, y to 0° N 90° E,
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

/// The orthographic projection of the sphere on the disc in the middle of a view (Snyder, Map
/// Projections: A Working Manual, USGS 1987, chapter 20). The sines and cosines of the view's
/// center are taken once; a point given as a unit vector then costs three scalar products.
class GlobeProjection {
 public:
    /// The center of the view is in radians; its longitude may lie many turns away from 0. The
    /// disc's diameter is the view's shorter side divided by 1.15.
    GlobeProjection(double centerLat, double centerLon, graphics::Size viewSize);

    struct Projected {
        graphics::Point point;
        double cosDistance;  // of the angle from the center: not negative on the near side
    };
    [[nodiscard]] Projected project(const UnitVector& place) const {
        return {{middle_.x + radius_ * dot(right_, place), middle_.y - radius_ * dot(up_, place)},
                dot(towards_, place)};
    }

    /// The place seen at a point of the view, its longitude from -180 (included) to 180 degrees
    /// (excluded); nothing outside the disc.
    [[nodiscard]] std::optional<engine::LatLon> invert(graphics::Point point) const;

    [[nodiscard]] graphics::Point middle() const { return middle_; }
    [[nodiscard]] double radius() const { return radius_; }  // points

    /// The view's axes on the sphere: to the right, upwards and towards the eye.
    [[nodiscard]] const UnitVector& right() const { return right_; }
    [[nodiscard]] const UnitVector& up() const { return up_; }
    [[nodiscard]] const UnitVector& towards() const { return towards_; }

 private:
    double centerLon_;
    graphics::Point middle_;
    double radius_;
    UnitVector right_;
    UnitVector up_;
    UnitVector towards_;
};

}  // namespace kalvo::geo
