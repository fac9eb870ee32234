#include "geojson/geojson.h"

#include <gmock/gmock.h>

#include "tests/geojson/geojson_texts.h"

namespace kalvo::geojson {
namespace {

using testing::HasSubstr;

std::string collectionOf(const std::string& properties, const std::string& coordinates) {
    return tests::collectionText({tests::featureText(properties, coordinates)});
}

std::string nested(std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); }

TEST(GeoJSON, PropertyValuesOfEveryTypeBecomeTexts) {
    const std::string hugeInteger = "1" + std::string(400, '0');
    struct Case {
        std::string json;
        std::string text;
    };
    for (const auto& [json, text] : std::vector<Case>{
             {R"("Lazio")", "Lazio"},
             {R"("\"\u00e8\n1e999")", "\"è\n1e999"},
             {"12", "12.0"},
             {"-7", "-7.0"},
             {"0.5", "0.5"},
             {"1e21", "1e+21"},
             {"18446744073709551615", "1.8446744073709552e+19"},
             // Beyond 64 bits, and beyond the doubles: the integer is kept, the rest is lost.
             {"-9223372036854775809", "-9.223372036854776e+18"},
             {"123456789012345678901234567890", "1.2345678901234568e+29"},
             {hugeInteger, hugeInteger},
             {hugeInteger + R"(,"a\\\"1e400":"b")", hugeInteger},
             {"-" + hugeInteger, "-" + hugeInteger},
             {"1e400", ""},
             {"true", ""},
             {"false", ""},
             {"null", ""},
             {R"({"a":"b"})", ""},
             {R"(["a"])", ""},
         }) {
        const auto map = decodeGeoJSON(collectionOf(R"({"k":)" + json + "}", "[]"));
        ASSERT_TRUE(map) << json << ": " << map.error().message;
        EXPECT_EQ(map->features[0].properties.at("k").value, text) << json;
    }
}

TEST(GeoJSON, CoordinatesKeepTheirNesting) {
    const auto map = decodeGeoJSON(
        tests::outlineText("[[[12.5,41.9],[13,-42,100]],[],7,[8,[9],18446744073709551616]]"));
    ASSERT_TRUE(map) << map.error().message;
    EXPECT_EQ(map->features[0].geometry.type, "Polygon");
    const CoordinateList& list = map->features[0].geometry.coordinates;
    ASSERT_EQ(list.size(), 4u);
    EXPECT_EQ(list[0].size(), 2u);
    EXPECT_EQ(list[0][0][0].number(), 12.5);
    EXPECT_EQ(list[0][1].size(), 3u);
    EXPECT_EQ(list[0][1][1].number(), -42);
    EXPECT_TRUE(list[1].isArray());
    EXPECT_TRUE(list[1].empty());
    EXPECT_TRUE(list[2].isNumber());
    EXPECT_EQ(list[3][0].number(), 8);
    EXPECT_EQ(list[3][1].front().number(), 9);
    EXPECT_EQ(list[3][2].number(), 18446744073709551616.0);
}

TEST(GeoJSON, ArraysOfAnySizeDecode) {
    // Around the size from which on an array keeps its size apart.
    for (const std::size_t size : {524'286U, 524'287U, 524'288U}) {
        std::string numbers = "0";
        for (std::size_t i = 1; i < size; ++i) numbers += i % 2 == 0 ? ",0" : ",1";
        const auto map = decodeGeoJSON(tests::outlineText("[[" + numbers + "],[7,8]]"));
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

TEST(GeoJSON, CollectionsWithoutFeaturesAndUnknownKeysDecode) {
    const auto empty = decodeGeoJSON(R"({"features":[],"crs":{"a":[null]},"features2":7})");
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->features.empty());
    EXPECT_EQ(*empty, GeoMapData{});
}

TEST(GeoJSON, AnythingAmissFailsTheWholeText) {
    const std::string good = collectionOf(R"({"sigla":"RM"})", "[[[1,2],[3,4],[5,6]]]");
    ASSERT_TRUE(decodeGeoJSON(good));
    const std::string properties = R"("properties":{})";
    const std::string geometry = R"("geometry":{"type":"Point","coordinates":[]})";
    const auto feature = [](const std::string& fields) {
        return R"({"features":[{)" + fields + "}]}";
    };
    struct Case {
        std::string json;
        std::string message;
    };
    for (const auto& [json, message] : std::vector<Case>{
             {"", "Empty"},
             {good.substr(0, good.size() / 2), "JSON document"},
             {good + "x", "JSON document"},
             {collectionOf("{\"k\":\"\xFF\"}", "[]"), "UTF-8"},
             {"[]", "not a JSON object"},
             {"{}", "\"features\" is missing"},
             {R"({"features":{}})", "\"features\" is not an array"},
             {R"({"features":[null]})", "Feature 1: it is not an object"},
             {feature(geometry), "\"properties\" is missing"},
             {feature(R"("properties":null,)" + geometry), "\"properties\" is not an object"},
             {feature(properties), "\"geometry\" is missing"},
             {feature(properties + R"(,"geometry":null)"), "\"geometry\" is not an object"},
             {feature(properties + R"(,"geometry":{"coordinates":[]})"), "\"type\" is missing"},
             {feature(properties + R"(,"geometry":{"type":3,"coordinates":[]})"),
              "\"type\" is not a string"},
             {feature(properties + R"(,"geometry":{"type":"Point"})"),
              "\"coordinates\" is missing"},
             {feature(properties + R"(,"geometry":{"type":"Point","coordinates":null})"),
              "\"coordinates\" is not an array"},
             {tests::outlineText(R"([[[12.5,"41.9"]]])"), "Invalid geometry element"},
             {tests::outlineText("[[null]]"), "Invalid geometry element"},
             {tests::outlineText("[[[1,2],true]]"), "Invalid geometry element"},
             {tests::outlineText("[{}]"), "Invalid geometry element"},
             {tests::outlineText("[[1e400,2]]"), "Invalid geometry element"},
             {R"({"features":)" + std::string(100'000, '['), "JSON document"},
         }) {
        const auto map = decodeGeoJSON(json);
        ASSERT_FALSE(map) << json.substr(0, 200);
        EXPECT_THAT(map.error().message, HasSubstr(message)) << json.substr(0, 200);
    }
    // Also where a number too large for the JSON library makes it read the text once more.
    for (const char* number :
         {"01", "01e999", "-", "-a", "1.", "1.e5", "1e", "1e+", "1.5.2", "1-", "00e9999"}) {
        for (const char* other : {"2", "1e999"}) {
            EXPECT_FALSE(decodeGeoJSON(tests::outlineText(fmt::format("[[{},{}]]", other, number))))
                << number << " and " << other;
        }
    }
}

TEST(GeoJSON, NestingOfAnyDepthDecodesAndIsWalkedAndWrittenBack) {
    constexpr std::size_t kDepth = 100'000;
    const auto map = decodeGeoJSON(collectionOf(R"({"k":)" + nested(kDepth) + "}", nested(kDepth)));
    ASSERT_TRUE(map) << map.error().message;
    std::size_t arrays = 1;
    traverse(map->features[0].geometry.coordinates, [&](AnyCodable) { return ++arrays > 0; });
    EXPECT_EQ(arrays, kDepth);
    EXPECT_THAT(encodeGeoJSON(*map), HasSubstr(nested(kDepth)));
    EXPECT_EQ(GeoMapData(*map), *map);
}

TEST(GeoJSON, WalkingVisitsInOrderAndLeavesOutWhatIsDeclined) {
    const auto map = decodeGeoJSON(tests::outlineText("[1,[2,[3,4]],[],[[5],6]]"));
    ASSERT_TRUE(map);
    std::vector<double> seen;
    traverse(map->features[0].geometry.coordinates, [&](AnyCodable value) {
        if (value.isNumber()) seen.push_back(value.number());
        return value.size() < 2 || value.front().isArray();
    });
    EXPECT_EQ(seen, (std::vector<double>{1, 5, 6}));
}

TEST(GeoJSON, EncodingKeepsTheShape) {
    const auto map = decodeGeoJSON(R"({"features":[
        {"properties":{"b":12,"a":"\"q\\\u0001"},"geometry":{"type":"T","coordinates":[[1,2.5],[]]}},
        {"properties":{},"geometry":{"coordinates":[1e300],"type":""}}]})");
    ASSERT_TRUE(map) << map.error().message;
    const std::string json = encodeGeoJSON(*map);
    EXPECT_EQ(json, R"({"features":[)"
                    R"({"properties":{"a":"\"q\\\u0001","b":"12.0"},)"
                    R"("geometry":{"type":"T","coordinates":[[1.0,2.5],[]]}},)"
                    R"({"properties":{},"geometry":{"type":"","coordinates":[1e+300]}}]})");
    const auto again = decodeGeoJSON(json);
    ASSERT_TRUE(again);
    EXPECT_EQ(*again, *map);
}

TEST(GeoJSON, MapsAreValues) {
    const auto first = decodeGeoJSON(tests::outlineText("[[1,2]]"));
    const auto same = decodeGeoJSON(tests::outlineText(" [ [1.0, 2] ] "));
    const auto otherNumbers = decodeGeoJSON(tests::outlineText("[[1,3]]"));
    const auto otherNesting = decodeGeoJSON(tests::outlineText("[1,2]"));
    ASSERT_TRUE(first && same && otherNumbers && otherNesting);
    EXPECT_EQ(*first, *same);
    EXPECT_NE(*first, *otherNumbers);
    EXPECT_NE(*first, *otherNesting);
    EXPECT_NE(*first, GeoMapData{});
    const std::vector<GeoMapData> copies{*first};
    EXPECT_EQ(copies.front().features.begin(), first->features.begin())
        << "copies share the features";
}

}  // namespace
}  // namespace kalvo::geojson
