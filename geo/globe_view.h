#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "engine/country_ring.h"
#include "geo/globe_projection.h"
#include "geo/globe_scene.h"
#include "graphics/canvas.h"
#include "graphics/color.h"

namespace kalvo::geo {

/// The globe: which way it is turned, what is marked on it, whom a tap is told to, and whether it
/// turns by itself. The functions of globe_gestures.h move it in time.
struct GlobeView {
    using Time = std::chrono::steady_clock::time_point;

    double centerLat;                       // radians
    double centerLon;                       // radians, never wrapped
    std::optional<double> targetLat;        // degrees
    std::optional<double> targetLon;        // degrees
    std::optional<std::string> targetName;  // label above the marker
    /// The chosen country's name. No picture shows it yet.
    std::optional<std::string> highlightedCountry;
    /// Told the place of a tapped point.
    std::function<void(engine::LatLon)> onGlobeTap;

    bool isAutoRotating = true;
    Time lastDragTime = std::chrono::steady_clock::now();
    /// The user has stopped the globe for good; only the user starts it again.
    bool isPaused = false;

    [[nodiscard]] LatLonRadians center() const { return {centerLat, centerLon}; }
    /// Returns the place to mark, if it has both coordinates.
    [[nodiscard]] std::optional<engine::LatLon> target() const;

    /// Draws the globe at the center of an area; it does not clear what is around it.
    void draw(graphics::Canvas& canvas, graphics::Size size, GlobeScene& scene) const;

    /// The two halves of `draw`, in this order: what stays as it is while the globe turns about
    /// its axis (disc, rim and parallels), and what turns.
    void drawBackground(graphics::Canvas& canvas, graphics::Size size, GlobeScene& scene) const;
    void drawTurning(graphics::Canvas& canvas, graphics::Size size, GlobeScene& scene) const;
};

/// The color of the disc and of what surrounds it.
[[nodiscard]] graphics::Color globeBackgroundColor();

inline constexpr std::string_view kGlobeHint = "Trascina per ruotare • Tappa per selezionare";

/// How the hint and the target's label are written.
[[nodiscard]] graphics::TextStyle globeHintStyle();
[[nodiscard]] graphics::TextStyle globeLabelStyle();

/// The hint's box at the top left of the view; `textSize` is what the hint measures on the canvas
/// that it is drawn on, in points.
[[nodiscard]] graphics::Rect globeHintBox(graphics::Size textSize);

/// Draws the hint in its box, over the globe.
void drawGlobeHint(graphics::Canvas& canvas, graphics::Size textSize);

}  // namespace kalvo::geo
