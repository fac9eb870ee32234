#include "geojson/geojson.h"

#include <gtest/gtest.h>

#include "tests/geojson/geojson_texts.h"
#include "tests/support/transcript.h"

namespace kalvo::geojson {
namespace {

using tests::collectionText;
using tests::featureText;
using tests::outlineText;

std::string nested(std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); }

/// The document that a question names by its part: a "property", "coordinates", a "feature".
std::string documentOf(const std::string& question) {
    const std::size_t blank = question.find(' ');
    const std::string kind = question.substr(0, blank);
    if (kind == "property") {
        return collectionText({featureText(R"({"k":)" + question.substr(blank) + "}", "[]")});
    }
    if (kind == "coordinates") return outlineText(question.substr(blank));
    if (kind == "feature") return R"({"features":[{)" + question.substr(blank) + "}]}";
    return question;
}

TEST(GeoJSONTest, ReadsWhatIsSoundAndRefusesTheRest) {
    tests::expectTranscript("geojson/transcripts/documents.txt", [](const std::string& question) {
        const auto map = decodeGeoJSON(documentOf(question));
        if (!map) return "refused: " + map.error().message;
        const std::string written = encodeGeoJSON(*map);
        EXPECT_EQ(decodeGeoJSON(written).value(), *map) << written;
        return written;
    });
    EXPECT_FALSE(decodeGeoJSON(""));
    EXPECT_FALSE(decodeGeoJSON(collectionText({featureText("{\"k\":\"\xFF\"}", "[]")})));
}

TEST(GeoJSONTest, KeepsAnIntegerBeyondTheDoublesAsItsText) {
    for (const std::string& huge : {"1" + std::string(400, '0'), "-1" + std::string(400, '0')}) {
        const auto map = decodeGeoJSON(documentOf("property " + huge));
        EXPECT_EQ(map.value().features[0].properties.at("k").value, huge);
    }
}

TEST(GeoJSONTest, ArraysOfAnySizeDecode) {
    // Around the size from which on an array keeps its size apart.
    for (const std::size_t size : {524'286U, 524'287U, 524'288U}) {
        std::string numbers = "0";
        for (std::size_t i = 1; i < size; ++i) numbers += i % 2 == 0 ? ",0" : ",1";
        const auto map = decodeGeoJSON(outlineText("[[" + numbers + "],[7,8]]"));
        ASSERT_TRUE(map) << map.error().message;
        const CoordinateList& list = map->features[0].geometry.coordinates;
        ASSERT_EQ(list.size(), 2u);
        ASSERT_EQ(list[0].size(), size);
        EXPECT_EQ(list[0][1].number(), 1);
        EXPECT_EQ(list[0][size - 1].number(), size % 2 == 0 ? 1 : 0);
        EXPECT_EQ(std::distance(list[0].begin(), list[0].end()), static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ(list[1][1].number(), 8);
    }
}

TEST(GeoJSONTest, DecodesTraversesAndWritesAnyDepth) {
    constexpr std::size_t kDepth = 100'000;
    const auto map = decodeGeoJSON(
        collectionText({featureText(R"({"k":)" + nested(kDepth) + "}", nested(kDepth))}));
    ASSERT_TRUE(map) << map.error().message;
    std::size_t arrays = 1;
    traverse(map->features[0].geometry.coordinates, [&](AnyCodable) { return ++arrays > 0; });
    EXPECT_EQ(arrays, kDepth);
    EXPECT_NE(encodeGeoJSON(*map).find(nested(kDepth)), std::string::npos);
    EXPECT_FALSE(decodeGeoJSON(R"({"features":)" + std::string(kDepth, '[')));
}

TEST(GeoJSONTest, TraversesInOrderAndLeavesOutWhatIsDeclined) {
    const auto map = decodeGeoJSON(outlineText("[1,[2,[3,4]],[],[[5],6]]"));
    ASSERT_TRUE(map);
    std::vector<double> seen;
    traverse(map->features[0].geometry.coordinates, [&](AnyCodable value) {
        if (value.isNumber()) seen.push_back(value.number());
        return value.size() < 2 || value.front().isArray();
    });
    EXPECT_EQ(seen, (std::vector<double>{1, 5, 6}));
}

TEST(GeoJSONTest, MapsAreValuesThatShareTheirFeatures) {
    const GeoMapData map = decodeGeoJSON(outlineText("[[1,2]]")).value();
    EXPECT_EQ(map, decodeGeoJSON(outlineText(" [ [1.0, 2] ] ")).value());
    for (const char* other : {"[[1,3]]", "[1,2]"}) {
        EXPECT_NE(map, decodeGeoJSON(outlineText(other)).value());
    }
    EXPECT_NE(map, GeoMapData{});
    EXPECT_EQ(GeoMapData(map).features.begin(), map.features.begin());
}

}  // namespace
}  // namespace kalvo::geojson
