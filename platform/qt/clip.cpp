#include "platform/qt/clip.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace kalvo::platform {

namespace {

/// Beyond a trillion points a line's direction inside any window no longer changes visibly.
constexpr double kFarthest = 1e12;

std::vector<QPointF> boundedPoints(const Polyline& line) {
    std::vector<QPointF> points;
    points.reserve(line.points.size() + 1);
    for (const Point& point : line.points) {
        if (std::isnan(point.x) || std::isnan(point.y)) continue;
        points.emplace_back(boundedCoordinate(point.x), boundedCoordinate(point.y));
    }
    return points;
}

/// The polygon's part on one side of an axis-parallel line (one step of Sutherland and Hodgman,
/// 1974). `distance` is positive inside.
template <class Distance>
QPolygonF clippedToSide(const QPolygonF& polygon, Distance distance) {
    QPolygonF kept;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF& from = polygon[i];
        const QPointF& to = polygon[(i + 1) % polygon.size()];
        const double fromDistance = distance(from);
        const double toDistance = distance(to);
        if (fromDistance >= 0) kept << from;
        if ((fromDistance >= 0) != (toDistance >= 0)) {
            kept << from + (to - from) * (fromDistance / (fromDistance - toDistance));
        }
    }
    return kept;
}

struct Segment {
    QPointF from;
    QPointF to;
};

/// The part of a segment inside the area (Liang and Barsky, 1984).
std::optional<Segment> clippedSegment(const Segment& segment, const QRectF& area) {
    const QPointF delta = segment.to - segment.from;
    double enter = 0;
    double leave = 1;
    const auto narrow = [&](double direction, double room) {
        if (direction == 0) return room >= 0;
        const double at = room / direction;
        if (direction < 0) {
            enter = std::max(enter, at);
        } else {
            leave = std::min(leave, at);
        }
        return enter <= leave;
    };
    if (!narrow(-delta.x(), segment.from.x() - area.left()) ||
        !narrow(delta.x(), area.right() - segment.from.x()) ||
        !narrow(-delta.y(), segment.from.y() - area.top()) ||
        !narrow(delta.y(), area.bottom() - segment.from.y())) {
        return std::nullopt;
    }
    return Segment{enter > 0 ? segment.from + delta * enter : segment.from,
                   leave < 1 ? segment.from + delta * leave : segment.to};
}

}  // namespace

double boundedCoordinate(double value) { return std::clamp(value, -kFarthest, kFarthest); }

QPolygonF clippedFill(const Polyline& outline, const QRectF& area) {
    const std::vector<QPointF> points = boundedPoints(outline);
    QPolygonF polygon(QList<QPointF>(points.begin(), points.end()));
    if (area.contains(polygon.boundingRect())) return polygon;
    polygon = clippedToSide(polygon, [&](const QPointF& p) { return p.x() - area.left(); });
    polygon = clippedToSide(polygon, [&](const QPointF& p) { return area.right() - p.x(); });
    polygon = clippedToSide(polygon, [&](const QPointF& p) { return p.y() - area.top(); });
    return clippedToSide(polygon, [&](const QPointF& p) { return area.bottom() - p.y(); });
}

void appendClippedStroke(const Polyline& line, const QRectF& area, QPainterPath& path) {
    std::vector<QPointF> points = boundedPoints(line);
    if (points.empty()) return;
    const bool inside = std::all_of(points.begin(), points.end(),
                                    [&](const QPointF& point) { return area.contains(point); });
    if (inside) {
        path.moveTo(points.front());
        for (std::size_t i = 1; i < points.size(); ++i) path.lineTo(points[i]);
        if (line.closed) path.closeSubpath();
        return;
    }
    if (line.closed) points.push_back(points.front());
    bool joined = false;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const auto visible = clippedSegment({points[i - 1], points[i]}, area);
        if (!visible) {
            joined = false;
            continue;
        }
        if (!joined || visible->from != points[i - 1]) path.moveTo(visible->from);
        path.lineTo(visible->to);
        joined = visible->to == points[i];
    }
}

}  // namespace kalvo::platform
