#include "online/search_decoder.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "base/numbers.h"
#include "online/json_document.h"

namespace kalvo::online {

namespace {

std::optional<MeteoblueSearchResult> decodePlace(simdjson::dom::object place) {
    const auto name = textMember(place, "name");
    const auto lat = numberMember(place, "lat");
    const auto lon = numberMember(place, "lon");
    const auto slug = textMember(place, "url");
    if (!name || !lat || !lon || !slug) return std::nullopt;
    if (std::abs(*lat) > 90 || std::abs(*lon) > 180) return std::nullopt;

    MeteoblueSearchResult result{.name = std::string(*name),
                                 .country = std::string(textMember(place, "country").value_or("")),
                                 .lat = *lat,
                                 .lon = *lon,
                                 .slug = std::string(*slug),
                                 .iso2 = std::string(textMember(place, "iso2").value_or("")),
                                 .label = {}};
    result.label = result.name + " (" + result.country + ") [lat: " + base::shortestDecimal(*lat) +
                   ", lon: " + base::shortestDecimal(*lon) + "]";
    return result;
}

}  // namespace

std::vector<MeteoblueSearchResult> decodeSearchResults(std::string_view body) {
    std::vector<MeteoblueSearchResult> results;
    const auto answer = JsonDocument::parse(body);
    if (!answer) return results;
    const auto places = objectsMember(answer->root(), "results");
    if (!places) return results;

    results.reserve(places->size());
    for (const simdjson::dom::object place : *places) {
        if (auto result = decodePlace(place)) results.push_back(*std::move(result));
    }
    return results;
}

void sortByDistance(std::vector<MeteoblueSearchResult>& places, double lat, double lon) {
    const auto squaredDistance = [=](const MeteoblueSearchResult& place) {
        return (place.lat - lat) * (place.lat - lat) + (place.lon - lon) * (place.lon - lon);
    };
    std::stable_sort(places.begin(), places.end(), [&](const auto& first, const auto& second) {
        return squaredDistance(first) < squaredDistance(second);
    });
}

}  // namespace kalvo::online
