#include "geo/map_view.h"

#include <string_view>

#include <fmt/format.h>

#include "base/text.h"
#include "engine/calculation_engine.h"
#include "geo/coordinate_text.h"

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

/// The wind yield of a province in kWh per year, if its code has one.
std::optional<double> windYield(const MapView& view, const geojson::GeoFeature& feature) {
    const auto found = view.provinceWindMap.find(base::uppercased(text(feature, "sigla")));
    if (found == view.provinceWindMap.end()) return std::nullopt;
    return found->second;
}

FeatureStyle styleOf(const MapView& view, const geojson::GeoFeature& feature) {
    switch (view.mapType) {
        case MapType::kRegion:
            return isHighlighted(view, feature) ? kHighlightedRegion : kNormalRegion;
        case MapType::kProvince:
            return isHighlighted(view, feature) ? kHighlightedProvince : kNormalProvince;
        case MapType::kWind:
            break;
    }
    const double yield = windYield(view, feature).value_or(0);
    return {engine::CalculationEngine::getWindColor(yield), kWindProvinceStroke, 1};
}

void drawFeatures(const MapView& view, Canvas& canvas, const MapScene& scene) {
    std::optional<std::size_t> styled;
    FeatureStyle style = kNormalRegion;
    for (const auto& [feature, path] : scene.outlines) {
        if (styled != feature) style = styleOf(view, view.geoData->features[feature]);
        styled = feature;
        canvas.fillPath(path, style.fill);
        canvas.strokePath(path, {style.stroke, style.strokeWidth});
    }
}

void drawTarget(Canvas& canvas, graphics::Point center) {
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
    canvas.translate(center.x + gestures.offset.width, center.y + gestures.offset.height);
    canvas.scale(gestures.scale);
    canvas.translate(-center.x, -center.y);
    drawFeatures(*this, canvas, scene);
    if (const auto place = target()) {
        drawTarget(canvas, scene.projection.project(place->lon, place->lat));
    }
    canvas.restore();
}

std::string MapView::hoverText(const geojson::GeoFeature& feature) const {
    if (mapType == MapType::kRegion) return std::string(regionName(feature));
    std::string name(text(feature, "provincia"));
    if (const std::string_view code = text(feature, "sigla"); !code.empty()) {
        name += fmt::format(" ({})", code);
    }
    if (mapType == MapType::kProvince) return name;
    const auto yield = windYield(*this, feature);
    if (!yield) return name + "\nResa eolica non disponibile";
    return fmt::format("{}\nResa eolica 1 kW: fino a {} kWh/anno", name,
                       engine::CalculationEngine::formatKWh(*yield));
}

std::string MapView::summary() const {
    if (!geoData) return std::string(kWaitingText);
    const std::string_view kind = mapType == MapType::kRegion ? "Regioni" : "Province";
    std::string text = fmt::format("{}: {}.", kind, geoData->features.size());
    if (const auto place = target()) {
        text += fmt::format(" Luogo segnato: {}.", coordinateText(*place));
    }
    return text;
}

graphics::Color mapBackgroundColor() { return kBackground; }

}  // namespace kalvo::geo
