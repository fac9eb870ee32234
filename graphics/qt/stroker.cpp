#include "graphics/qt/stroker.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include <QPolygonF>

namespace kalvo::graphics {

namespace {

constexpr double kMiterLimit = 10;  // length of a miter over the width of the line

struct Segment {
    QPointF from;
    QPointF normal;  // of length 1
    double length;
};

std::vector<Segment> segmentsOf(const ClippedPolyline& line) {
    std::vector<Segment> segments;
    segments.reserve(line.points.size());
    const std::size_t count = line.closed ? line.points.size() : line.points.size() - 1;
    for (std::size_t i = 0; i < count; ++i) {
        const QPointF& from = line.points[i];
        const QPointF along = line.points[(i + 1) % line.points.size()] - from;
        const double length = std::sqrt(QPointF::dotProduct(along, along));
        if (length == 0) continue;
        segments.push_back({from, QPointF(along.y(), -along.x()) / length, length});
    }
    return segments;
}

/// Appends the edge of the line beside the corner between two segments, on the side to which
/// `reach` (half the width, with a sign) times a normal points.
void appendCorner(const Segment& before, const Segment& after, double reach, QPolygonF& edge) {
    const QPointF& corner = after.from;
    const double cross =
        before.normal.x() * after.normal.y() - before.normal.y() * after.normal.x();
    // 1 where the line goes straight on, 0 where it turns back: the squared cosine of half the
    // turn.
    const double straightness = (1 + QPointF::dotProduct(before.normal, after.normal)) / 2;
    const bool isOuter = reach * cross > 0;
    // At the inner side the edges meet before the corner, if both segments are long enough.
    const double shorter = std::min(before.length, after.length);
    const bool meets = isOuter ? straightness * kMiterLimit * kMiterLimit >= 1
                               : std::abs(reach * cross) <= 2 * straightness * shorter;
    if (meets && straightness > 0) {
        edge << corner + (before.normal + after.normal) * (reach / (2 * straightness));
        return;
    }
    edge << corner + before.normal * reach;
    if (!isOuter) edge << corner;
    edge << corner + after.normal * reach;
}

}  // namespace

void appendStroke(const ClippedPolyline& line, double width, QPainterPath& outline) {
    const std::vector<Segment> segments = segmentsOf(line);
    if (segments.empty()) return;
    const auto edgeAt = [&](double reach) {
        QPolygonF edge;
        edge.reserve(static_cast<qsizetype>(segments.size()) * 3 / 2);
        if (line.closed) {
            appendCorner(segments.back(), segments.front(), reach, edge);
        } else {
            edge << segments.front().from + segments.front().normal * reach;
        }
        for (std::size_t i = 1; i < segments.size(); ++i) {
            appendCorner(segments[i - 1], segments[i], reach, edge);
        }
        if (!line.closed) edge << line.points.back() + segments.back().normal * reach;
        return edge;
    };
    QPolygonF left = edgeAt(width / 2);
    QPolygonF right = edgeAt(-width / 2);
    std::reverse(right.begin(), right.end());
    if (!line.closed) {
        outline.addPolygon(left += right);
    } else {
        outline.addPolygon(left);
        outline.closeSubpath();
        outline.addPolygon(right);
    }
    outline.closeSubpath();
}

}  // namespace kalvo::graphics
