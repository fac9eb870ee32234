#include "geo/globe_projection.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace kalvo::geo {
namespace {

using engine::LatLon;
using graphics::Point;

constexpr graphics::Size kView{300, 200};
constexpr double kRadius = 200 / 2.3;

GlobeProjection from(double latDegrees, double lonDegrees) {
    return {{toRadians(latDegrees), toRadians(lonDegrees)}, kView};
}

TEST(GlobeProjectionTest, InvertFindsTheProjectedPlaceAgain) {
    constexpr unsigned kSeed = 20261123;
    SCOPED_TRACE(testing::Message() << "seed " << kSeed);
    std::mt19937 random(kSeed);
    std::uniform_real_distribution<double> anyLat(-85, 85);
    std::uniform_real_distribution<double> anyLon(-1000, 1000);
    int seen = 0;
    for (int i = 0; i < 2000; ++i) {
        const GlobeProjection projection = from(anyLat(random), anyLon(random));
        const UnitVector place = unitVector({anyLat(random), anyLon(random)});
        const auto [point, cosDistance] = projection.project(place);
        if (cosDistance < 0.01) continue;
        const auto found = projection.invert(point);
        ASSERT_TRUE(found);
        EXPECT_GE(found->lon, -180);
        EXPECT_LT(found->lon, 180);
        const UnitVector back = unitVector(*found);
        EXPECT_LT(std::hypot(back.x - place.x, back.y - place.y, back.z - place.z), 1e-9);
        ++seen;
    }
    EXPECT_GT(seen, 700);
}

TEST(GlobeProjectionTest, InvertsPointsWorkedByHand) {
    struct Case {
        Point center;  // longitude and latitude, degrees
        Point point;
        std::optional<LatLon> place;
    };
    const double edge = kRadius * (1 - 1e-15);
    for (const auto& [center, point, place] : {
             Case{{40, 0}, {0, 0}, {}},
             Case{{40, 0}, {150 + kRadius * 1.0001, 100}, {}},
             Case{{40, 0}, {150, 100 - edge}, LatLon{90, 40}},  // the pole has no longitude
             // From above, to the right is a quarter turn east, and below the center's meridian.
             Case{{40, 90}, {150 + edge, 100}, LatLon{0, 130}},
             Case{{40, 90}, {150, 100 + edge}, LatLon{0, 40}},
             // Beyond the pole, which is 0.5 radii up, the turn is half a one.
             Case{{1800, 60}, {150, 100 - kRadius * 0.8}, LatLon{66.8699, -180}},
             // Longitudes come back into one turn.
             Case{{1800, 0}, {150, 100}, LatLon{0, 0}},
             Case{{180, 0}, {150, 100}, LatLon{0, -180}},
             Case{{-180, 0}, {150, 100}, LatLon{0, -180}},
             Case{{540, 0}, {150, 100}, LatLon{0, -180}},
             Case{{-810, 0}, {150, 100}, LatLon{0, -90}},
         }) {
        SCOPED_TRACE(testing::Message() << center.x << ": " << point.x << ", " << point.y);
        const auto found = from(center.y, center.x).invert(point);
        ASSERT_EQ(found.has_value(), place.has_value());
        if (!place) continue;
        EXPECT_NEAR(found->lat, place->lat, 1e-5);
        EXPECT_NEAR(std::remainder(found->lon - place->lon, 360), 0, 1e-5);
        EXPECT_GE(found->lon, -180);
        EXPECT_LT(found->lon, 180);
    }
    EXPECT_FALSE(GlobeProjection({}, {0, 100}).invert({0, 50})) << "a view without area";
}

}  // namespace
}  // namespace kalvo::geo
