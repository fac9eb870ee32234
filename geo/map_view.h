#pragma once

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>

#include "engine/country_ring.h"
#include "geo/map_gestures.h"
#include "geo/map_scene.h"
#include "geojson/geojson.h"
#include "graphics/canvas.h"

namespace kalvo::geo {

/// What a map shows: the regions or the provinces of a country with the selected one highlighted,
/// or the provinces colored by their wind yield.
enum class MapType { kRegion, kProvince, kWind };

/// What a picture of a map shows, apart from zoom and pan. Names and codes are compared without
/// regard to letter case.
struct MapContent {
    MapType mapType;
    std::optional<geojson::GeoMapData> geoData;  // nothing while it is not loaded
    std::optional<std::string> selectedRegion;
    std::optional<std::string> selectedProvince;  // a province code
    /// Province code in upper case to its yield in kWh per year; for the wind map.
    std::unordered_map<std::string, double> provinceWindMap;
    std::optional<double> targetLat;  // degrees, of the place to mark
    std::optional<double> targetLon;

    /// Returns the place to mark, if it has both coordinates.
    [[nodiscard]] std::optional<engine::LatLon> target() const;

    friend bool operator==(const MapContent&, const MapContent&) = default;
};

/// A flat map of a country with its zoom and pan.
struct MapView : MapContent {
    /// Taps on a flat map select nothing yet: nobody calls this.
    std::function<void(engine::LatLon)> onSelectLocation;

    MapGestures gestures{};

    /// Fills the whole area, and draws the map on it with zoom and pan applied.
    void draw(graphics::Canvas& canvas, graphics::Size size) const;
    /// The same with the outlines laid out before: `scene` is made of `geoData` for this size.
    void draw(graphics::Canvas& canvas, graphics::Size size, const MapScene& scene) const;

    /// Describes a feature under the pointer: its name, and on the wind map its yield on a second
    /// line. Empty when it has no name.
    [[nodiscard]] std::string hoverText(const geojson::GeoFeature& feature) const;

    /// Says in a sentence or two what the picture shows, for those who cannot see it.
    [[nodiscard]] std::string summary() const;
};

/// Returns the color of the paper that a map is drawn on.
[[nodiscard]] graphics::Color mapBackgroundColor();

}  // namespace kalvo::geo
