#include "geojson/geojson.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/json.h"
#include "base/numbers.h"

namespace kalvo::geojson {

namespace {

using base::Failure;
using simdjson::dom::array;
using simdjson::dom::element;
using simdjson::dom::object;

Failure failure(std::string message) { return Failure({"GeoJSON", 0, std::move(message)}); }

/// Returns the value of a required key, as a `T`.
template <class T>
base::Result<T> required(const object& owner, std::string_view key, std::string_view typeName) {
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

/// Returns the number of elements; the parser's own count stops at 24 bits.
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
    base::Result<CoordinateList> read(const array& coordinates) {
        // A value takes no more words of the pool than it has slots on the parser's tape.
        words_.resize(std::max(words_.size(), coordinates.number_of_slots()));
        used_ = 1;
        enclosing_.clear();
        Open open = append(coordinates, 0);
        while (true) {
            if (open.next == open.end) {
                if (enclosing_.empty()) break;
                open = enclosing_.back();
                enclosing_.pop_back();
                continue;
            }
            if (array values; (*open.next).get(values) == simdjson::SUCCESS) {
                Open inner = append(values, open.slot++);
                ++open.next;
                takeNumbers(inner);
                if (inner.next != inner.end) {
                    enclosing_.push_back(open);
                    open = inner;
                }
            } else if (!takeNumbers(open)) {
                return failure("Invalid geometry element");
            }
        }
        const auto begin = words_.begin();
        return CoordinateList(std::vector(begin, begin + static_cast<std::ptrdiff_t>(used_)));
    }

 private:
    using Word = CoordinateList::Word;

    /// An array whose elements are still being read, and the word that takes the next of them.
    struct Open {
        array::iterator next;
        array::iterator end;
        std::size_t slot;
    };

    /// Reserves the words for the elements of an array that goes into a slot.
    Open append(const array& values, std::size_t slot) {
        const std::size_t size = exactSize(values);
        if (size >= AnyCodable::kLargeSize) words_[used_++] = size;
        const std::size_t first = used_;
        words_[slot] = AnyCodable::arrayWord(first, size);
        used_ += size;
        return {values.begin(), values.end(), first};
    }

    /// Takes the numbers that come next in an array and says whether there were any.
    bool takeNumbers(Open& open) {
        const std::size_t before = open.slot;
        for (; open.next != open.end; ++open.next) {
            double number = 0;
            if ((*open.next).get(number) != simdjson::SUCCESS) break;
            words_[open.slot++] = AnyCodable::numberWord(number);
        }
        return open.slot != before;
    }

    std::vector<Word> words_;
    std::size_t used_ = 0;
    std::vector<Open> enclosing_;
};

StringAnyDecodable propertyValue(const element& value) {
    if (std::string_view text; value.get(text) == simdjson::SUCCESS) return {std::string(text)};
    if (double number = 0; value.get(number) == simdjson::SUCCESS) {
        return {base::shortestDecimal(number)};
    }
    return {};
}

base::Result<GeoFeature> readFeature(const element& value, CoordinateReader& coordinates) {
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

base::Result<GeoMapData> readCollection(const element& root) {
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

base::Result<GeoMapData> decodeGeoJSON(const std::string& text) {
    const auto document = base::JsonDocument::parse(text, base::JsonDocument::Nesting::kAny);
    if (!document) return Failure(document.error());
    return readCollection(document->root());
}

}  // namespace kalvo::geojson
