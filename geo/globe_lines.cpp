#include "geo/globe_lines.h"

#include <algorithm>
#include <cmath>

namespace kalvo::geo {

namespace {

/// The least cosine of a visible point's distance from the center.
constexpr double kVisibleFrom = -0.05;

/// Wider than the rounding of a scalar product, far below what a picture shows.
constexpr double kSlack = 1e-9;

UnitVector normalized(const UnitVector& vector) {
    const double length = std::sqrt(dot(vector, vector));
    // The points of a line that goes round the globe may cancel out: any center will do then.
    if (length < kSlack) return {1, 0, 0};
    return {vector.x / length, vector.y / length, vector.z / length};
}

}  // namespace

void GlobeLines::add(std::span<const engine::LatLon> line) {
    if (line.empty()) return;
    const std::size_t begin = x_.size();
    UnitVector sum{0, 0, 0};
    for (const engine::LatLon& place : line) {
        const UnitVector point = unitVector(place);
        x_.push_back(point.x);
        y_.push_back(point.y);
        z_.push_back(point.z);
        sum = {sum.x + point.x, sum.y + point.y, sum.z + point.z};
    }
    const UnitVector center = normalized(sum);
    double nearest = 1;
    for (std::size_t i = begin; i < x_.size(); ++i) {
        nearest = std::min(nearest, dot(center, {x_[i], y_[i], z_[i]}));
    }
    const double capRadius = std::acos(std::clamp(nearest, -1.0, 1.0));
    const double visibleRadius = std::acos(kVisibleFrom);
    // A cap as wide as the hidden part of the globe is never hidden as a whole, one wider than
    // the visible part never seen as a whole.
    const double hiddenFrom = visibleRadius + capRadius;
    const double seenUpTo = visibleRadius - capRadius;
    lines_.push_back({.begin = begin,
                      .end = x_.size(),
                      .center = center,
                      .hiddenBelow = hiddenFrom < kPi ? std::cos(hiddenFrom) - kSlack : -2,
                      .seenFrom = seenUpTo > 0 ? std::cos(seenUpTo) + kSlack : 2});
}

void GlobeLines::project(const GlobeProjection& projection, graphics::LineBatch& visible) const {
    visible.clear();
    for (const Line& line : lines_) {
        const double cosDistance = dot(projection.viewDirection(), line.center);
        if (cosDistance < line.hiddenBelow) continue;
        if (cosDistance >= line.seenFrom) {
            projectWhole(line, projection, visible);
        } else {
            projectPart(line, projection, visible);
        }
    }
}

void GlobeLines::projectWhole(const Line& line,
                              const GlobeProjection& projection,
                              graphics::LineBatch& visible) const {
    const std::size_t start = visible.points.size();
    visible.beginLine();
    visible.points.resize(start + line.end - line.begin);
    graphics::Point* points = visible.points.data() + start;
    for (std::size_t i = line.begin; i < line.end; ++i) {
        *points++ = projection.project({x_[i], y_[i], z_[i]}).point;
    }
}

void GlobeLines::projectPart(const Line& line,
                             const GlobeProjection& projection,
                             graphics::LineBatch& visible) const {
    bool joined = false;
    for (std::size_t i = line.begin; i < line.end; ++i) {
        const auto [point, cosDistance] = projection.project({x_[i], y_[i], z_[i]});
        // What is not a number is nowhere to be seen.
        if (!(cosDistance >= kVisibleFrom)) {
            joined = false;
            continue;
        }
        if (!joined) visible.beginLine();
        visible.points.push_back(point);
        joined = true;
    }
}

}  // namespace kalvo::geo
