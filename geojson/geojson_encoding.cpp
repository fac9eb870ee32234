#include <fmt/format.h>

#include "base/numbers.h"
#include "geojson/geojson.h"

namespace kalvo::geojson {

namespace {

void appendString(std::string& json, std::string_view text) {
    json += '"';
    for (const char character : text) {
        if (character == '"' || character == '\\') {
            json += '\\';
            json += character;
        } else if (static_cast<unsigned char>(character) < 0x20) {
            json += fmt::format("\\u{:04x}", static_cast<unsigned>(character));
        } else {
            json += character;
        }
    }
    json += '"';
}

/// Starts the next element of an array or object that was opened with `opening`.
void appendSeparator(std::string& json, char opening) {
    if (json.back() != opening) json += ',';
}

void appendCoordinates(std::string& json, const CoordinateList& coordinates) {
    struct Open {
        AnyCodable::Iterator next;
        AnyCodable::Iterator end;
    };
    json += '[';
    std::vector<Open> open{{coordinates.begin(), coordinates.end()}};
    while (!open.empty()) {
        Open& innermost = open.back();
        if (innermost.next == innermost.end) {
            json += ']';
            open.pop_back();
            continue;
        }
        const AnyCodable value = *innermost.next++;
        appendSeparator(json, '[');
        if (value.isNumber()) {
            json += base::shortestDecimal(value.number());
        } else {
            json += '[';
            open.push_back({value.begin(), value.end()});
        }
    }
}

void appendFeature(std::string& json, const GeoFeature& feature) {
    json += R"({"properties":{)";
    for (const auto& [key, property] : feature.properties) {
        appendSeparator(json, '{');
        appendString(json, key);
        json += ':';
        appendString(json, property.value);
    }
    json += R"(},"geometry":{"type":)";
    appendString(json, feature.geometry.type);
    json += R"(,"coordinates":)";
    appendCoordinates(json, feature.geometry.coordinates);
    json += "}}";
}

}  // namespace

std::string encodeGeoJSON(const GeoMapData& map) {
    std::string json = R"({"features":[)";
    for (const GeoFeature& feature : map.features) {
        appendSeparator(json, '[');
        appendFeature(json, feature);
    }
    return json += "]}";
}

}  // namespace kalvo::geojson
