#include "geo/map_gestures.h"

#include <algorithm>
#include <cmath>

#include "geo/drag_recognizer.h"

namespace kalvo::geo {

namespace {

constexpr double kPinchThreshold = 0.01;

void scaleBy(MapGestures& gestures, double factor) {
    gestures.scale = std::clamp(gestures.scale * factor, kSmallestMapScale, kLargestMapScale);
}

}  // namespace

void pinchChanged(MapGestures& gestures, double magnification) {
    // Fingers that slip can be reported as a magnification of nothing or less.
    if (!(magnification > 0) || !std::isfinite(magnification)) return;
    if (!gestures.isPinching && std::abs(magnification - 1) < kPinchThreshold) return;
    gestures.isPinching = true;
    scaleBy(gestures, magnification / gestures.lastScale);
    gestures.lastScale = magnification;
}

void pinchEnded(MapGestures& gestures) {
    gestures.isPinching = false;
    gestures.lastScale = 1.0;
}

void dragChanged(MapGestures& gestures, graphics::Size translation) {
    if (!gestures.isDragging &&
        std::hypot(translation.width, translation.height) < kDragThreshold) {
        return;
    }
    gestures.isDragging = true;
    moveBy(gestures, {translation.width - gestures.lastOffset.width,
                      translation.height - gestures.lastOffset.height});
    gestures.lastOffset = translation;
}

void dragEnded(MapGestures& gestures) {
    gestures.isDragging = false;
    gestures.lastOffset = {0, 0};
}

void zoomBy(MapGestures& gestures, double factor, graphics::Point anchor, graphics::Size viewSize) {
    const graphics::Point kept = viewToMap(gestures, anchor, viewSize);
    scaleBy(gestures, factor);
    const graphics::Point now = viewToMap(gestures, anchor, viewSize);
    moveBy(gestures, {(now.x - kept.x) * gestures.scale, (now.y - kept.y) * gestures.scale});
}

void moveBy(MapGestures& gestures, graphics::Size distance) {
    gestures.offset.width += distance.width;
    gestures.offset.height += distance.height;
}

graphics::Point viewToMap(const MapGestures& gestures,
                          graphics::Point point,
                          graphics::Size viewSize) {
    const graphics::Point center{viewSize.width / 2, viewSize.height / 2};
    return {center.x + (point.x - center.x - gestures.offset.width) / gestures.scale,
            center.y + (point.y - center.y - gestures.offset.height) / gestures.scale};
}

}  // namespace kalvo::geo
