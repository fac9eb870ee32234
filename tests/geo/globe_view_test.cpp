#include "geo/globe_view.h"

#include <gtest/gtest.h>

#include <cmath>

#include "geo/globe_projection.h"
#include "platform/recording_canvas.h"

namespace kalvo::geo {
namespace {

using engine::CountryRing;
using platform::Color;
using platform::LineBatch;
using platform::Point;
using platform::RecordingCanvas;
namespace draw = platform::draw;

constexpr platform::Size kView{230, 230};
constexpr double kRadius = 230 / 2.3;  // but for the last bit 100

GlobeView viewFrom(double lat, double lon) {
    return {.centerLat = toRadians(lat),
            .centerLon = toRadians(lon),
            .targetLat = {},
            .targetLon = {},
            .targetName = {},
            .highlightedCountry = {},
            .onGlobeTap = {}};
}

RecordingCanvas drawn(const GlobeView& view, const std::vector<CountryRing>& rings) {
    GlobeScene scene = GlobeScene::make(rings);
    RecordingCanvas canvas;
    view.draw(canvas, kView, scene);
    return canvas;
}

LineBatch outlinesOf(const RecordingCanvas& canvas) {
    return canvas.all<draw::StrokeLines>().at(2).lines;
}

TEST(GlobeViewTest, DrawsFromTheGroundUp) {
    GlobeView view = viewFrom(0, 0);
    view.targetLat = 0;
    view.targetLon = 30;
    view.targetName = "Roma";
    const RecordingCanvas canvas = drawn(view, {{{0, 0}, {0, 30}, {30, 0}}});
    ASSERT_EQ(canvas.commands.size(), 8u);
    EXPECT_EQ(canvas.commands[0],
              draw::Command(draw::FillCircle{{115, 115}, kRadius, Color::hex("#0c1d2d")}));
    EXPECT_EQ(canvas.commands[1],
              draw::Command(draw::StrokeCircle{{115, 115}, kRadius, {Color::hex("#1f5f7a"), 2}}));
    const std::vector<std::pair<Color, double>> strokes{
        {Color::hex("#12354c"), 1}, {Color::hex("#12354c"), 1}, {Color::hex("#2ebd5e"), 1.2}};
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        const auto* lines = std::get_if<draw::StrokeLines>(&canvas.commands[2 + i]);
        ASSERT_TRUE(lines);
        EXPECT_EQ(lines->color, strokes[i].first);
        EXPECT_EQ(lines->width, strokes[i].second);
    }
    // sin 30 degrees is a half.
    const auto* ring = std::get_if<draw::StrokeCircle>(&canvas.commands[5]);
    ASSERT_TRUE(ring);
    EXPECT_NEAR(ring->centre.x, 165, 1e-9);
    EXPECT_NEAR(ring->centre.y, 115, 1e-9);
    EXPECT_EQ(ring->radius, 8);
    EXPECT_EQ(ring->stroke, (platform::Stroke{platform::kRed, 2}));
    EXPECT_EQ(canvas.commands[6], draw::Command(draw::FillCircle{ring->centre, 3, platform::kRed}));
    EXPECT_EQ(canvas.commands[7],
              draw::Command(draw::Text{
                  "Roma", {ring->centre.x, ring->centre.y - 16}, {11, true, platform::kWhite}}));
}

TEST(GlobeViewTest, GraticuleSeenFromTheEquatorAndFromAbove) {
    // From (0, 0) every 5 degrees from -90 to 90 are seen: cos 90 is 0, cos 95 is -0.09. At 60
    // degrees latitude cos c = cos 60 cos d reaches -0.05 at d = 95.7: 95 is seen there too.
    const auto fromEquator = drawn(viewFrom(0, 0), {}).all<draw::StrokeLines>();
    EXPECT_EQ(fromEquator.at(0).lines.starts.size(), 5u);
    EXPECT_EQ(fromEquator.at(0).lines.points.size(), 3u * 37 + 2u * 39);
    // The meridians from -90 to 90 are seen whole. Those of 120 and -120 only where
    // cos 120 cos lat >= -0.05: at 85 degrees (-0.044), twice each, and so are 150 and -150
    // (-0.075: not) and 180 (-0.087: not).
    EXPECT_EQ(fromEquator.at(1).lines.starts.size(), 7u + 2u * 2);
    EXPECT_EQ(fromEquator.at(1).lines.points.size(), 7u * 35 + 2u * 2);

    // From above the pole only the northern half of every meridian is seen, and no southern
    // parallel.
    const auto fromPole = drawn(viewFrom(90, 0), {}).all<draw::StrokeLines>();
    EXPECT_EQ(fromPole.at(0).lines.starts.size(), 3u);
    EXPECT_EQ(fromPole.at(0).lines.points.size(), 3u * 73);
    EXPECT_EQ(fromPole.at(1).lines.starts.size(), 12u);
    EXPECT_EQ(fromPole.at(1).lines.points.size(), 12u * 18);
}

TEST(GlobeViewTest, LinesEndALittleBehindTheRim) {
    const LineBatch lines = outlinesOf(drawn(viewFrom(0, 0), {{{0, 88}, {0, 92}, {0, 93}}}));
    ASSERT_EQ(lines.points.size(), 2u);
    EXPECT_NEAR(lines.points[1].x, 115 + 100 * std::sin(toRadians(92)), 1e-9);
    EXPECT_NEAR(lines.points[1].y, 115, 1e-9);
}

TEST(GlobeViewTest, AHiddenStretchCutsALineInTwo) {
    // In sight, behind, in sight again: the last point starts a line of its own.
    const std::vector<CountryRing> rings{
        {{0, 0}, {10, 0}, {0, 180}, {0, 10}, {0, 20}}, {}, {{0, 180}}, {{5, 5}, {0, 1.7e308}}};
    const LineBatch lines = outlinesOf(drawn(viewFrom(0, 0), rings));
    EXPECT_EQ(lines.starts, (std::vector<std::size_t>{0, 2, 4}));
    EXPECT_EQ(lines.points.size(), 5u);
}

TEST(GlobeViewTest, ContinentsStandInForMissingCountries) {
    // A view of the whole near side from the north pole: of the six continents all but South
    // America's and Africa's southern points and the southern two are seen.
    const auto builtIn = drawn(viewFrom(90, 0), {}).all<draw::StrokeLines>().at(2);
    EXPECT_EQ(builtIn.width, 1.5);
    EXPECT_EQ(builtIn.color, Color::hex("#2ebd5e"));
    // Eurasia and North America whole (17 and 11 points), Africa without 3 of 10 (two runs),
    // South America's two points and its last again (two runs).
    EXPECT_EQ(builtIn.lines.points.size(), 17u + 11 + 7 + 3);
    EXPECT_EQ(builtIn.lines.starts.size(), 1u + 1 + 2 + 2);
    EXPECT_EQ(outlinesOf(drawn(viewFrom(90, 0), {{{80, 0}, {80, 10}}})).points.size(), 2u);
}

TEST(GlobeViewTest, MarksOnlyATargetOnTheNearSide) {
    struct Case {
        std::optional<double> lat;
        std::optional<double> lon;
        std::size_t marks;
    };
    for (const Case& c : {Case{0, 0, 1}, Case{0, 90, 1}, Case{0, 92, 0}, Case{0, 180, 0},
                          Case{{}, 0, 0}, Case{0, {}, 0}}) {
        GlobeView view = viewFrom(0, 0);
        view.targetLat = c.lat;
        view.targetLon = c.lon;
        const RecordingCanvas canvas = drawn(view, {});
        EXPECT_EQ(canvas.all<draw::FillCircle>().size(), 1 + c.marks);
        EXPECT_TRUE(canvas.all<draw::Text>().empty());
    }
}

TEST(GlobeViewTest, HintSitsInItsBox) {
    RecordingCanvas canvas;
    drawGlobeHint(canvas, {200, 12});
    EXPECT_EQ(canvas.commands, (std::vector<draw::Command>{
                                   draw::FillRoundedRect{{8, 8, 212, 24}, 6, {0, 0, 0, 0.4}},
                                   draw::Text{"Trascina per ruotare \u2022 Tappa per selezionare",
                                              {114, 20},
                                              {10, true, {1, 1, 1, 0.8}}}}));
}

}  // namespace
}  // namespace kalvo::geo
