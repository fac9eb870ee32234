#include "geo/globe_projection.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace kalvo::geo {
namespace {

using engine::LatLon;
using graphics::Point;
using graphics::Size;

constexpr Size kView{300, 200};
constexpr double kRadius = 200 / 2.3;

GlobeProjection from(double latDegrees, double lonDegrees) {
    return {{toRadians(latDegrees), toRadians(lonDegrees)}, kView};
}

TEST(GlobeProjectionTest, DiscFitsTheShorterSide) {
    for (const Size size : {Size{300, 200}, Size{200, 300}}) {
        const GlobeProjection projection({}, size);
        EXPECT_NEAR(projection.radius(), 86.9565, 0.0001);
        EXPECT_EQ(projection.center(), (Point{size.width / 2, size.height / 2}));
    }
}

TEST(GlobeProjectionTest, ProjectsPlacesWorkedByHand) {
    struct Case {
        LatLon center;
        LatLon place;
        Point offset;  // from the center, in radii
        double cosDistance;
    };
    const double half = std::sqrt(0.5);
    for (const Case& c : {
             Case{{0, 0}, {0, 0}, {0, 0}, 1},
             Case{{0, 0}, {0, 90}, {1, 0}, 0},
             Case{{0, 0}, {90, 17}, {0, -1}, 0},
             Case{{0, 0}, {0, -30}, {-0.5, 0}, std::sqrt(0.75)},
             Case{{45, 10}, {90, 0}, {0, -half}, half},
             Case{{45, 10}, {0, 10}, {0, half}, half},
             Case{{0, 170}, {0, -160}, {0.5, 0}, std::sqrt(0.75)},  // across the date line
             Case{{60, 0}, {0, 180}, {0, -std::sqrt(0.75)}, -0.5},
         }) {
        const auto [point, cosDistance] =
            from(c.center.lat, c.center.lon).project(unitVector(c.place));
        EXPECT_NEAR(point.x, 150 + c.offset.x * kRadius, 1e-9) << c.place.lat << " " << c.place.lon;
        EXPECT_NEAR(point.y, 100 + c.offset.y * kRadius, 1e-9) << c.place.lat << " " << c.place.lon;
        EXPECT_NEAR(cosDistance, c.cosDistance, 1e-12) << c.place.lat << " " << c.place.lon;
    }
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
        EXPECT_NEAR(back.x, place.x, 1e-9);
        EXPECT_NEAR(back.y, place.y, 1e-9);
        EXPECT_NEAR(back.z, place.z, 1e-9);
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
        EXPECT_NEAR(found->lon, place->lon, 1e-5);
    }
    EXPECT_FALSE(GlobeProjection({}, {0, 100}).invert({0, 50})) << "a view without area";
}

TEST(GlobeProjectionTest, InvertsTheFarMeridianIntoTheTurn) {
    // Beyond the pole, which is at 0.62 radii above the center, the turn is half a one: 11 pi.
    const GlobeProjection projection({0.9, 10 * kPi}, kView);
    for (int step = 63; step < 100; ++step) {
        const auto place = projection.invert({150, 100 - kRadius * step / 100});
        ASSERT_TRUE(place);
        EXPECT_GE(place->lon, -180) << step;
        EXPECT_LT(place->lon, 180) << step;
        EXPECT_NEAR(std::abs(place->lon), 180, 1e-9) << step;
    }
}

}  // namespace
}  // namespace kalvo::geo
