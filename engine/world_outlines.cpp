#include <string>

#include "engine/location_parser.h"

namespace kalvo::engine {

namespace {

using geojson::AnyCodable;

/// A ring of n positions, n at least this, keeps every (n / kThinningTarget)th of them.
constexpr std::size_t kThinningTarget = 40;

std::string withoutJsonEndings(std::string_view name) {
    constexpr std::string_view kEnding = ".json";
    std::string stem(name);
    for (std::size_t at = stem.find(kEnding); at != std::string::npos;
         at = stem.find(kEnding, at)) {
        stem.erase(at, kEnding.size());
    }
    return stem;
}

bool isRing(AnyCodable value) {
    const AnyCodable first = value.front();
    return !first.empty() && first.front().isNumber();
}

CountryRing positions(AnyCodable ring) {
    CountryRing pairs;
    pairs.reserve(ring.size());
    for (const AnyCodable member : ring) {
        if (member.isPosition()) pairs.push_back({member[1].number(), member[0].number()});
    }
    return pairs;
}

CountryRing thinned(const CountryRing& ring) {
    const std::size_t step = ring.size() < kThinningTarget ? 1 : ring.size() / kThinningTarget;
    CountryRing kept;
    for (std::size_t at = 0; at < ring.size(); at += step) kept.push_back(ring[at]);
    if (kept.back() != ring.back()) kept.push_back(ring.back());
    return kept;
}

std::vector<CountryRing> thinnedRings(const geojson::GeoMapData& map) {
    std::vector<CountryRing> rings;
    for (const geojson::GeoFeature& feature : map.features) {
        geojson::traverse(feature.geometry.coordinates, [&](AnyCodable value) {
            if (value.empty() || !value.front().isArray()) return false;
            if (!isRing(value)) return true;
            if (const CountryRing ring = positions(value); ring.size() >= 3) {
                rings.push_back(thinned(ring));
            }
            return false;
        });
    }
    return rings;
}

}  // namespace

std::optional<geojson::GeoMapData> LocationParser::loadGeoJSON(std::string_view name) const {
    const auto path = bundle_.path(withoutJsonEndings(name), "json");
    if (!path) return std::nullopt;
    const auto map = readText(*path).and_then(geojson::decodeGeoJSON);
    if (!map) {
        diagnostics_.print("Error parsing GeoJSON " + std::string(name) + ": " +
                           map.error().description());
        return std::nullopt;
    }
    return *map;
}

const std::vector<CountryRing>& LocationParser::loadWorldCountryRings() {
    if (worldRings_) return *worldRings_;
    const auto map = loadGeoJSON("world_countries.json");
    if (!map) {
        static const std::vector<CountryRing> none;
        return none;
    }
    return worldRings_.emplace(thinnedRings(*map));
}

}  // namespace kalvo::engine
