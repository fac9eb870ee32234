#pragma once

#include <string>
#include <vector>

#include <fmt/format.h>

#include "geojson/geojson.h"

/// GeoJSON texts for tests, made of the parts that matter to each.
namespace kalvo::tests {

[[nodiscard]] inline std::string featureText(const std::string& properties,
                                             const std::string& coordinates) {
    return fmt::format(R"({{"properties":{},"geometry":{{"type":"Polygon","coordinates":{}}}}})",
                       properties, coordinates);
}

[[nodiscard]] inline std::string collectionText(const std::vector<std::string>& features) {
    return fmt::format(R"({{"type":"FeatureCollection","features":[{}]}})",
                       fmt::join(features, ","));
}

/// A collection of one feature without properties.
[[nodiscard]] inline std::string outlineText(const std::string& coordinates) {
    return collectionText({featureText("{}", coordinates)});
}

/// The decoded collection of these features; throws when they are no GeoJSON.
[[nodiscard]] inline geojson::GeoMapData mapOf(const std::vector<std::string>& features) {
    return geojson::decodeGeoJSON(collectionText(features)).value();
}

}  // namespace kalvo::tests
