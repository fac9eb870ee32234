#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <boost/container/flat_map.hpp>

#include "base/result.h"
#include "geojson/any_codable.h"

namespace kalvo::geojson {

/// A property value of any JSON type, as a text: a string unchanged, a number as its shortest
/// decimal text with a fraction or an exponent (12 is "12.0"), anything else empty.
struct StringAnyDecodable {
    std::string value;
    friend bool operator==(const StringAnyDecodable&, const StringAnyDecodable&) = default;
};

/// The shape of a feature. Nothing branches on `type`: the nesting of the coordinates says what
/// they are.
struct GeoGeometry {
    std::string type;
    CoordinateList coordinates;  // positions are arrays of degrees, longitude first
    friend bool operator==(const GeoGeometry&, const GeoGeometry&) = default;
};

struct GeoFeature {
    boost::container::flat_map<std::string, StringAnyDecodable, std::less<>> properties;
    GeoGeometry geometry;

    /// Returns the text of a property, or null when the feature has none of this name.
    [[nodiscard]] const std::string* property(std::string_view key) const;

    friend bool operator==(const GeoFeature&, const GeoFeature&) = default;
};

/// An unchangeable list of features whose copies share it, so that a map of megabytes is handed
/// to a view, and compared with what the view already shows, for nothing.
class FeatureList {
 public:
    FeatureList() = default;
    explicit FeatureList(std::vector<GeoFeature> features)
        : features_(std::make_shared<const std::vector<GeoFeature>>(std::move(features))) {}

    [[nodiscard]] std::size_t size() const { return features_ ? features_->size() : 0; }
    [[nodiscard]] bool empty() const { return size() == 0; }
    [[nodiscard]] const GeoFeature& operator[](std::size_t index) const {
        return (*features_)[index];
    }
    [[nodiscard]] const GeoFeature* begin() const {
        return features_ ? features_->data() : nullptr;
    }
    [[nodiscard]] const GeoFeature* end() const { return begin() + size(); }

    friend bool operator==(const FeatureList& a, const FeatureList& b) {
        return a.features_ == b.features_ || std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

 private:
    std::shared_ptr<const std::vector<GeoFeature>> features_;
};

/// A decoded feature collection.
struct GeoMapData {
    FeatureList features;
    friend bool operator==(const GeoMapData&, const GeoMapData&) = default;
};

/// Reads a GeoJSON feature collection. The model is loose about the values of properties and
/// about keys it does not know, and strict about everything else: an object without a required
/// key, or anything but numbers and arrays inside "coordinates" ("Invalid geometry element"),
/// fails the whole text.
[[nodiscard]] base::Result<GeoMapData> decodeGeoJSON(const std::string& text);

/// Writes a feature collection back as JSON of the same shape; property values are strings.
[[nodiscard]] std::string encodeGeoJSON(const GeoMapData& map);

}  // namespace kalvo::geojson
