#include "geo/globe_gestures.h"

#include <gtest/gtest.h>

#include <cmath>

#include "geo/drag_recognizer.h"
#include "geo/globe_projection.h"

namespace kalvo::geo {
namespace {

using namespace std::chrono_literals;

/// Ticks for a while; returns how far the globe has turned.
double turned(GlobeView& view, GlobeView::Time& now, std::chrono::milliseconds duration) {
    const double before = view.centerLon;
    for (const GlobeView::Time end = now + duration; now < end;) {
        now += kGlobeTick;
        tick(view, now);
    }
    return view.centerLon - before;
}

TEST(GlobeGesturesTest, TurnsAFullTurnInAboutSeventyEightSeconds) {
    GlobeView view{};
    GlobeView::Time now = view.lastDragTime;
    EXPECT_NEAR(turned(view, now, 1s), 0.08, 1e-12);
    EXPECT_NEAR(turned(view, now, 78500ms), 2 * kPi, 0.01);
}

TEST(GlobeGesturesTest, RestsFourSecondsAfterTheLastDragChange) {
    GlobeView view{};
    GlobeView::Time now = view.lastDragTime;
    dragChanged(view, {{10, 0}, {10, 0}}, now);
    EXPECT_FALSE(view.isAutoRotating);
    now += 3s;
    dragChanged(view, {{10, 0}, {10, 0}}, now);
    EXPECT_EQ(turned(view, now, 4s), 0);
    EXPECT_FALSE(view.isAutoRotating);
    // The tick that ends the rest does not turn the globe yet.
    EXPECT_EQ(turned(view, now, 50ms), 0);
    EXPECT_TRUE(view.isAutoRotating);
    EXPECT_NEAR(turned(view, now, 50ms), 0.004, 1e-12);
}

TEST(GlobeGesturesTest, EveryDragChangeAppliesTheWholeTranslation) {
    GlobeView view{};
    const GlobeDrag drag{{50, 100}, {80, 300}};
    dragChanged(view, drag, view.lastDragTime);
    EXPECT_NEAR(view.centerLat, 0.021, 1e-12);    // (100 - 30) x 0.0003
    EXPECT_NEAR(view.centerLon, -0.0126, 1e-12);  // -(50 - 8) x 0.0003
    dragChanged(view, drag, view.lastDragTime);
    EXPECT_NEAR(view.centerLat, 0.042, 1e-12);
    EXPECT_NEAR(view.centerLon, -0.0252, 1e-12);
    for (const double height : {1e6, -1e6}) {
        dragChanged(view, {{0, height}, {0, height}}, view.lastDragTime);
        EXPECT_NEAR(toDegrees(view.centerLat), std::copysign(85, height), 1e-12) << "no further";
    }
}

TEST(GlobeGesturesTest, APausedGlobeStaysUntilItIsStartedAgain) {
    GlobeView view{};
    GlobeView::Time now = view.lastDragTime;
    togglePause(view);
    EXPECT_EQ(turned(view, now, 10s), 0);
    dragChanged(view, {{0, 0}, {0, 0}}, now);
    EXPECT_EQ(turned(view, now, 10s), 0);
    togglePause(view);
    EXPECT_NEAR(turned(view, now, 50ms), 0.004, 1e-12);
}

TEST(GlobeGesturesTest, TapNamesThePlaceInDegrees) {
    GlobeView view{};
    view.centerLat = toRadians(45);
    view.centerLon = 10 * kPi + toRadians(9);
    std::vector<engine::LatLon> taps;
    view.onGlobeTap = [&](engine::LatLon place) { taps.push_back(place); };
    tap(view, {115, 115}, {230, 230});
    tap(view, {5, 5}, {230, 230});
    ASSERT_EQ(taps.size(), 1u);
    EXPECT_NEAR(taps[0].lat, 45, 1e-9);
    EXPECT_NEAR(taps[0].lon, 9, 1e-9);
    EXPECT_TRUE(view.isAutoRotating);

    view.onGlobeTap = nullptr;
    tap(view, {115, 115}, {230, 230});
}

TEST(GlobePointerTest, TellsTapsFromDrags) {
    enum Kind { kPress, kRepeatedPress, kMove, kRelease };
    struct Step {
        Kind kind;
        graphics::Point at;
        bool counts;  // a move as a drag, a release as a tap
    };
    DragRecognizer pointer;
    GlobeView::Time now{};
    int step = 0;
    for (const auto& [kind, at, counts] : {
             Step{kMove, {50, 0}, false},  // not pressed
             Step{kPress, {0, 0}, {}},
             Step{kMove, {7, -7}, false},  // 9.9 points
             Step{kMove, {6, -8}, true},
             Step{kMove, {0, 0}, true},  // back where it began: still a drag, and then no tap
             Step{kRelease, {}, false},
             Step{kMove, {50, 0}, false},
             Step{kPress, {0, 0}, {}},
             Step{kMove, {3, 3}, false},
             Step{kRelease, {}, true},
             Step{kRelease, {}, false},
             Step{kRepeatedPress, {3, 3}, {}},  // the second one of a double click
             Step{kRelease, {}, false},
             Step{kRepeatedPress, {0, 0}, {}},
             Step{kMove, {3, 40}, true},
         }) {
        SCOPED_TRACE(testing::Message() << "step " << ++step);
        now += 1s;
        using Press = DragRecognizer::Press;
        if (kind == kPress) pointer.press(at, now, Press::kFirst);
        if (kind == kRepeatedPress) pointer.press(at, now, Press::kRepeated);
        if (kind == kRelease) {
            EXPECT_EQ(pointer.release(), counts);
        }
        if (kind != kMove) continue;
        const auto drag = pointer.move(at, now);
        ASSERT_EQ(drag.has_value(), counts);
        if (drag) {
            EXPECT_EQ(drag->translation, (graphics::Size{at.x, at.y}));
        }
    }
}

TEST(GlobePointerTest, PredictsTheEndFromTheLatestVelocity) {
    struct Stretch {
        const char* what;
        std::chrono::milliseconds pace;
        int steps;
        double step;   // points
        double glide;  // beyond the last step
    };
    DragRecognizer pointer;
    GlobeView::Time now{};
    pointer.press({0, 0}, now, DragRecognizer::Press::kFirst);
    double x = 0;
    for (const auto& [what, pace, steps, step, glide] : {
             Stretch{"slow", 1s, 1, 20, 0},
             // Only the last 100 ms count: at 1000 points a second it would glide 250 on.
             Stretch{"fast", 10ms, 30, 10, 250},
             Stretch{"as fast in smaller steps", 1ms, 200, 1, 250},
             Stretch{"held still", 1s, 1, 1, 0},
         }) {
        std::optional<GlobeDrag> drag;
        for (int i = 0; i < steps; ++i) drag = pointer.move({x += step, 0}, now += pace);
        ASSERT_TRUE(drag) << what;
        EXPECT_NEAR(drag->predictedEndTranslation.width, x + glide, 1e-6) << what;
        EXPECT_NEAR(drag->predictedEndTranslation.height, 0, 1e-6) << what;
    }
    // The first move of all has little time behind it: no leap.
    pointer.press({0, 0}, now, DragRecognizer::Press::kFirst);
    const auto drag = pointer.move({30, 0}, now + 1ms);
    ASSERT_TRUE(drag);
    EXPECT_LE(drag->predictedEndTranslation.width, 30 + 75);
}

}  // namespace
}  // namespace kalvo::geo
