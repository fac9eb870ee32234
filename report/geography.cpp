#include "report/geography.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "base/text.h"
#include "engine/calculation_engine.h"
#include "geo/globe_projection.h"
#include "geo/globe_scene.h"
#include "geo/map_scene.h"
#include "report/typesetting.h"

namespace kalvo::report {

namespace {

using graphics::Canvas;
using graphics::Color;
using graphics::Point;

constexpr graphics::Rect kBox{kRightColumn, 92, kColumnWidth, 208};

/// Corners that are nearer than this to the last one are left out of outlines.
constexpr double kCornerDistance = 0.25;  // points on the page

/// Thins an outline to corners at least so far apart, and brings them onto a grid of eighths: no
/// printer shows the difference, and the file takes half as much.
std::vector<Point> thinned(std::span<const Point> points, double distance) {
    constexpr double kGrid = 8;  // to a point
    std::vector<Point> kept;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point corner{std::round(points[i].x * kGrid) / kGrid,
                           std::round(points[i].y * kGrid) / kGrid};
        const bool isEnd = i == 0 || i + 1 == points.size();
        if (isEnd || std::hypot(corner.x - kept.back().x, corner.y - kept.back().y) >= distance) {
            kept.push_back(corner);
        }
    }
    return kept;
}

void drawMarker(Canvas& canvas, Point place) {
    constexpr double kRadius = 6;
    const Color red = Color::hex("#d9251b");
    canvas.strokeCircle(place, kRadius, {graphics::kWhite, 3});
    canvas.strokeCircle(place, kRadius, {red, 1.5});
    canvas.fillCircle(place, 2.3, red);
}

Color colorOf(const CountryMap& map, const geojson::GeoFeature& province) {
    const std::string* code = province.property("sigla");
    const auto found = map.highestYield.find(base::uppercased(code ? *code : std::string()));
    return engine::CalculationEngine::getWindColor(found == map.highestYield.end() ? 0
                                                                                   : found->second);
}

/// Draws lines of the globe with their corners thinned out.
void drawLines(Canvas& canvas,
               const geo::GlobeLines& lines,
               const geo::GlobeProjection& projection,
               const graphics::Stroke& stroke) {
    graphics::LineBatch visible;
    lines.project(projection, visible);
    graphics::LineBatch shown;
    for (std::size_t i = 0; i < visible.lineCount(); ++i) {
        shown.beginLine();
        const std::vector<Point> kept = thinned(visible.line(i), kCornerDistance);
        shown.points.insert(shown.points.end(), kept.begin(), kept.end());
    }
    canvas.strokeLines(shown, stroke.color, stroke.width);
}

}  // namespace

void drawMap(Canvas& canvas, const Report& report) {
    constexpr double kScale = 0.55;
    const graphics::Stroke border{Color::hex("#7f929c"), 0.7};
    const CountryMap& map = *report.map;
    const geo::MapScene scene =
        geo::MapScene::make(map.provinces, {kBox.width / kScale, kBox.height / kScale});
    canvas.save();
    canvas.translate(kBox.x, kBox.y);
    canvas.scale(kScale);
    for (const geo::MapScene::Outline& shape : scene.outlines) {
        graphics::Path outline;
        for (const graphics::Polyline& line : shape.path.polylines) {
            outline.polylines.push_back(
                {thinned(line.points, kCornerDistance / kScale), line.closed});
        }
        canvas.fillPath(outline, colorOf(map, map.provinces.features[shape.feature]));
        canvas.strokePath(outline, border);
    }
    canvas.restore();
    if (!report.latitude || !report.longitude) return;
    const Point place = scene.projection.project(*report.longitude, *report.latitude);
    drawMarker(canvas, {kBox.x + place.x * kScale, kBox.y + place.y * kScale});
}

void drawGlobe(Canvas& canvas, const Report& report) {
    constexpr double kViewSize = 230;  // a disc of 200
    constexpr double kMostTilt = 35;   // degrees: beyond, a pole fills the disc
    const bool isPlaced = report.latitude && report.longitude;
    const double lat = isPlaced ? *report.latitude : 0;
    const double lon = isPlaced ? *report.longitude : 0;
    const geo::GlobeProjection projection(
        {geo::toRadians(std::clamp(lat, -kMostTilt, kMostTilt)), geo::toRadians(lon)},
        {kViewSize, kViewSize});
    const geo::GlobeScene scene = geo::GlobeScene::make(report.world);
    canvas.save();
    canvas.translate(kBox.x + (kBox.width - kViewSize) / 2, kBox.y + (kBox.height - kViewSize) / 2);
    canvas.fillCircle(projection.center(), projection.radius(), Color::hex("#f4f9fc"));
    const graphics::Stroke graticule{Color::hex("#cbd6db"), 0.4};
    drawLines(canvas, scene.parallels, projection, graticule);
    drawLines(canvas, scene.meridians, projection, graticule);
    drawLines(canvas, scene.outlines, projection, {Color::hex("#3f6b5a"), 0.45});
    canvas.strokeCircle(projection.center(), projection.radius(), {Color::hex("#1f5f7a"), 0.8});
    if (isPlaced) drawMarker(canvas, projection.project(geo::unitVector({lat, lon})).point);
    canvas.restore();
}

}  // namespace kalvo::report
