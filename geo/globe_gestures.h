#pragma once

#include "geo/globe_view.h"
#include "graphics/geometry.h"

/// What moves the globe. Every function takes the time it happens at, so that nothing here waits.
namespace kalvo::geo {

/// How often `tick` is to be called.
inline constexpr std::chrono::milliseconds kGlobeTick{50};

/// One beat of the timer: turns the globe a little, or starts it again once it has been left
/// alone for more than 4 seconds.
void tick(GlobeView& globe, GlobeView::Time now);

/// How far a drag has come since it began, and how far it would get if it were let go now; points.
struct GlobeDrag {
    graphics::Size translation;
    graphics::Size predictedEndTranslation;
};

/// One movement of a drag. Each applies the whole translation again: a drag held away from its
/// start keeps turning the globe.
void dragChanged(GlobeView& globe, const GlobeDrag& drag, GlobeView::Time now);

/// Turns the globe as the arrow keys do; the rotation waits as for a drag.
void turn(GlobeView& globe, LatLonRadians delta, GlobeView::Time now);

/// Stops the globe, or lets it turn again.
void togglePause(GlobeView& globe);

/// Tells `onGlobeTap` which place a point of a view of this size shows; outside the disc nothing
/// happens.
void tap(const GlobeView& globe, graphics::Point point, graphics::Size viewSize);

}  // namespace kalvo::geo
