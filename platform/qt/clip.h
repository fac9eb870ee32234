#pragma once

#include <QPainterPath>
#include <QPolygonF>

#include "platform/canvas.h"

/// Cutting drawings down to the area that can be seen, so that coordinates of any size (what a
/// chart makes of a value from the web) cost no more than ordinary ones. What is inside the area
/// stays as it is; points that are not numbers are left out.
namespace kalvo::platform {

/// The part of a filled outline inside `area`: the same pixels there, for the non-zero rule.
[[nodiscard]] QPolygonF clippedFill(const Polyline& outline, const QRectF& area);

/// Appends the parts of a stroked line that touch `area`, each as a sub-path. A line wholly inside
/// stays one sub-path, and every corner inside stays a corner.
void appendClippedStroke(const Polyline& line, const QRectF& area, QPainterPath& path);

/// A coordinate brought into a range in which differences do not overflow.
[[nodiscard]] double boundedCoordinate(double value);

}  // namespace kalvo::platform
