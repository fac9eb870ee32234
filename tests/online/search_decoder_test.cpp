#include "online/search_decoder.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace kalvo::online {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> names(const std::vector<MeteoblueSearchResult>& places) {
    std::vector<std::string> result;
    result.reserve(places.size());
    for (const MeteoblueSearchResult& place : places) result.push_back(place.name);
    return result;
}

MeteoblueSearchResult placeAt(std::string name, double lat, double lon) {
    MeteoblueSearchResult place{};
    place.name = std::move(name);
    place.lat = lat;
    place.lon = lon;
    return place;
}

TEST(SearchDecoder, ReadsEveryFieldOfAPlace) {
    const MeteoblueSearchResult milan{.name = "Milano",
                                      .country = "Italy",
                                      .lat = 45.46427,
                                      .lon = 9.18951,
                                      .slug = "milano_italy_3173435",
                                      .iso2 = "IT",
                                      .label = "Milano (Italy) [lat: 45.46427, lon: 9.18951]"};
    const MeteoblueSearchResult unnamed{.name = "A",
                                        .country = "",
                                        .lat = 45,
                                        .lon = -0.00001,
                                        .slug = "a",
                                        .iso2 = "",
                                        .label = "A () [lat: 45.0, lon: -1e-05]"};
    EXPECT_THAT(decodeSearchResults(R"({"count": 1, "results": [{
                    "name": "Milano", "country": "Italy", "lat": 45.46427, "lon": 9.18951,
                    "url": "milano_italy_3173435", "iso2": "IT", "asl": 122, "tags": ["a"]},
                   {"name": "A", "url": "a", "lat": 45, "lon": -0.00001}]})"),
                ElementsAre(milan, unnamed));
}

TEST(SearchDecoder, LeavesOutPlacesWithoutWhatTheyNeed) {
    EXPECT_THAT(names(decodeSearchResults(R"({"results": [
                    {"name": "first", "url": "a", "lat": 1, "lon": 2},
                    {"name": "beyond the pole", "url": "a", "lat": -90.5, "lon": 2},
                    {"name": "beyond the date line", "url": "a", "lat": 1, "lon": 180.5},
                    {"name": "no address", "lat": 1, "lon": 2},
                    {"name": "text for a latitude", "url": "a", "lat": "1", "lon": 2},
                    {"name": "truth for a longitude", "url": "a", "lat": 1, "lon": true},
                    {"name": null, "url": "a", "lat": 1, "lon": 2},
                    {"name": "last", "url": "a", "lat": -90, "lon": 180, "country": 3, "iso2": []},
                    {}]})")),
                ElementsAre("first", "last"));
}

TEST(SearchDecoder, GivesNoPlacesForOtherAnswers) {
    for (const char* body :
         {"", "<!DOCTYPE html><html></html>", "{}", "[]", R"([{"results": []}])",
          R"({"results": {}})", R"({"results": null})",
          R"({"results": [{"name": "A", "url": "a", "lat": 1, "lon": 2}, 5]})",
          "{\"results\": [{\"name\": \"\xE0\", \"url\": \"a\", \"lat\": 1, \"lon\": 2}]}"}) {
        EXPECT_THAT(decodeSearchResults(body), IsEmpty()) << body;
    }
}

TEST(SortByDistance, PutsTheNearestFirstAndKeepsTheOrderOfEquals) {
    // On plain degrees: a meridian's convergence or the date line would put the last one second.
    std::vector places{placeAt("across the date line", 80.0, -179.0),
                       placeAt("1.5 east", 80.0, 180.5), placeAt("1 north", 81.0, 179.0),
                       placeAt("1 south", 79.0, 179.0), placeAt("here", 80.0, 179.0)};
    sortByDistance(places, 80.0, 179.0);
    EXPECT_THAT(names(places),
                ElementsAre("here", "1 north", "1 south", "1.5 east", "across the date line"));
}

TEST(MeteoblueSearchResult, HashesAndComparesByEveryField) {
    const std::hash<MeteoblueSearchResult> hash;
    const MeteoblueSearchResult place = placeAt("Null Island", 0.0, 0.0);
    EXPECT_EQ(place, placeAt("Null Island", -0.0, -0.0));
    EXPECT_EQ(hash(place), hash(placeAt("Null Island", -0.0, -0.0)));
    std::vector<MeteoblueSearchResult> others(2, place);
    others[0].lat = 1;
    others[1].lon = 1;
    using Result = MeteoblueSearchResult;
    for (std::string Result::*text :
         {&Result::name, &Result::country, &Result::slug, &Result::iso2, &Result::label}) {
        others.emplace_back(place).*text = "x";
    }
    for (const MeteoblueSearchResult& other : others) {
        EXPECT_NE(other, place);
        EXPECT_NE(hash(other), hash(place));
    }
}

}  // namespace
}  // namespace kalvo::online
