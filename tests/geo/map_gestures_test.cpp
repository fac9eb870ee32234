#include "geo/map_gestures.h"

#include <gtest/gtest.h>

#include <limits>

namespace kalvo::geo {
namespace {

using platform::Point;
using platform::Size;

TEST(MapGestures, APinchIsRecognisedFromAHundredth) {
    MapGestures map;
    pinchChanged(map, 1.009);
    pinchChanged(map, 0.991);
    EXPECT_EQ(map, MapGestures{});
    pinchChanged(map, 1.02);
    EXPECT_DOUBLE_EQ(map.scale, 1.02);
    pinchChanged(map, 1.0);  // once recognised, every change counts
    EXPECT_DOUBLE_EQ(map.scale, 1);
    pinchEnded(map);
    pinchChanged(map, 1.005);
    EXPECT_DOUBLE_EQ(map.scale, 1);
}

TEST(MapGestures, PinchesGoOnFromTheReachedScaleAndStopAtTheLimits) {
    MapGestures map;
    pinchChanged(map, 2);
    pinchChanged(map, 4);
    EXPECT_DOUBLE_EQ(map.scale, 4);
    pinchEnded(map);
    pinchChanged(map, 2);
    EXPECT_DOUBLE_EQ(map.scale, 8);
    pinchChanged(map, 8);
    EXPECT_DOUBLE_EQ(map.scale, 15);
    // What went beyond the limit is forgotten: half the magnification halves the scale.
    pinchChanged(map, 4);
    EXPECT_DOUBLE_EQ(map.scale, 7.5);
    pinchEnded(map);
    pinchChanged(map, 0.01);
    EXPECT_DOUBLE_EQ(map.scale, 0.8);
    for (const double senseless : {0.0, -1.0, std::numeric_limits<double>::infinity(),
                                   std::numeric_limits<double>::quiet_NaN()}) {
        pinchChanged(map, senseless);
        EXPECT_DOUBLE_EQ(map.scale, 0.8);
    }
    EXPECT_EQ(map.offset, (Size{0, 0})) << "a pinch leaves the offset alone";
}

TEST(MapGestures, ADragIsRecognisedFromTenPointsAndThenCountsWhole) {
    MapGestures map;
    dragChanged(map, {6, 7.9});
    EXPECT_EQ(map, MapGestures{});
    dragChanged(map, {6, 8});
    EXPECT_EQ(map.offset, (Size{6, 8}));
    dragChanged(map, {-1, 2});
    EXPECT_EQ(map.offset, (Size{-1, 2}));
    dragEnded(map);
    EXPECT_EQ(map.lastOffset, (Size{0, 0}));
    dragChanged(map, {9, 0});
    EXPECT_EQ(map.offset, (Size{-1, 2}));
    dragChanged(map, {0, 20});
    EXPECT_EQ(map.offset, (Size{-1, 22}));
}

TEST(MapGestures, PinchAndDragActAtTheSameTime) {
    MapGestures map;
    dragChanged(map, {30, 0});
    pinchChanged(map, 2);
    dragChanged(map, {40, 0});
    pinchEnded(map);
    dragChanged(map, {50, 0});
    EXPECT_DOUBLE_EQ(map.scale, 2);
    EXPECT_EQ(map.offset, (Size{50, 0}));
}

TEST(MapGestures, ZoomingKeepsWhatIsUnderTheAnchor) {
    const Size view{200, 100};
    MapGestures map;
    moveBy(map, {10, 0});
    // Of the unmoved picture the point 140, 50 shows at 150, 50.
    EXPECT_EQ(pictureAt(map, {150, 50}, view), (Point{140, 50}));
    zoomBy(map, 2, {150, 50}, view);
    EXPECT_DOUBLE_EQ(map.scale, 2);
    EXPECT_EQ(map.offset, (Size{-30, 0}));
    EXPECT_EQ(pictureAt(map, {150, 50}, view), (Point{140, 50}));
    // A step that the limit cuts short still keeps the anchor.
    zoomBy(map, 100, {150, 50}, view);
    EXPECT_DOUBLE_EQ(map.scale, 15);
    EXPECT_NEAR(pictureAt(map, {150, 50}, view).x, 140, 1e-9);
    const MapGestures largest = map;
    zoomBy(map, 1.25, {0, 0}, view);
    EXPECT_EQ(map, largest) << "at the limit nothing moves";
}

}  // namespace
}  // namespace kalvo::geo
