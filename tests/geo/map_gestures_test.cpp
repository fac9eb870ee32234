#include "geo/map_gestures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <variant>

namespace kalvo::geo {
namespace {

using graphics::Point;
using graphics::Size;

TEST(MapGestures, PinchesAndDragsActTogetherFromTheirThresholdsToTheirLimits) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kEnd = 0;  // of a pinch
    constexpr Size kRelease{0, 0};
    struct Step {
        std::variant<double, Size> change;  // the magnification, or the translation
        double scale;
        Size offset;
    };
    MapGestures map;
    int step = 0;
    for (const auto& [change, scale, offset] : {
             Step{1.009, 1, {0, 0}},  // recognized from a hundredth on, either way
             Step{0.991, 1, {0, 0}},
             Step{1.02, 1.02, {0, 0}},
             Step{1.0, 1, {0, 0}},  // once recognized, every change counts
             Step{kEnd, 1, {0, 0}},
             Step{1.005, 1, {0, 0}},
             Step{2.0, 2, {0, 0}},
             Step{4.0, 4, {0, 0}},
             Step{kEnd, 4, {0, 0}},
             Step{2.0, 8, {0, 0}},  // goes on from the reached scale
             Step{8.0, 15, {0, 0}},
             Step{4.0, 7.5, {0, 0}},  // what went beyond the limit is forgotten
             Step{Size{6, 7.9}, 7.5, {0, 0}},
             Step{Size{6, 8}, 7.5, {6, 8}},  // ten points, and then it counts whole
             Step{Size{-1, 2}, 7.5, {-1, 2}},
             Step{8.0, 15, {-1, 2}},
             Step{kEnd, 15, {-1, 2}},
             Step{Size{30, 2}, 15, {30, 2}},  // the end of the pinch is none of the drag
             Step{kRelease, 15, {30, 2}},
             Step{Size{9, 0}, 15, {30, 2}},
             Step{Size{0, 20}, 15, {30, 22}},
             Step{0.01, 0.8, {30, 22}},
             Step{-1.0, 0.8, {30, 22}},
             Step{kInfinity, 0.8, {30, 22}},
             Step{std::nan(""), 0.8, {30, 22}},
         }) {
        if (const double* pinch = std::get_if<double>(&change)) {
            *pinch == kEnd ? pinchEnded(map) : pinchChanged(map, *pinch);
        } else {
            const Size drag = std::get<Size>(change);
            drag == kRelease ? dragEnded(map) : dragChanged(map, drag);
        }
        SCOPED_TRACE(testing::Message() << "step " << ++step);
        EXPECT_DOUBLE_EQ(map.scale, scale);
        EXPECT_EQ(map.offset, offset);
    }
}

TEST(MapGestures, ZoomingKeepsWhatIsUnderTheAnchor) {
    const Size view{200, 100};
    MapGestures map;
    moveBy(map, {10, 0});
    // Of the unmoved picture the point 140, 50 shows at 150, 50.
    EXPECT_EQ(viewToMap(map, {150, 50}, view), (Point{140, 50}));
    zoomBy(map, 2, {150, 50}, view);
    EXPECT_DOUBLE_EQ(map.scale, 2);
    EXPECT_EQ(map.offset, (Size{-30, 0}));
    EXPECT_EQ(viewToMap(map, {150, 50}, view), (Point{140, 50}));
    // A step that the limit cuts short still keeps the anchor.
    zoomBy(map, 100, {150, 50}, view);
    EXPECT_DOUBLE_EQ(map.scale, 15);
    EXPECT_NEAR(viewToMap(map, {150, 50}, view).x, 140, 1e-9);
    const MapGestures largest = map;
    zoomBy(map, 1.25, {0, 0}, view);
    EXPECT_EQ(map, largest) << "at the limit nothing moves";
}

}  // namespace
}  // namespace kalvo::geo
