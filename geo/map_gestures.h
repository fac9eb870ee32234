#pragma once

#include "graphics/geometry.h"

/// Zoom and pan of a flat map. They scale and shift the finished picture and never touch its
/// projection.
namespace kalvo::geo {

inline constexpr double kSmallestMapScale = 0.8;
inline constexpr double kLargestMapScale = 15.0;

struct MapGestures {
    double scale = 1.0;
    double lastScale = 1.0;  // magnification at the last change of the pinch under way
    graphics::Size offset{0, 0};
    graphics::Size lastOffset{0, 0};  // translation at the last change of the drag under way
    bool isPinching = false;
    bool isDragging = false;

    friend bool operator==(const MapGestures&, const MapGestures&) = default;
};

/// Follows a pinch that has come to this magnification since it began; recognized from a change
/// of 0.01, zooms about the view's center.
void pinchChanged(MapGestures& gestures, double magnification);
void pinchEnded(MapGestures& gestures);

/// Follows a drag that has come this far since it began, in points; recognized from
/// `kDragThreshold`.
void dragChanged(MapGestures& gestures, graphics::Size translation);
void dragEnded(MapGestures& gestures);

/// Zooms by a factor as far as the limits allow, and keeps what is at `anchor` where it is.
void zoomBy(MapGestures& gestures, double factor, graphics::Point anchor, graphics::Size viewSize);

void moveBy(MapGestures& gestures, graphics::Size distance);

/// Returns the point of the unzoomed picture that shows at a point of the view.
[[nodiscard]] graphics::Point viewToMap(const MapGestures& gestures,
                                        graphics::Point point,
                                        graphics::Size viewSize);

}  // namespace kalvo::geo
