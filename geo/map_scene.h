#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "geo/map_projection.h"
#include "geojson/geojson.h"
#include "graphics/canvas.h"

namespace kalvo::geo {

/// The outlines of a map laid out in a view: everything about a picture of it that depends
/// neither on the selection nor on zoom and pan, so that frames in between need not go back to
/// the coordinates.
struct MapScene {
    /// One filled ring. Holes stand on their own and are filled like all others.
    struct Outline {
        std::size_t feature;  // whose it is: an index into the map's features
        graphics::Path path;  // one closed polyline of more than two points
        graphics::Rect box;   // round its points
    };

    MapProjection projection;
    std::vector<Outline> outlines;  // in drawing order

    /// Lays out a map in a view of a size in points.
    [[nodiscard]] static MapScene make(const geojson::GeoMapData& map, graphics::Size viewSize);

    /// Returns the feature drawn topmost at a point of the unzoomed view, if any: an index into the
    /// map's features.
    [[nodiscard]] std::optional<std::size_t> featureAt(graphics::Point point) const;
};

/// Projects the polygons of one element of a geometry's coordinates: each is one ring, with at
/// least one point. Unusable positions are left out.
[[nodiscard]] std::vector<graphics::Path> extractPolygons(geojson::AnyCodable element,
                                                          const MapProjection& projection);

}  // namespace kalvo::geo
