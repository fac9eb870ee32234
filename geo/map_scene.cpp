#include "geo/map_scene.h"

#include <algorithm>

namespace kalvo::geo {

namespace {

using graphics::Path;
using graphics::Point;
using graphics::Polyline;

void appendRing(geojson::AnyCodable ring,
                const MapProjection& projection,
                std::vector<Path>& polygons) {
    Polyline outline{{}, true};
    outline.points.reserve(ring.size());
    for (const geojson::AnyCodable member : ring) {
        if (!member.isPosition()) continue;
        const double lng = member[0].number();
        const double lat = member[1].number();
        if (isUsable(lng, lat)) outline.points.push_back(projection.project(lng, lat));
    }
    if (!outline.points.empty()) polygons.push_back({{std::move(outline)}});
}

graphics::Rect boundingBox(const std::vector<Point>& points) {
    const auto [left, right] = std::ranges::minmax(points, {}, &Point::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &Point::y);
    return {left.x, top.y, right.x - left.x, bottom.y - top.y};
}

/// How often a closed outline goes round a point (Sunday, "Inclusion of a Point in a Polygon").
int windingNumber(const std::vector<Point>& outline, Point point) {
    int winding = 0;
    Point from = outline.back();
    for (const Point to : outline) {
        const double side =
            (to.x - from.x) * (point.y - from.y) - (point.x - from.x) * (to.y - from.y);
        if (from.y <= point.y && to.y > point.y && side > 0) ++winding;
        if (from.y > point.y && to.y <= point.y && side < 0) --winding;
        from = to;
    }
    return winding;
}

}  // namespace

std::vector<Path> extractPolygons(geojson::AnyCodable element, const MapProjection& projection) {
    std::vector<Path> polygons;
    if (element.empty() || !element.front().isArray()) return polygons;
    const geojson::AnyCodable first = element.front();
    if (first.empty() || first.front().isArray()) {
        for (const geojson::AnyCodable ring : element) appendRing(ring, projection, polygons);
    } else {
        appendRing(element, projection, polygons);
    }
    return polygons;
}

MapScene MapScene::make(const geojson::GeoMapData& map, graphics::Size viewSize) {
    MapScene scene{MapProjection(calculateBounds(map.features), viewSize), {}};
    for (std::size_t feature = 0; feature < map.features.size(); ++feature) {
        for (const geojson::AnyCodable element : map.features[feature].geometry.coordinates) {
            for (Path& polygon : extractPolygons(element, scene.projection)) {
                if (polygon.polylines.front().points.size() <= 2) continue;
                const graphics::Rect box = boundingBox(polygon.polylines.front().points);
                scene.outlines.push_back({feature, std::move(polygon), box});
            }
        }
    }
    return scene;
}

std::optional<std::size_t> MapScene::featureAt(Point point) const {
    const auto topmost =
        std::find_if(outlines.rbegin(), outlines.rend(), [&](const Outline& outline) {
            return contains(outline.box, point) &&
                   windingNumber(outline.path.polylines.front().points, point) != 0;
        });
    if (topmost == outlines.rend()) return std::nullopt;
    return topmost->feature;
}

}  // namespace kalvo::geo
