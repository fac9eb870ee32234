#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "engine/country_ring.h"
#include "geo/globe_projection.h"
#include "graphics/canvas.h"

namespace kalvo::geo {

/// Lines on the sphere, kept as unit vectors so that a frame needs no trigonometry: each point is
/// turned by one rotation. A line's bounding cap tells those behind the globe without looking at
/// their points.
class GlobeLines {
 public:
    /// Adds a line through places in order; an empty one draws nothing.
    void add(std::span<const engine::LatLon> line);

    [[nodiscard]] std::size_t pointCount() const { return x_.size(); }

    /// Replaces the batch by the visible runs of every line. A point is visible a little beyond
    /// the near hemisphere, so that lines reach the rim.
    void project(const GlobeProjection& projection, graphics::LineBatch& visible) const;

 private:
    struct Line {
        std::size_t begin;
        std::size_t end;
        UnitVector center;  // of the bounding cap
        // The line is hidden as a whole below the one cosine of the cap's distance from the
        // view's center, and seen as a whole from the other on.
        double hiddenBelow;
        double seenFrom;
    };

    void projectWhole(const Line& line,
                      const GlobeProjection& projection,
                      graphics::LineBatch& visible) const;
    void projectPart(const Line& line,
                     const GlobeProjection& projection,
                     graphics::LineBatch& visible) const;

    std::vector<double> x_;
    std::vector<double> y_;
    std::vector<double> z_;
    std::vector<Line> lines_;
};

}  // namespace kalvo::geo
