#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "geo/geojson.h"
#include "geo/map_projection.h"
#include "platform/canvas.h"

namespace kalvo::geo {

/// The outlines of a map laid out in a view: everything about a picture of it that depends
/// neither on the selection nor on zoom and pan, so that frames in between need not go back to
/// the coordinates.
struct MapScene {
    /// One filled ring. Holes stand on their own and are filled like all others.
    struct Outline {
        std::size_t feature;  // whose it is: an index into the map's features
        platform::Path path;  // one closed polyline of more than two points
    };

    MapProjection projection;
    std::vector<Outline> outlines;  // in drawing order

    [[nodiscard]] static MapScene make(const GeoMapData& map, platform::Size viewSize);

    /// The feature drawn topmost at a point of the view, if any.
    [[nodiscard]] std::optional<std::size_t> featureAt(platform::Point point) const;
};

/// The polygons of one element of a geometry's coordinates, projected: each is one ring, with at
/// least one point. Unusable positions are left out.
[[nodiscard]] std::vector<platform::Path> extractPolygons(AnyCodable element,
                                                          const MapProjection& projection);

}  // namespace kalvo::geo
