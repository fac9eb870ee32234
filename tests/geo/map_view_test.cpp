#include "geo/map_view.h"

#include <gmock/gmock.h>

#include "tests/geojson/geojson_texts.h"
#include "tests/support/recording_canvas.h"

namespace kalvo::geo {
namespace {

using graphics::Point;
using graphics::Size;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::featureText;
using tests::mapOf;

MapView viewOf(MapType type, std::optional<geojson::GeoMapData> map) {
    MapView view{};
    view.mapType = type;
    view.geoData = std::move(map);
    return view;
}

std::vector<std::string> drawn(const MapView& view, const std::string& kind = "") {
    return tests::drawn(view, {128, 128}, kind);
}

geojson::GeoMapData outlines(const std::string& coordinates) {
    return mapOf({featureText("{}", coordinates)});
}

// In a view of 128 x 128 the box from 10, 10 to 20, 20 takes 100 points: ten a degree.
const std::string kSquare = "[[10,10],[20,10],[20,20],[10,20]]";

TEST(MapBounds, HoldAllUsablePositions) {
    struct Case {
        const char* coordinates;
        MapBounds bounds;
    };
    for (const auto& [coordinates, bounds] : std::vector<Case>{
             {"[[[10,40],[12,44,900],[11,42]]]", {10, 12, 40, 44}},
             {"[[[[10,40]]],[[[5,60]]]]", {5, 10, 40, 60}},
             // At 1 degree or below in either direction a position does not count.
             {"[[[1,40],[12,1],[-5,-5],[1.001,1.001],[2,3]]]", {1.001, 2, 1.001, 3}},
             // Numbers that are no position, and arrays that begin with no two numbers.
             {"[30,50,[20],[[7,8],9],[[3],[4,5]],[]]", {4, 7, 5, 8}},
             {"[]", kDefaultMapBounds},
             {"[[[-3,40],[-4,41],[-3,42]]]", kDefaultMapBounds},
         }) {
        EXPECT_EQ(calculateBounds(outlines(coordinates).features), bounds) << coordinates;
    }
    EXPECT_EQ(calculateBounds({}), (MapBounds{6.62, 18.51, 35.49, 47.09}));
}

TEST(MapProjection, FitsTheBoxWithAMarginAndCentersIt) {
    struct Case {
        MapBounds bounds;
        Size view;
        Point position;  // longitude and latitude
        Point at;
    };
    // 472 points for 11.6 degrees are 40.69 each; 11.89 of them leave (1000 - 483.8) / 2 to both
    // sides.
    const double side = (1000 - 11.89 * 472 / 11.6) / 2;
    for (const auto& [bounds, view, position, at] :
         {Case{kDefaultMapBounds, {1000, 500}, {6.62, 47.09}, {side, 14}},
          Case{kDefaultMapBounds, {1000, 500}, {18.51, 35.49}, {1000 - side, 486}},
          Case{{10, 20, 10, 15}, {128, 328}, {10, 15}, {14, 139}},
          Case{{10, 20, 10, 15}, {128, 328}, {20, 10}, {114, 189}}}) {
        const Point found = MapProjection(bounds, view).project(position.x, position.y);
        EXPECT_NEAR(found.x, at.x, 1e-9);
        EXPECT_NEAR(found.y, at.y, 1e-9);
    }
}

TEST(MapProjection, BoxesWithoutAnAreaAreFramedAllTheSame) {
    struct Case {
        MapBounds bounds;
        double scale;
    };
    for (const auto& [bounds, scale] : {Case{{12, 12, 42, 42}, 1000},  // a tenth of a degree
                                        Case{{12, 12, 40, 45}, 20}, Case{{10, 20, 42, 42}, 10}}) {
        const MapProjection projection(bounds, {128, 128});
        const double degree = projection.project(1, 0).x - projection.project(0, 0).x;
        EXPECT_NEAR(degree, scale, 1e-6);
        const Point center = projection.project((bounds.minLng + bounds.maxLng) / 2,
                                                (bounds.minLat + bounds.maxLat) / 2);
        EXPECT_NEAR(center.x, 64, 1e-6);
        EXPECT_NEAR(center.y, 64, 1e-6);
    }
    const MapProjection narrow(kDefaultMapBounds, {20, 500});
    EXPECT_EQ(narrow.project(7, 40), narrow.project(18, 40)) << "no mirrored maps";
}

TEST(MapScene, PolygonsAreRingsAtEitherDepth) {
    struct Case {
        const char* element;
        std::vector<std::size_t> points;  // of each polygon
    };
    const MapProjection projection({10, 20, 10, 20}, {128, 128});
    for (const auto& [element, points] : std::vector<Case>{
             {"[[10,10],[20,10],[20,20]]", {3}},
             {"[[[10,10],[20,10],[20,20]],[[12,12],[13,12]]]", {3, 2}},
             {"[[],[[10,10]]]", {1}},
             {"[[[10,10]],[],7,[[0,0]]]", {1}},
             {"[[10,10],[0.5,10],[10,1],[11],3,[[12,12]],[20,20,5]]", {2}},
             {"[[1,1]]", {}},
             {"7", {}},
             {"[]", {}},
             {"[10,[10,10]]", {}},
             {"[[[[10,10],[20,10],[20,20]]]]", {}},
         }) {
        const geojson::GeoMapData map = outlines(fmt::format("[{}]", element));
        std::vector<std::size_t> found;
        for (const graphics::Path& polygon :
             extractPolygons(map.features[0].geometry.coordinates[0], projection)) {
            ASSERT_EQ(polygon.polylines.size(), 1u) << element;
            EXPECT_TRUE(polygon.polylines[0].closed) << element;
            found.push_back(polygon.polylines[0].points.size());
        }
        EXPECT_EQ(found, points) << element;
    }
}

TEST(MapScene, TellsTheTopmostFeatureAtAPoint) {
    const std::string inner = "[[12,12],[18,12],[18,18],[12,18]]";
    const geojson::GeoMapData map =
        mapOf({featureText("{}", "[" + kSquare + "," + inner + "]"),
               featureText("{}", "[[[16,16],[20,16],[20,20],[16,20],[16,16]]]")});
    const MapScene scene = MapScene::make(map, {128, 128});
    struct Case {
        Point point;
        std::optional<std::size_t> feature;
    };
    for (const auto& [point, feature] : {Case{{15, 113}, 0},   // near 10, 10
                                         Case{{64, 64}, 0},    // the filled hole
                                         Case{{84, 44}, 1},    // near 17, 17: both
                                         Case{{13, 64}, {}},   // west of everything
                                         Case{{64, 115}, {}},  // south
                                         Case{{-1e9, 64}, {}}}) {
        EXPECT_EQ(scene.featureAt(point), feature) << point.x << ", " << point.y;
    }
}

TEST(MapView, WithoutDataShowsThatItIsWaiting) {
    MapView view = viewOf(MapType::kRegion, {});
    view.targetLat = 42;
    view.targetLon = 12;
    view.gestures.scale = 3;
    EXPECT_THAT(drawn(view), ElementsAre("fill #f4f9fc 0,0 128x128",
                                         "text Caricamento mappa in corso... gray 13 64,64"));
}

TEST(MapView, DrawsEachRingFilledThenStrokedThenTheTarget) {
    MapView view = viewOf(
        MapType::kRegion,
        mapOf({featureText("{}", "[" + kSquare + "]"),
               featureText("{}", "[[[15,15],[20,10]],[[[12,12],[14,12],[13,14],[12,12]]]]")}));
    view.targetLat = 15;
    view.targetLon = 12;
    view.gestures.scale = 2;
    view.gestures.offset = {5, -7};
    EXPECT_THAT(drawn(view),
                ElementsAre("fill #f4f9fc 0,0 128x128", "save", "move 69 57", "scale 2",
                            "move -64 -64", "area #e2ebf0 closed 14,114 114,114 114,14 14,14",
                            "line #b0c4de 1 closed 14,114 114,114 114,14 14,14",
                            "area #e2ebf0 closed 34,94 54,94 44,74 34,94",
                            "line #b0c4de 1 closed 34,94 54,94 44,74 34,94", "disc #ff3b30 34,64 7",
                            "ring #ffffff 1.5 34,64 7", "disc #ffffff 34,64 3", "restore"));
    view.targetLat = {};
    EXPECT_THAT(drawn(view, "disc"), IsEmpty()) << "half a target is none";
}

TEST(MapView, AMapOutsideItsQuarterOfTheWorldDrawsOnlyTheGround) {
    const MapView view = viewOf(MapType::kProvince, outlines("[[[-70,-30],[-60,-30],[-65,-20]]]"));
    EXPECT_THAT(drawn(view, "area"), IsEmpty());
}

TEST(MapView, ColorsFollowTheModeAndTheSelection) {
    const auto feature = [](const std::string& properties) {
        return featureText(properties, "[" + kSquare + "]");
    };
    const geojson::GeoMapData map =
        mapOf({feature(R"({"regione":"Lazio","provincia":"Roma","sigla":"rm"})"),
               feature(R"({"provincia":"Agrigento","sigla":"Ag"})"), feature("{}")});
    const std::string region = "#e2ebf0, #b0c4de 1";  // fill, stroke and its width
    const std::string chosenRegion = "#3a9ad9, #1f5f7a 2";
    const std::string province = "#e8eff2, #cbd6db 1";
    const std::string chosenProvince = "#fca311, #b25c00 2";
    const std::string calm = "#b4dcff, #9cb1bb 1";
    const std::string windy = "#ff1e0f, #9cb1bb 1";
    struct Case {
        MapType type;
        std::optional<std::string> selectedRegion;
        std::optional<std::string> selectedProvince;
        std::vector<std::string> styles;
    };
    using enum MapType;
    for (const Case& c : std::vector<Case>{
             {kRegion, {}, {}, {region, region, region}},
             {kRegion, "LAZIO", {}, {chosenRegion, region, region}},
             {kRegion, "agrigento", {}, {region, chosenRegion, region}},
             {kRegion, "Roma", {}, {region, region, region}},
             {kRegion, "Puglia", "RM", {region, region, region}},
             {kRegion, {}, "RM", {chosenRegion, region, region}},
             {kRegion, "", {}, {region, region, chosenRegion}},
             {kProvince, "Lazio", {}, {province, province, province}},
             {kProvince, {}, "Rm", {chosenProvince, province, province}},
             {kProvince, "Lazio", "AG", {province, chosenProvince, province}},
             {kWind, "Lazio", "RM", {windy, calm, calm}},
         }) {
        MapView view = viewOf(c.type, map);
        view.selectedRegion = c.selectedRegion;
        view.selectedProvince = c.selectedProvince;
        view.provinceWindMap = {{"RM", 5900}, {"Ag", 5900}};
        const auto fills = drawn(view, "area");
        const auto strokes = drawn(view, "line");
        std::vector<std::string> found;
        for (std::size_t i = 0; i < std::min(fills.size(), strokes.size()); ++i) {
            found.push_back(fills[i].substr(5, 7) + ", " + strokes[i].substr(5, 9));
        }
        EXPECT_EQ(found, c.styles);
    }
}

TEST(MapView, TellsWhatAFeatureIs) {
    const geojson::GeoMapData map =
        mapOf({featureText(R"({"regione":"Lazio","provincia":"Roma","sigla":"RM"})", "[]"),
               featureText(R"({"provincia":"Altrove"})", "[]"), featureText("{}", "[]")});
    struct Case {
        MapType type;
        std::size_t feature;
        const char* text;
    };
    using enum MapType;
    for (const auto& [type, feature, text] :
         {Case{kRegion, 0, "Lazio"}, Case{kRegion, 1, "Altrove"}, Case{kProvince, 0, "Roma (RM)"},
          Case{kProvince, 1, "Altrove"}, Case{kProvince, 2, ""},
          Case{kWind, 0, "Roma (RM)\nResa eolica 1 kW: fino a 3.210 kWh/anno"},
          Case{kWind, 1, "Altrove\nResa eolica non disponibile"}}) {
        MapView view = viewOf(type, map);
        view.provinceWindMap = {{"RM", 3210}};
        EXPECT_EQ(view.hoverText(map.features[feature]), text);
    }
}

}  // namespace
}  // namespace kalvo::geo
