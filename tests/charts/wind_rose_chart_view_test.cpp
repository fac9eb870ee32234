#include "charts/wind_rose_chart_view.h"

#include <cstdint>
#include <limits>

#include <gmock/gmock.h>

#include "tests/support/recording_canvas.h"

namespace kalvo::charts {
namespace {

using testing::ElementsAre;
using tests::drawn;

// The center is (200, 145), the radius 130.
constexpr graphics::Size kSize{400, 300};
constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

/// A rose with one sector of one class.
WindRoseChartView roseOf(std::int64_t count) { return {{{0, {count, 0, 0, 0, 0, 0, 0}}}}; }

TEST(WindRoseChartView, DrawsRingsThenSpokesWithoutData) {
    // A diagonal of 130 points goes 91.9239 either way, one of 142 points 100.409.
    EXPECT_THAT(
        drawn(WindRoseChartView{}, kSize),
        ElementsAre(
            "round #ffffff 0,0 400x300 6", "save", "clip 0,0 400x300 6",
            "ring gray@0.3 1 200,145 65", "text 500 gray 7 200,74", "ring gray@0.3 1 200,145 130",
            "text 1000 gray 7 200,9", "line gray@0.2 1 open 200,145 200,15",
            "text N gray 8 bold 200,3", "line gray@0.2 1 open 200,145 291.924,53.0761",
            "text NE gray 8 bold 300.409,44.5908", "line gray@0.2 1 open 200,145 330,145",
            "text E gray 8 bold 342,145", "line gray@0.2 1 open 200,145 291.924,236.924",
            "text SE gray 8 bold 300.409,245.409", "line gray@0.2 1 open 200,145 200,275",
            "text S gray 8 bold 200,287", "line gray@0.2 1 open 200,145 108.076,236.924",
            "text SW gray 8 bold 99.5908,245.409", "line gray@0.2 1 open 200,145 70,145",
            "text W gray 8 bold 58,145", "line gray@0.2 1 open 200,145 108.076,53.0761",
            "text NW gray 8 bold 99.5908,44.5908", "restore", "frame gray@0.2 1 0,0 400x300 6"));
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
    EXPECT_THAT(drawn(roseOf(1300), kSize, "ring"),
                ElementsAre("ring gray@0.3 1 200,145 43.3333", "ring gray@0.3 1 200,145 86.6667"));
}

TEST(WindRoseChartView, PaintsWedgesFromTheOutsideInOverEverythingElse) {
    // 100 counts are 32.5 points at the scale of 400.
    const WindRoseChartView view{{{4, {40, 0, 60, 100, 0, 80, 20}}, {15, {0, 40}}}};
    const auto commands = drawn(view, kSize);
    EXPECT_THAT(
        std::vector(commands.end() - 16, commands.end()),
        ElementsAre(
            "text NW gray 8 bold 99.5908,44.5908", "wedge #ffd600 200,145 97.5 from 82.5 to 97.5",
            "wedge #a4c639 200,145 91 from 82.5 to 97.5",
            "wedge #008d5e 200,145 65 from 82.5 to 97.5",
            "wedge #2ed158 200,145 65 from 82.5 to 97.5",
            "wedge #a3f7bf 200,145 32.5 from 82.5 to 97.5",
            "wedge #d1f7ec 200,145 13 from 82.5 to 97.5",
            "wedge #cbd5e1 200,145 13 from 82.5 to 97.5",
            "wedge #ffd600 200,145 13 from 330 to 345", "wedge #a4c639 200,145 13 from 330 to 345",
            "wedge #008d5e 200,145 13 from 330 to 345", "wedge #2ed158 200,145 13 from 330 to 345",
            "wedge #a3f7bf 200,145 13 from 330 to 345", "wedge #d1f7ec 200,145 13 from 330 to 345",
            "restore", "frame gray@0.2 1 0,0 400x300 6"));
}

TEST(WindRoseChartView, DrawsOddDataByTheSameRules) {
    const WindRoseChartView view{{{-1, {50}},
                                  {0, {-10, 5, 15, 0, 0, 0, -20}},
                                  {2, {}},
                                  {3, {kLargest, kLargest, kLargest}},
                                  {16, {70}}}};
    const auto wedges = drawn(view, kSize, "wedge");
    ASSERT_EQ(wedges.size(), 4u + 7u);  // sector 0 is above zero for the classes 2 to 5 only
    EXPECT_EQ(wedges[0], "wedge #a4c639 200,145 0.65 from -7.5 to 7.5");
    EXPECT_EQ(wedges[3], "wedge #a3f7bf 200,145 0.65 from -7.5 to 7.5");
    EXPECT_THAT(wedges[4], testing::HasSubstr("e+"));
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
