#include "charts/wind_rose_chart_view.h"

#include <cstdint>
#include <limits>

#include "engine/wind_range.h"
#include "tests/charts/drawing.h"

namespace kalvo::charts {
namespace {

using engine::WindRange;
using platform::kGray;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::Field;

// The centre is (200, 145), the radius 130.
constexpr platform::Size kSize{400, 300};
constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

/// A rose with one sector of one class.
WindRoseChartView roseOf(std::int64_t count) { return {{{0, {count, 0, 0, 0, 0, 0, 0}}}}; }

testing::Matcher<const platform::draw::StrokeCircle&> isRing(double radius) {
    using platform::draw::StrokeCircle;
    return testing::AllOf(
        Field(&StrokeCircle::centre, isAt(200, 145)),
        Field(&StrokeCircle::radius, DoubleNear(radius, kTiny)),
        Field(&StrokeCircle::stroke, platform::Stroke{kGray.withOpacity(0.3), 1}));
}

testing::Matcher<const platform::draw::FillWedge&> isWedge(int sector,
                                                           double radius,
                                                           std::size_t windClass) {
    using platform::Wedge;
    using platform::draw::FillWedge;
    return testing::AllOf(
        Field(&FillWedge::wedge,
              testing::AllOf(Field(&Wedge::centre, isAt(200, 145)),
                             Field(&Wedge::radius, DoubleNear(radius, kTiny)),
                             Field(&Wedge::startBearing, DoubleNear(22.5 * sector - 7.5, kTiny)),
                             Field(&Wedge::endBearing, DoubleNear(22.5 * sector + 7.5, kTiny)))),
        Field(&FillWedge::color, WindRange::colors[windClass]));
}

TEST(WindRoseChartView, DrawsRingsAndSpokesWithoutData) {
    const auto canvas = drawn(WindRoseChartView{}, kSize);
    expectFrame(canvas, kSize);
    EXPECT_THAT(canvas.all<platform::draw::StrokeCircle>(), ElementsAre(isRing(65), isRing(130)));
    EXPECT_TRUE(canvas.all<platform::draw::FillWedge>().empty());
    const platform::Stroke spoke{kGray.withOpacity(0.2), 1};
    const platform::Point centre{200, 145};
    const double diagonal = 130 / std::sqrt(2.0);
    EXPECT_THAT(canvas.all<platform::draw::StrokePath>(),
                ElementsAre(isLine(centre, {200, 15}, spoke),
                            isLine(centre, {200 + diagonal, 145 - diagonal}, spoke),
                            isLine(centre, {330, 145}, spoke),
                            isLine(centre, {200 + diagonal, 145 + diagonal}, spoke),
                            isLine(centre, {200, 275}, spoke),
                            isLine(centre, {200 - diagonal, 145 + diagonal}, spoke),
                            isLine(centre, {70, 145}, spoke),
                            isLine(centre, {200 - diagonal, 145 - diagonal}, spoke)));
    const platform::TextStyle ring{7, false, kGray};
    const platform::TextStyle compass{8, true, kGray};
    const double outside = 142 / std::sqrt(2.0);
    EXPECT_THAT(
        canvas.all<platform::draw::Text>(),
        ElementsAre(
            isText("500", {200, 74}, ring), isText("1000", {200, 9}, ring),
            isText("N", {200, 3}, compass), isText("NE", {200 + outside, 145 - outside}, compass),
            isText("E", {342, 145}, compass), isText("SE", {200 + outside, 145 + outside}, compass),
            isText("S", {200, 287}, compass), isText("SW", {200 - outside, 145 + outside}, compass),
            isText("W", {58, 145}, compass),
            isText("NW", {200 - outside, 145 - outside}, compass)));
}

TEST(WindRoseChartView, ChoosesTheScaleFromTheLargestSector) {
    using Scale = WindRoseChartView::Scale;
    constexpr Scale kSmall{400, 200, 400};
    constexpr Scale kMedium{1000, 500, 1000};
    constexpr Scale kLarge{1500, 500, 1000};
    constexpr Scale kHuge{2000, 500, 1000};
    EXPECT_EQ(WindRoseChartView{}.scale(), kMedium);
    const struct {
        std::int64_t largest;
        Scale scale;
    } cases[] = {{-kLargest, kSmall}, {0, kSmall},    {350, kSmall},
                 {351, kMedium},      {800, kMedium}, {801, kLarge},
                 {1300, kLarge},      {1301, kHuge},  {kLargest, kHuge}};
    for (const auto& [largest, scale] : cases) EXPECT_EQ(roseOf(largest).scale(), scale) << largest;

    // The total counts: of all entries, of every key.
    EXPECT_EQ((WindRoseChartView{{{3, {100, 100, 100, 51}}, {4, {5}}}}.scale()), kMedium);
    EXPECT_EQ((WindRoseChartView{{{3, {0, 0, 0, 0, 0, 0, 0, 900}}}}.scale()), kLarge);
    EXPECT_EQ((WindRoseChartView{{{3, {1}}, {16, {1301}}}}.scale()), kHuge);
    EXPECT_EQ((WindRoseChartView{{{3, {kLargest, kLargest, kLargest}}}}.scale()), kHuge);
}

TEST(WindRoseChartView, KeepsTheInnerRingsOfTheLargeScales) {
    EXPECT_THAT(drawn(roseOf(1300), kSize).all<platform::draw::StrokeCircle>(),
                ElementsAre(isRing(130.0 / 3), isRing(130.0 * 2 / 3)));
    EXPECT_THAT(drawn(roseOf(0), kSize).all<platform::draw::StrokeCircle>(),
                ElementsAre(isRing(65), isRing(130)));
}

TEST(WindRoseChartView, PaintsWedgesFromTheOutsideIn) {
    // 100 counts are 32.5 points at the scale of 400.
    const WindRoseChartView view{{{4, {40, 0, 60, 100, 0, 80, 20}}, {15, {0, 40}}}};
    const auto canvas = drawn(view, kSize);
    EXPECT_THAT(
        canvas.all<platform::draw::FillWedge>(),
        ElementsAre(isWedge(4, 97.5, 6), isWedge(4, 91, 5), isWedge(4, 65, 4), isWedge(4, 65, 3),
                    isWedge(4, 32.5, 2), isWedge(4, 13, 1), isWedge(4, 13, 0), isWedge(15, 13, 6),
                    isWedge(15, 13, 5), isWedge(15, 13, 4), isWedge(15, 13, 3), isWedge(15, 13, 2),
                    isWedge(15, 13, 1)));
    // Over everything else.
    const auto& commands = canvas.commands;
    EXPECT_TRUE(std::holds_alternative<platform::draw::FillWedge>(commands[commands.size() - 3]));
    const auto firstWedge = std::ranges::find_if(commands, [](const auto& command) {
        return std::holds_alternative<platform::draw::FillWedge>(command);
    });
    EXPECT_TRUE(std::all_of(firstWedge, commands.end() - 2, [](const auto& command) {
        return std::holds_alternative<platform::draw::FillWedge>(command);
    }));
}

TEST(WindRoseChartView, DrawsOddDataByTheSameRules) {
    const WindRoseChartView view{{{-1, {50}},
                                  {0, {-10, 5, 15, 0, 0, 0, -20}},
                                  {2, {}},
                                  {3, {kLargest, kLargest, kLargest}},
                                  {16, {70}}}};
    const auto wedges = drawn(view, kSize).all<platform::draw::FillWedge>();
    ASSERT_EQ(wedges.size(), 4u + 7u);  // sector 0 is above zero for the classes 2 to 5 only
    EXPECT_THAT(wedges[0], isWedge(0, 0.65, 5));
    EXPECT_THAT(wedges[3], isWedge(0, 0.65, 2));
    EXPECT_GT(wedges[4].wedge.radius, 1e15);
}

TEST(WindRoseChartView, KnowsWhatLiesUnderAPoint) {
    const WindRoseChartView view{{{4, {40, 0, 60, 100, 0, 80, 20}}, {12, {0, 0, 800}}}};
    // At the scale of 1000 sector 4 ends at 39 points, its bands at 5.2, 13, 26 and 36.4.
    using Hit = WindRoseChartView::Hit;
    EXPECT_EQ(view.hitTest({204, 145}, kSize), (Hit{4, 0}));
    EXPECT_EQ(view.hitTest({212, 146}, kSize), (Hit{4, 2}));
    EXPECT_EQ(view.hitTest({225, 143}, kSize), (Hit{4, 3}));
    EXPECT_EQ(view.hitTest({236, 145}, kSize), (Hit{4, 5}));
    EXPECT_EQ(view.hitTest({238, 145}, kSize), (Hit{4, 6}));
    EXPECT_EQ(view.hitTest({245, 145}, kSize), (Hit{4, std::nullopt}));    // beyond the wedge
    EXPECT_EQ(view.hitTest({230, 140.5}, kSize), (Hit{4, std::nullopt}));  // beside it
    EXPECT_EQ(view.hitTest({100, 145}, kSize), (Hit{12, 2}));
    EXPECT_EQ(view.hitTest({200, 100}, kSize), (Hit{0, std::nullopt}));
    EXPECT_EQ(view.hitTest({195, 100}, kSize), (Hit{0, std::nullopt}));
    EXPECT_EQ(view.hitTest({10, 10}, kSize), std::nullopt);
    EXPECT_EQ(view.hitTest({5, 5}, {30, 30}), std::nullopt);
    EXPECT_EQ((WindRoseChartView{{{4, {5000}}}}.hitTest({399, 145}, kSize)), (Hit{4, 0}));

    EXPECT_EQ(view.describe({12, 2}), "Ovest · 5-10 km/h: 800 ore");
    EXPECT_EQ(view.describe({15, std::nullopt}),
              "Nord-nord-ovest: 0 ore\n< 2 km/h: 0 ore\n2-5 km/h: 0 ore\n5-10 km/h: 0 ore\n"
              "10-20 km/h: 0 ore\n20-30 km/h: 0 ore\n30-40 km/h: 0 ore\n40-50 km/h: 0 ore");
}

TEST(WindRoseChartView, SumsItselfUpInASentence) {
    WindRoseChartView view;
    EXPECT_EQ(view.summary(), "Nessuna direzione ha ore di vento.");
    for (int sector = 0; sector < 16; ++sector) view.roseData[sector] = {100, sector};
    view.roseData[9] = {1};
    EXPECT_EQ(view.summary(),
              "Il vento soffia soprattutto da Nord-nord-ovest (115 ore l'anno), meno di tutto da "
              "Sud-sud-ovest (1 ora).");
}

}  // namespace
}  // namespace kalvo::charts
