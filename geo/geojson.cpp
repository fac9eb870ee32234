#include "geo/geojson.h"

#include <fmt/format.h>
#include <simdjson.h>

#include "platform/numbers.h"

namespace kalvo::geo {

namespace {

using platform::Failure;
using simdjson::dom::array;
using simdjson::dom::element;
using simdjson::dom::element_type;
using simdjson::dom::object;

Failure failure(std::string message) { return Failure({"GeoJSON", 0, std::move(message)}); }

Failure failure(simdjson::error_code code) {
    return Failure({"JSON", code, simdjson::error_message(code)});
}

/// The value of a required key, as a `T`.
template <class T>
platform::Result<T> required(const object& owner, std::string_view key, std::string_view typeName) {
    element value;
    if (owner.at_key(key).get(value) != simdjson::SUCCESS) {
        return failure(fmt::format("\"{}\" is missing", key));
    }
    T typed;
    if (value.get(typed) != simdjson::SUCCESS) {
        return failure(fmt::format("\"{}\" is not {}", key, typeName));
    }
    return typed;
}

/// The number of elements; the parser's own count stops at 24 bits.
std::size_t exactSize(const array& values) {
    const std::size_t size = values.size();
    if (size < 0xFF'FFFF) return size;
    std::size_t counted = 0;
    for (auto at = values.begin(); at != values.end(); ++at) ++counted;
    return counted;
}

/// Lays coordinates out as the pool of a `CoordinateList`. Kept from feature to feature, so that
/// only the finished pools are allocated, each in its exact size.
class CoordinateReader {
 public:
    platform::Result<CoordinateList> read(const array& coordinates) {
        words_.clear();
        open_.clear();
        append(coordinates);
        while (!open_.empty()) {
            Open& innermost = open_.back();
            if (innermost.next == innermost.end) {
                open_.pop_back();
                continue;
            }
            const element value = *innermost.next;
            ++innermost.next;
            const std::size_t slot = innermost.slot++;
            if (value.is_array()) {
                words_[slot] = CoordinateList::arrayWord(words_.size());
                append(array(value.get_array().value_unsafe()));
            } else if (double number = 0; value.get(number) == simdjson::SUCCESS) {
                words_[slot] = CoordinateList::numberWord(number);
            } else {
                return failure("Invalid geometry element");
            }
        }
        return CoordinateList(std::vector(words_.begin(), words_.end()));
    }

 private:
    /// An array whose elements are still being read, and the word that takes the next of them.
    struct Open {
        array::iterator next;
        array::iterator end;
        std::size_t slot;
    };

    void append(const array& values) {
        const std::size_t size = exactSize(values);
        const std::size_t header = words_.size();
        words_.resize(header + 1 + size);
        words_[header] = size;
        open_.push_back({values.begin(), values.end(), header + 1});
    }

    std::vector<CoordinateList::Word> words_;
    std::vector<Open> open_;
};

StringAnyDecodable propertyValue(const element& value) {
    if (std::string_view text; value.get(text) == simdjson::SUCCESS) return {std::string(text)};
    if (double number = 0; value.get(number) == simdjson::SUCCESS) {
        return {platform::shortestDecimal(number)};
    }
    return {};
}

platform::Result<GeoFeature> readFeature(const element& value, CoordinateReader& coordinates) {
    object fields;
    if (value.get(fields) != simdjson::SUCCESS) return failure("it is not an object");
    const auto properties = required<object>(fields, "properties", "an object");
    if (!properties) return Failure(properties.error());
    const auto geometry = required<object>(fields, "geometry", "an object");
    if (!geometry) return Failure(geometry.error());
    const auto type = required<std::string_view>(*geometry, "type", "a string");
    if (!type) return Failure(type.error());
    const auto shape = required<array>(*geometry, "coordinates", "an array");
    if (!shape) return Failure(shape.error());
    auto list = coordinates.read(*shape);
    if (!list) return Failure(list.error());

    GeoFeature feature{{}, {std::string(*type), std::move(*list)}};
    feature.properties.reserve(properties->size());
    for (const auto& [key, property] : *properties) {
        feature.properties.emplace(std::string(key), propertyValue(property));
    }
    return feature;
}

platform::Result<GeoMapData> readCollection(const element& root) {
    object fields;
    if (root.get(fields) != simdjson::SUCCESS) return failure("The text is not a JSON object");
    const auto list = required<array>(fields, "features", "an array");
    if (!list) return Failure(list.error());
    std::vector<GeoFeature> features;
    features.reserve(list->size());
    CoordinateReader coordinates;
    for (const element value : *list) {
        auto feature = readFeature(value, coordinates);
        if (!feature) {
            return failure(
                fmt::format("Feature {}: {}", features.size() + 1, feature.error().message));
        }
        features.push_back(std::move(*feature));
    }
    return GeoMapData{FeatureList(std::move(features))};
}

}  // namespace

const std::string* GeoFeature::property(std::string_view key) const {
    const auto found = properties.find(key);
    return found == properties.end() ? nullptr : &found->second.value;
}

platform::Result<GeoMapData> decodeGeoJSON(std::string_view text) {
    simdjson::dom::parser parser;
    // No text nests deeper than this; the memory is touched only as far as one does.
    const std::size_t maxDepth = text.size() / 2 + 2;
    if (const auto error = parser.allocate(text.size(), maxDepth)) return failure(error);
    element root;
    if (const auto error = parser.parse(text.data(), text.size()).get(root)) return failure(error);
    return readCollection(root);
}

}  // namespace kalvo::geo
