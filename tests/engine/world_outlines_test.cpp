#include <gmock/gmock.h>

#include "engine/location_parser.h"
#include "tests/geojson/geojson_texts.h"
#include "tests/support/recording_diagnostics.h"
#include "tests/support/temporary_folder.h"

namespace kalvo::engine {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::outlineText;

const std::string kBroken = outlineText(R"([[["12.5",41.9]]])");
const std::string kBrokenBecause = "Feature 1: Invalid geometry element";

/// Positions [i, -i] for i from 0 to count - 1.
std::string ringOf(int count) {
    std::vector<std::string> positions;
    positions.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) positions.push_back(fmt::format("[{},{}]", i, -i));
    return fmt::format("[{}]", fmt::join(positions, ","));
}

class OutlineLoading : public testing::Test {
 protected:
    tests::TemporaryFolder folder;
    base::Bundle bundle{folder.path()};
    tests::RecordingDiagnostics diagnostics;
    LocationParser parser{bundle, diagnostics};

    std::vector<CountryRing> worldRings(const std::string& coordinates) {
        folder.write("world_countries.json", outlineText(coordinates));
        return LocationParser(bundle, diagnostics).loadWorldCountryRings();
    }
};

TEST_F(OutlineLoading, TheEndingOfTheNameIsOptional) {
    folder.write("regioni.json", outlineText("[]"));
    folder.write("a.b.json", "\uFEFF" + outlineText("[]"));
    for (const char* name : {"regioni", "regioni.json", "reg.jsonioni.json", "a.b.json"}) {
        EXPECT_TRUE(parser.loadGeoJSON(name)) << name;
    }
    EXPECT_THAT(diagnostics.lines, IsEmpty());
}

TEST_F(OutlineLoading, FailuresAreReportedUnderTheNameAsked) {
    folder.write("broken.json", kBroken);
    std::filesystem::create_directory(folder.path() / "folder.json");
    for (const char* name : {"missing.json", "", ".json", "broken.json", "broken", "folder.json"}) {
        EXPECT_FALSE(parser.loadGeoJSON(name)) << name;
    }
    EXPECT_THAT(diagnostics.lines,
                ElementsAre("Error parsing GeoJSON broken.json: " + kBrokenBecause,
                            "Error parsing GeoJSON broken: " + kBrokenBecause,
                            "Error parsing GeoJSON folder.json: Is a directory"));
}

TEST_F(OutlineLoading, RingsAreThinnedAndKeepTheirLastPosition) {
    struct Case {
        int given;
        std::size_t kept;
        double second;  // longitude of the second position kept
    };
    for (const auto& [given, kept, second] :
         {Case{3, 3, 1}, Case{39, 39, 1}, Case{40, 40, 1}, Case{79, 79, 1}, Case{80, 41, 2},
          Case{81, 41, 2}, Case{100, 51, 2}, Case{120, 41, 3}}) {
        const auto rings = worldRings(fmt::format("[{}]", ringOf(given)));
        ASSERT_EQ(rings.size(), 1u) << given;
        EXPECT_EQ(rings[0].size(), kept) << given;
        EXPECT_EQ(rings[0].front(), (LatLon{0, 0})) << given;
        EXPECT_EQ(rings[0][1], (LatLon{-second, second})) << given;
        EXPECT_EQ(rings[0].back(), (LatLon{1.0 - given, given - 1.0})) << given;
    }
}

TEST_F(OutlineLoading, RingsAreFoundAtAnyDepthInFileOrder) {
    const std::string square = "[[1,2],[3,4],[5,6],[1,2]]";
    const CountryRing ring{{2, 1}, {4, 3}, {6, 5}, {2, 1}};
    const CountryRing last{{0, 0}, {-1, 1}, {-2, 2}};
    // A bare number, an empty array and an array that begins with a number or with an empty
    // array are no rings; the last of these is searched for rings all the same.
    EXPECT_THAT(
        worldRings(fmt::format("[{0},7,[],[7,{0}],[[],{0}],[[[{0}]],{1}]]", square, ringOf(3))),
        ElementsAre(ring, ring, ring, last));
}

TEST_F(OutlineLoading, OtherThanPositionsAreLeftOutOfARing) {
    EXPECT_THAT(worldRings("[[[1,2,9],[3],4,[[5],6],[7,8],[],[-180,-90]],[[1,2],[3,4],[5],6]]"),
                ElementsAre(CountryRing{{2, 1}, {8, 7}, {-90, -180}}));
}

TEST_F(OutlineLoading, WorldRingsAreReadOnceButFailuresAreTriedAgain) {
    EXPECT_THAT(parser.loadWorldCountryRings(), IsEmpty());
    EXPECT_THAT(diagnostics.lines, IsEmpty());
    folder.write("world_countries.json", kBroken);
    EXPECT_THAT(parser.loadWorldCountryRings(), IsEmpty());
    EXPECT_THAT(parser.loadWorldCountryRings(), IsEmpty());
    const std::string line = "Error parsing GeoJSON world_countries.json: " + kBrokenBecause;
    EXPECT_THAT(diagnostics.lines, ElementsAre(line, line));

    // Once read they are remembered, be they none.
    for (const char* coordinates : {"[]", "[[[1,2],[3,4],[5,6]]]"}) {
        LocationParser reader(bundle, diagnostics);
        folder.write("world_countries.json", outlineText(coordinates));
        const std::size_t count = reader.loadWorldCountryRings().size();
        EXPECT_EQ(count, coordinates == std::string("[]") ? 0 : 1);
        folder.write("world_countries.json", kBroken);
        EXPECT_EQ(reader.loadWorldCountryRings().size(), count);
    }
    EXPECT_EQ(diagnostics.lines.size(), 2u);
}

TEST_F(OutlineLoading, TheFilesThatShipLoad) {
    const base::Bundle shipped(KALVO_SOURCE_DIR "/resources");
    LocationParser reader(shipped, diagnostics);
    struct Case {
        const char* name;
        std::size_t features;
    };
    for (const auto& [name, features] :
         {Case{"regioni", 20}, Case{"province", 107}, Case{"san_marino_regioni", 1},
          Case{"san_marino_province", 9}, Case{"vatican_regioni", 1},
          Case{"vatican_province", 1}}) {
        const auto map = reader.loadGeoJSON(name);
        ASSERT_TRUE(map) << name;
        EXPECT_EQ(map->features.size(), features) << name;
    }
    const auto& rings = reader.loadWorldCountryRings();
    EXPECT_EQ(&rings, &reader.loadWorldCountryRings());
    EXPECT_GT(rings.size(), 1000u);
    for (const CountryRing& ring : rings) ASSERT_LE(ring.size(), 80u);
    EXPECT_THAT(diagnostics.lines, IsEmpty());
}

}  // namespace
}  // namespace kalvo::engine
