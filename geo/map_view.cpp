#include "geo/map_view.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include <fmt/format.h>

#include "base/numbers.h"
#include "base/text.h"
#include "engine/calculation_engine.h"
#include "engine/wind_scale.h"
#include "geo/coordinate_text.h"
#include "geo/wind_legend.h"

namespace kalvo::geo {

namespace {

using graphics::Canvas;
using graphics::Color;
using graphics::Size;

/// How the outlines of a feature are painted.
struct FeatureStyle {
    Color fill;
    Color stroke;
    double strokeWidth;  // points
};

const Color kBackground = Color::hex("#f4f9fc");
const FeatureStyle kHighlightedRegion{Color::hex("#3a9ad9"), Color::hex("#1f5f7a"), 2};
const FeatureStyle kNormalRegion{Color::hex("#e2ebf0"), Color::hex("#b0c4de"), 1};
const FeatureStyle kHighlightedProvince{Color::hex("#fca311"), Color::hex("#b25c00"), 2};
const FeatureStyle kNormalProvince{Color::hex("#e8eff2"), Color::hex("#cbd6db"), 1};
const Color kWindProvinceStroke = Color::hex("#9cb1bb");
const Color kHoverOutline = Color::hex("#17211c");

constexpr std::string_view kWaitingText = "Caricamento mappa in corso...";
constexpr graphics::TextStyle kWaitingStyle{13, false, graphics::kGray};

constexpr double kTargetRadius = 7;       // points
constexpr double kTargetRimWidth = 1.5;   // points
constexpr double kTargetHeartRadius = 3;  // points

std::string_view text(const geojson::GeoFeature& feature, std::string_view key) {
    const std::string* value = feature.property(key);
    return value ? std::string_view(*value) : std::string_view();
}

std::string_view regionName(const geojson::GeoFeature& feature) {
    return text(feature, feature.property("regione") ? "regione" : "provincia");
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return base::lowercased(a) == base::lowercased(b);
}

bool isHighlighted(const MapView& view, const geojson::GeoFeature& feature) {
    if (view.mapType == MapType::kRegion && view.selectedRegion) {
        return equalIgnoringCase(regionName(feature), *view.selectedRegion);
    }
    return view.selectedProvince &&
           equalIgnoringCase(text(feature, "sigla"), *view.selectedProvince);
}

FeatureStyle styleOf(const MapView& view, std::size_t index) {
    const geojson::GeoFeature& feature = view.geoData->features[index];
    switch (view.mapType) {
        case MapType::kRegion:
            return isHighlighted(view, feature) ? kHighlightedRegion : kNormalRegion;
        case MapType::kProvince:
            return isHighlighted(view, feature) ? kHighlightedProvince : kNormalProvince;
        case MapType::kWind:
            break;
    }
    const double yield = view.windYield(index).value_or(0);
    return {engine::CalculationEngine::getWindColor(yield), kWindProvinceStroke, 1};
}

std::string featureText(const MapView& view, std::size_t index) {
    const geojson::GeoFeature& feature = view.geoData->features[index];
    if (view.mapType == MapType::kRegion) return std::string(regionName(feature));
    std::string name(text(feature, "provincia"));
    if (const std::string_view code = text(feature, "sigla"); !code.empty()) {
        name += fmt::format(" ({})", code);
    }
    if (view.mapType == MapType::kProvince) return name;
    const auto yield = view.windYield(index);
    if (!yield) return name + "\nVento medio non disponibile";
    return fmt::format("{}\nVento medio fino a {} km/h a 10 m", name,
                       base::italianDecimal(std::max(0.0, engine::meanSpeed(*yield)), 1));
}

void drawFeatures(const MapView& view, Canvas& canvas, const MapScene& scene) {
    std::optional<std::size_t> styled;
    FeatureStyle style = kNormalRegion;
    for (const MapScene::Outline& outline : scene.outlines) {
        if (styled != outline.feature) style = styleOf(view, outline.feature);
        styled = outline.feature;
        canvas.fillPath(outline.path, style.fill);
        canvas.strokePath(outline.path, {style.stroke, style.strokeWidth});
    }
}

void drawTarget(const MapView& view, Canvas& canvas, const MapScene& scene) {
    const auto place = view.target();
    if (!place) return;
    const graphics::Point center = scene.projection.project(place->lon, place->lat);
    canvas.fillCircle(center, kTargetRadius, graphics::kRed);
    canvas.strokeCircle(center, kTargetRadius, {graphics::kWhite, kTargetRimWidth});
    canvas.fillCircle(center, kTargetHeartRadius, graphics::kWhite);
}

}  // namespace

std::optional<engine::LatLon> MapContent::target() const {
    if (!targetLat || !targetLon) return std::nullopt;
    return engine::LatLon{*targetLat, *targetLon};
}

void MapView::draw(Canvas& canvas, Size size) const {
    draw(canvas, size, MapScene::make(geoData.value_or(geojson::GeoMapData{}), size));
}

void MapView::draw(Canvas& canvas, Size size, const MapScene& scene) const {
    canvas.fillRect({0, 0, size.width, size.height}, kBackground);
    const graphics::Point center{size.width / 2, size.height / 2};
    if (!geoData) {
        canvas.drawText(kWaitingText, center, kWaitingStyle);
        return;
    }
    canvas.save();
    applyGestures(canvas, size);
    drawFeatures(*this, canvas, scene);
    drawTarget(*this, canvas, scene);
    canvas.restore();
}

void MapView::applyGestures(Canvas& canvas, Size size) const {
    const graphics::Point center{size.width / 2, size.height / 2};
    canvas.translate(center.x + gestures.offset.width, center.y + gestures.offset.height);
    canvas.scale(gestures.scale);
    canvas.translate(-center.x, -center.y);
}

bool MapView::isOnMap(graphics::Point point, Size size) const {
    return geoData && !(hasLegend() && contains(windLegendCard(size), point));
}

std::optional<std::size_t> MapView::featureAt(graphics::Point point,
                                              Size size,
                                              const MapScene& scene) const {
    if (!isOnMap(point, size)) return std::nullopt;
    return scene.featureAt(viewToMap(gestures, point, size));
}

void MapView::drawOutlined(Canvas& canvas,
                           Size size,
                           const MapScene& scene,
                           std::size_t feature) const {
    constexpr double kWidth = 3.6;      // points, of which the inner half is covered again
    constexpr double kHaloWidth = 6.4;  // points
    const auto forEachOutline = [&](const auto& paint) {
        for (const MapScene::Outline& outline : scene.outlines) {
            if (outline.feature == feature) paint(outline.path);
        }
    };
    const auto stroke = [&](double width, const Color& color) {
        forEachOutline([&](const graphics::Path& path) {
            canvas.strokePath(path,
                              {color, width / gestures.scale, {}, graphics::LineJoin::kRound});
        });
    };
    canvas.save();
    applyGestures(canvas, size);
    stroke(kHaloWidth, graphics::kWhite.withOpacity(0.9));
    stroke(kWidth, kHoverOutline);
    const Color fill = styleOf(*this, feature).fill;
    forEachOutline([&](const graphics::Path& path) { canvas.fillPath(path, fill); });
    drawTarget(*this, canvas, scene);
    canvas.restore();
}

std::optional<double> MapView::windYield(std::size_t feature) const {
    const std::string_view code = text(geoData->features[feature], "sigla");
    const auto found = provinceWindMap.find(base::uppercased(code));
    if (found == provinceWindMap.end()) return std::nullopt;
    return found->second;
}

std::string MapView::toolTip(graphics::Point point, Size size, const MapScene& scene) const {
    const auto place = target();
    if (isOnMap(point, size) && place && targetName) {
        const graphics::Point marker = scene.projection.project(place->lon, place->lat);
        const graphics::Point at = viewToMap(gestures, point, size);
        if (std::hypot(at.x - marker.x, at.y - marker.y) <= kTargetRadius) return *targetName;
    }
    const auto feature = featureAt(point, size, scene);
    return feature ? featureText(*this, *feature) : std::string();
}

std::string MapView::summary() const {
    if (!geoData) return std::string(kWaitingText);
    const std::string_view kind = mapType == MapType::kRegion ? "Regioni" : "Province";
    std::string text = fmt::format("{}: {}.", kind, geoData->features.size());
    if (const auto place = target()) {
        text += fmt::format(" Luogo segnato: {}.", coordinateText(*place));
    }
    if (mapType == MapType::kWind) {
        text +=
            " Colori: vento medio annuo a 10 m, da 8 km/h o meno (azzurro) a 20 km/h o più "
            "(rosso).";
    }
    return text;
}

graphics::Color mapBackgroundColor() { return kBackground; }

}  // namespace kalvo::geo
