#pragma once

#include <span>

#include "engine/country_ring.h"
#include "geo/globe_lines.h"
#include "graphics/canvas.h"

namespace kalvo::geo {

/// What the pictures of a globe have in common: its lines, prepared once, and the storage that
/// the lines of a picture are projected into, kept so that a frame allocates nothing.
struct GlobeScene {
    GlobeLines parallels;
    GlobeLines meridians;
    GlobeLines outlines;
    double outlineWidth;  // points
    graphics::LineBatch projected;

    /// The globe with the outlines of the world's countries or, without any, of six continents.
    [[nodiscard]] static GlobeScene make(std::span<const engine::CountryRing> countries);
};

}  // namespace kalvo::geo
