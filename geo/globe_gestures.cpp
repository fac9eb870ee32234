#include "geo/globe_gestures.h"

#include <algorithm>

namespace kalvo::geo {

namespace {

constexpr double kTickTurn = 0.004;             // radians
constexpr std::chrono::seconds kRest{4};        // from the last drag to the next turning
constexpr double kRadiansPerPoint = 0.0003;     // of a drag
constexpr double kPredictionShare = 0.1;        // of a drag's predicted end
constexpr double kMaxLat = 1.4835298641951802;  // 85 degrees

}  // namespace

void tick(GlobeView& globe, GlobeView::Time now) {
    if (globe.isPaused) return;
    if (globe.isAutoRotating) {
        globe.centerLon += kTickTurn;
    } else if (now - globe.lastDragTime > kRest) {
        globe.isAutoRotating = true;
    }
}

void dragChanged(GlobeView& globe, const GlobeDrag& drag, GlobeView::Time now) {
    const double dx =
        drag.translation.width - kPredictionShare * drag.predictedEndTranslation.width;
    const double dy =
        drag.translation.height - kPredictionShare * drag.predictedEndTranslation.height;
    turn(globe, {dy * kRadiansPerPoint, -dx * kRadiansPerPoint}, now);
}

void turn(GlobeView& globe, LatLonRadians delta, GlobeView::Time now) {
    globe.isAutoRotating = false;
    globe.lastDragTime = now;
    globe.centerLon += delta.lon;
    globe.centerLat = std::clamp(globe.centerLat + delta.lat, -kMaxLat, kMaxLat);
}

void togglePause(GlobeView& globe) {
    globe.isPaused = !globe.isPaused;
    if (!globe.isPaused) globe.isAutoRotating = true;
}

void tap(const GlobeView& globe, graphics::Point point, graphics::Size viewSize) {
    if (!globe.onGlobeTap) return;
    const GlobeProjection projection(globe.center(), viewSize);
    if (const auto place = projection.invert(point)) globe.onGlobeTap(*place);
}

}  // namespace kalvo::geo
