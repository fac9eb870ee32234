#include "geo/globe_projection.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace kalvo::geo {
namespace {

using engine::LatLon;
using platform::Point;
using platform::Size;

constexpr Size kView{300, 200};
constexpr double kRadius = 200 / 2.3;

GlobeProjection from(double latDegrees, double lonDegrees) {
    return {toRadians(latDegrees), toRadians(lonDegrees), kView};
}

TEST(GlobeProjectionTest, DiscFitsTheShorterSide) {
    for (const Size size : {Size{300, 200}, Size{200, 300}}) {
        const GlobeProjection projection(0, 0, size);
        EXPECT_NEAR(projection.radius(), 86.9565, 0.0001);
        EXPECT_EQ(projection.middle(), (Point{size.width / 2, size.height / 2}));
    }
}

TEST(GlobeProjectionTest, ProjectsPlacesWorkedByHand) {
    struct Case {
        LatLon center;
        LatLon place;
        Point offset;  // from the middle, in radii
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
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
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

TEST(GlobeProjectionTest, InvertsTheEdgesOfTheDisc) {
    const GlobeProjection projection = from(0, 40);
    EXPECT_FALSE(projection.invert({0, 0}));
    EXPECT_FALSE(projection.invert({150 + kRadius * 1.0001, 100}));
    // The pole has no longitude of its own.
    const auto pole = GlobeProjection(0, toRadians(40), {230, 230}).invert({115, 15});
    ASSERT_TRUE(pole);
    EXPECT_NEAR(pole->lat, 90, 1e-6);
    EXPECT_NEAR(pole->lon, 40, 1e-9);
}

TEST(GlobeProjectionTest, InvertsAViewFromAbove) {
    // With the pole in the middle, to the right is a quarter turn east, and below it lies the
    // centre's own meridian.
    const GlobeProjection projection = from(90, 40);
    for (const auto& [point, lon] : {std::pair{Point{200, 100}, 130.0}, {Point{150, 120}, 40.0}}) {
        const auto place = projection.invert(point);
        ASSERT_TRUE(place);
        EXPECT_NEAR(place->lon, lon, 1e-9);
    }
}

TEST(GlobeProjectionTest, LongitudesComeBackIntoOneTurn) {
    struct Case {
        double centerLon;  // radians
        double lon;        // degrees
    };
    for (const Case& c : {Case{10 * kPi, 0}, Case{kPi, -180}, Case{-kPi, -180}, Case{3 * kPi, -180},
                          Case{-4.5 * kPi, -90}}) {
        const auto place = GlobeProjection(0, c.centerLon, kView).invert({150, 100});
        ASSERT_TRUE(place);
        EXPECT_NEAR(place->lon, c.lon, 1e-9) << c.centerLon;
    }
}

TEST(GlobeProjectionTest, AViewWithoutAreaShowsNoPlace) {
    EXPECT_FALSE(GlobeProjection(0, 0, {0, 100}).invert({0, 50}));
}

}  // namespace
}  // namespace kalvo::geo
