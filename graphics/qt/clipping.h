#pragma once

#include <vector>

#include <QPointF>
#include <QPolygonF>

#include "graphics/canvas.h"

/// Clips drawings to the area that can be seen, so that coordinates of any size (what a chart makes
/// of a value from the web) cost no more than ordinary ones. What is inside the area stays as it
/// is; points that are not numbers are left out.
namespace kalvo::graphics {

/// Returns the part of a filled outline inside `area`: the same pixels there, for the non-zero
/// rule.
[[nodiscard]] QPolygonF clippedFill(const Polyline& outline, const QRectF& area);

/// A part of a stroked line, of at least two points.
struct ClippedPolyline {
    std::vector<QPointF> points;
    bool closed;
};

/// Returns the parts of a stroked line that touch `area`. A line wholly inside stays whole, and
/// every corner inside stays a corner.
[[nodiscard]] std::vector<ClippedPolyline> clippedStroke(const Polyline& line, const QRectF& area);

/// Returns a coordinate limited to a range in which differences do not overflow.
[[nodiscard]] double boundedCoordinate(double value);

}  // namespace kalvo::graphics
