#include "geo/globe_gestures.h"

#include <gtest/gtest.h>

#include <cmath>

#include "geo/globe_pointer.h"
#include "geo/globe_projection.h"

namespace kalvo::geo {
namespace {

using namespace std::chrono_literals;

GlobeView globe() {
    return {.centerLat = 0,
            .centerLon = 0,
            .targetLat = {},
            .targetLon = {},
            .targetName = {},
            .highlightedCountry = {},
            .onGlobeTap = {}};
}

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
    GlobeView view = globe();
    GlobeView::Time now = view.lastDragTime;
    EXPECT_NEAR(turned(view, now, 1s), 0.08, 1e-12);
    EXPECT_NEAR(turned(view, now, 78500ms), 2 * kPi, 0.01);
}

TEST(GlobeGesturesTest, RestsFourSecondsAfterTheLastDragChange) {
    GlobeView view = globe();
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
    GlobeView view = globe();
    const GlobeDrag drag{{50, 100}, {80, 300}};
    dragChanged(view, drag, view.lastDragTime);
    EXPECT_NEAR(view.centerLat, 0.021, 1e-12);    // (100 - 30) x 0.0003
    EXPECT_NEAR(view.centerLon, -0.0126, 1e-12);  // -(50 - 8) x 0.0003
    dragChanged(view, drag, view.lastDragTime);
    EXPECT_NEAR(view.centerLat, 0.042, 1e-12);
    EXPECT_NEAR(view.centerLon, -0.0252, 1e-12);
}

TEST(GlobeGesturesTest, DraggingStopsBeforeThePoles) {
    GlobeView view = globe();
    for (const double height : {1e6, -1e6}) {
        dragChanged(view, {{0, height}, {0, height}}, view.lastDragTime);
        EXPECT_NEAR(toDegrees(view.centerLat), std::copysign(85, height), 1e-12);
    }
}

TEST(GlobeGesturesTest, APausedGlobeStaysUntilItIsStartedAgain) {
    GlobeView view = globe();
    GlobeView::Time now = view.lastDragTime;
    togglePause(view);
    EXPECT_EQ(turned(view, now, 10s), 0);
    dragChanged(view, {{0, 0}, {0, 0}}, now);
    EXPECT_EQ(turned(view, now, 10s), 0);
    togglePause(view);
    EXPECT_NEAR(turned(view, now, 50ms), 0.004, 1e-12);
}

TEST(GlobeGesturesTest, TapNamesThePlaceInDegrees) {
    GlobeView view = globe();
    view.centerLat = toRadians(45);
    view.centerLon = 10 * kPi + toRadians(9);
    std::vector<engine::LatLon> taps;
    view.onGlobeTap = [&](double lat, double lon) { taps.push_back({lat, lon}); };
    tap(view, {115, 115}, {230, 230});
    tap(view, {5, 5}, {230, 230});
    ASSERT_EQ(taps.size(), 1u);
    EXPECT_NEAR(taps[0].lat, 45, 1e-9);
    EXPECT_NEAR(taps[0].lon, 9, 1e-9);
    EXPECT_TRUE(view.isAutoRotating);

    view.onGlobeTap = nullptr;
    tap(view, {115, 115}, {230, 230});
}

TEST(GlobePointerTest, APressBecomesADragAtTenPoints) {
    GlobePointer pointer;
    const GlobeView::Time now{};
    EXPECT_FALSE(pointer.move({50, 0}, now));
    pointer.press({0, 0}, now, GlobePointer::Press::kFirst);
    EXPECT_FALSE(pointer.move({7, -7}, now + 1s));  // 9.9 points
    const auto drag = pointer.move({6, -8}, now + 2s);
    ASSERT_TRUE(drag);
    EXPECT_EQ(drag->translation, (platform::Size{6, -8}));
    // Back where it began it is still the same drag, and no tap when it ends.
    EXPECT_TRUE(pointer.move({0, 0}, now + 3s));
    EXPECT_FALSE(pointer.release());
    EXPECT_FALSE(pointer.move({50, 0}, now + 4s));
}

TEST(GlobePointerTest, AShortPressIsATapOnce) {
    GlobePointer pointer;
    const GlobeView::Time now{};
    pointer.press({0, 0}, now, GlobePointer::Press::kFirst);
    EXPECT_FALSE(pointer.move({3, 3}, now));
    EXPECT_TRUE(pointer.release());
    EXPECT_FALSE(pointer.release());
    pointer.press({3, 3}, now, GlobePointer::Press::kRepeated);
    EXPECT_FALSE(pointer.release());
    pointer.press({3, 3}, now, GlobePointer::Press::kRepeated);
    EXPECT_TRUE(pointer.move({3, 40}, now));
}

TEST(GlobePointerTest, AStraightDragNeverTurnsBack) {
    GlobePointer pointer;
    const GlobeView::Time now{};
    pointer.press({0, 0}, now, GlobePointer::Press::kFirst);
    const auto drag = pointer.move({30, 0}, now + 1ms);
    ASSERT_TRUE(drag);
    EXPECT_LE(drag->predictedEndTranslation.width, 30 + 75);
}

TEST(GlobePointerTest, PredictsTheEndFromTheLatestVelocity) {
    GlobePointer pointer;
    GlobeView::Time now{};
    pointer.press({0, 0}, now, GlobePointer::Press::kFirst);
    // Slow at first, then 10 points every 10 ms: only the last 100 ms count, and at 1000 points a
    // second the drag would glide 250 points on.
    now += 1s;
    std::optional<GlobeDrag> drag = pointer.move({20, 0}, now);
    ASSERT_TRUE(drag);
    EXPECT_EQ(drag->predictedEndTranslation, drag->translation);
    for (int i = 1; i <= 30; ++i) {
        now += 10ms;
        drag = pointer.move({20.0 + 10 * i, 0}, now);
    }
    ASSERT_TRUE(drag);
    EXPECT_NEAR(drag->predictedEndTranslation.width, 320 + 250, 1e-6);
    EXPECT_NEAR(drag->predictedEndTranslation.height, 0, 1e-6);
    // A fast mouse tells the same velocity in smaller steps.
    for (int i = 1; i <= 200; ++i) {
        now += 1ms;
        drag = pointer.move({320.0 + i, 0}, now);
    }
    ASSERT_TRUE(drag);
    EXPECT_NEAR(drag->predictedEndTranslation.width, 520 + 250, 1e-6);
    // Held still, it ends where it is.
    now += 1s;
    drag = pointer.move({521, 0}, now);
    ASSERT_TRUE(drag);
    EXPECT_EQ(drag->predictedEndTranslation, drag->translation);
}

}  // namespace
}  // namespace kalvo::geo
