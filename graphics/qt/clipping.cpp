#include "graphics/qt/clipping.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace kalvo::graphics {

namespace {

/// Less than half the largest double: the difference of two coordinates stays finite.
constexpr double kFarthest = 8e307;

/// One side of the area, as the half plane that the area lies in.
struct Side {
    enum class Axis { kX, kY } axis;
    double bound;
    double inward;  // 1 where the coordinates grow into the area, else -1

    /// Positive inside.
    [[nodiscard]] double signedDistance(const QPointF& point) const {
        return inward * ((axis == Axis::kX ? point.x() : point.y()) - bound);
    }

    /// Where a segment with one end inside and one outside crosses the side. Measured from the end
    /// that is nearer: from an end at 1e300 the other one would be lost in rounding.
    [[nodiscard]] QPointF crossing(const QPointF& one, const QPointF& other) const {
        const bool oneIsNearer = std::abs(signedDistance(one)) <= std::abs(signedDistance(other));
        const QPointF& near = oneIsNearer ? one : other;
        const QPointF& far = oneIsNearer ? other : one;
        const double share = signedDistance(near) / (signedDistance(near) - signedDistance(far));
        const QPointF point = near + (far - near) * share;
        return axis == Axis::kX ? QPointF(bound, point.y()) : QPointF(point.x(), bound);
    }
};

std::array<Side, 4> sidesOf(const QRectF& area) {
    return {{{Side::Axis::kX, area.left(), 1},
             {Side::Axis::kX, area.right(), -1},
             {Side::Axis::kY, area.top(), 1},
             {Side::Axis::kY, area.bottom(), -1}}};
}

std::vector<QPointF> boundedPoints(const Polyline& line) {
    std::vector<QPointF> points;
    points.reserve(line.points.size() + 1);
    for (const Point& point : line.points) {
        if (std::isnan(point.x) || std::isnan(point.y)) continue;
        points.emplace_back(boundedCoordinate(point.x), boundedCoordinate(point.y));
    }
    return points;
}

/// Whether all of a line's points lie beyond one side of the area. Points that are not numbers do
/// not count.
bool isDisjoint(const Polyline& line, const QRectF& area) {
    double left = kFarthest;
    double right = -kFarthest;
    double top = kFarthest;
    double bottom = -kFarthest;
    for (const Point& point : line.points) {
        left = std::min(left, point.x);
        right = std::max(right, point.x);
        top = std::min(top, point.y);
        bottom = std::max(bottom, point.y);
    }
    return right < area.left() || left > area.right() || bottom < area.top() || top > area.bottom();
}

/// The polygon's part on the inner side (one step of Sutherland and Hodgman, 1974).
QPolygonF clippedToSide(const QPolygonF& polygon, const Side& side) {
    QPolygonF kept;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF& from = polygon[i];
        const QPointF& to = polygon[(i + 1) % polygon.size()];
        const bool fromInside = side.signedDistance(from) >= 0;
        if (fromInside) kept << from;
        if (fromInside != (side.signedDistance(to) >= 0)) kept << side.crossing(from, to);
    }
    return kept;
}

/// The part of a segment inside all sides.
std::optional<std::pair<QPointF, QPointF>> clippedSegment(QPointF from,
                                                          QPointF to,
                                                          const std::array<Side, 4>& sides) {
    for (const Side& side : sides) {
        const bool fromInside = side.signedDistance(from) >= 0;
        const bool toInside = side.signedDistance(to) >= 0;
        if (!fromInside && !toInside) return std::nullopt;
        if (fromInside == toInside) continue;
        (fromInside ? to : from) = side.crossing(from, to);
    }
    return std::pair(from, to);
}

}  // namespace

double boundedCoordinate(double value) { return std::clamp(value, -kFarthest, kFarthest); }

QPolygonF clippedFill(const Polyline& outline, const QRectF& area) {
    if (isDisjoint(outline, area)) return {};
    const std::vector<QPointF> points = boundedPoints(outline);
    QPolygonF polygon(QList<QPointF>(points.begin(), points.end()));
    if (area.contains(polygon.boundingRect())) return polygon;
    for (const Side& side : sidesOf(area)) polygon = clippedToSide(polygon, side);
    return polygon;
}

std::vector<ClippedPolyline> clippedStroke(const Polyline& line, const QRectF& area) {
    if (isDisjoint(line, area)) return {};
    std::vector<QPointF> points = boundedPoints(line);
    const auto outside = std::find_if(points.begin(), points.end(),
                                      [&](const QPointF& point) { return !area.contains(point); });
    if (outside == points.end()) {
        if (points.size() < 2) return {};
        return {{std::move(points), line.closed}};
    }
    if (line.closed) {
        // Starts out of sight, so that no corner in sight becomes two ends.
        std::rotate(points.begin(), outside, points.end());
        points.push_back(points.front());
    }
    const std::array<Side, 4> sides = sidesOf(area);
    std::vector<ClippedPolyline> parts;
    bool joined = false;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const auto visible = clippedSegment(points[i - 1], points[i], sides);
        if (!visible) {
            joined = false;
            continue;
        }
        if (!joined || visible->first != points[i - 1]) parts.push_back({{visible->first}, false});
        parts.back().points.push_back(visible->second);
        joined = visible->second == points[i];
    }
    return parts;
}

}  // namespace kalvo::graphics
