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
/// or the provinces colored by their mean wind.
enum class MapType { kRegion, kProvince, kWind };

/// What a picture of a map shows, apart from zoom and pan. Names and codes are compared without
/// regard to letter case.
struct MapContent {
    MapType mapType;
    std::optional<geojson::GeoMapData> geoData;  // nothing while it is not loaded
    std::optional<std::string> selectedRegion;
    std::optional<std::string> selectedProvince;  // a province code
    /// Province code in upper case to the largest yield of its places, in kWh per year on the
    /// catalogue's scale; for the wind map.
    std::unordered_map<std::string, double> provinceWindMap;
    std::optional<double> targetLat;  // degrees, of the place to mark
    std::optional<double> targetLon;
    std::optional<std::string> targetName;  // what the marker's tooltip says

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

    /// Returns the feature to outline while the pointer is at a point of the view: an index into
    /// `geoData`'s; none under the legend.
    [[nodiscard]] std::optional<std::size_t> featureAt(graphics::Point point,
                                                       graphics::Size size,
                                                       const MapScene& scene) const;

    /// Outlines a feature over the finished picture, whatever the zoom: the line lies outside, so
    /// that a small province keeps its color, and under the marker.
    void drawOutlined(graphics::Canvas& canvas,
                      graphics::Size size,
                      const MapScene& scene,
                      std::size_t feature) const;

    /// Tells whether the map comes with the key to its colors (geo/wind_legend.h).
    [[nodiscard]] bool hasLegend() const { return mapType == MapType::kWind && geoData; }

    /// Returns the yield of a feature's province in kWh per year on the catalogue's scale, if it
    /// is known.
    [[nodiscard]] std::optional<double> windYield(std::size_t feature) const;

    /// Returns what a tooltip says at a point of the view: the marked place, or the feature's name,
    /// on the wind map with its mean wind on a second line. Empty where there is nothing to say.
    [[nodiscard]] std::string toolTip(graphics::Point point,
                                      graphics::Size size,
                                      const MapScene& scene) const;

    /// Says in a sentence or two what the picture shows, for those who cannot see it.
    [[nodiscard]] std::string summary() const;

 private:
    /// Tells whether a point of the view shows the map, not what lies over it.
    [[nodiscard]] bool isOnMap(graphics::Point point, graphics::Size size) const;
    /// Makes the canvas draw in the coordinates of the unzoomed picture.
    void applyGestures(graphics::Canvas& canvas, graphics::Size size) const;
};

/// Returns the color of the paper that a map is drawn on.
[[nodiscard]] graphics::Color mapBackgroundColor();

}  // namespace kalvo::geo
