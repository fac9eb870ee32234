#include "geo/geojson.h"

#include <gtest/gtest.h>

#include "platform/bundle.h"

namespace kalvo::geo {
namespace {

std::string featureWith(std::string_view properties, std::string_view coordinates) {
    return std::string(R"({"type":"FeatureCollection","features":[{"properties":)")
        .append(properties)
        .append(R"(,"geometry":{"type":"Polygon","coordinates":)")
        .append(coordinates)
        .append("}}]}");
}

TEST(GeoJSON, PropertyValuesOfEveryTypeBecomeTexts) {
    struct Case {
        const char* json;
        const char* text;
    };
    for (const auto& [json, text] :
         std::vector<Case>{{R"("Lazio")", "Lazio"},
                           {R"("\"\u00e8\n")", "\"è\n"},
                           {"12", "12.0"},
                           {"-7", "-7.0"},
                           {"0.5", "0.5"},
                           {"1e21", "1e+21"},
                           {"18446744073709551615", "1.8446744073709552e+19"},
                           {"true", ""},
                           {"false", ""},
                           {"null", ""},
                           {R"({"a":"b"})", ""},
                           {R"(["a"])", ""}}) {
        const auto map =
            decodeGeoJSON(featureWith(std::string(R"({"k":)").append(json) + "}", "[]"));
        ASSERT_TRUE(map) << json << ": " << map.error().message;
        EXPECT_EQ(map->features[0].properties.at("k").value, text) << json;
    }
}

TEST(GeoJSON, CoordinatesKeepTheirNesting) {
    const auto map =
        decodeGeoJSON(featureWith("{}", "[[[12.5,41.9],[13,-42,100]],[],7,[[[[1]]]]]"));
    ASSERT_TRUE(map) << map.error().message;
    const CoordinateList& list = map->features[0].geometry.coordinates;
    ASSERT_EQ(list.size(), 4u);
    EXPECT_EQ(list[0][0][0].number(), 12.5);
    EXPECT_EQ(list[0][1].size(), 3u);
    EXPECT_EQ(list[0][1][1].number(), -42);
    EXPECT_TRUE(list[1].isArray());
    EXPECT_TRUE(list[1].empty());
    EXPECT_TRUE(list[2].isNumber());
    EXPECT_EQ(list[3][0][0][0].front().number(), 1);
}

}  // namespace
}  // namespace kalvo::geo
