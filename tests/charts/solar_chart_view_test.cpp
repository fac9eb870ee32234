#include "charts/solar_chart_view.h"

#include <cmath>
#include <limits>

#include "tests/charts/drawing.h"

namespace kalvo::charts {
namespace {

using platform::Color;
using platform::kGray;
using testing::ElementsAre;
using Condition = SolarChartView::Condition;
using Hit = SolarChartView::Hit;

// 500 x 200: bars of 25 points, 5 points a day, the baseline at 175.
constexpr platform::Size kSize{500, 200};
const Color kSunnyYellow{1, 230 / 255.0, 0, 1};
const Color kOlive{214 / 255.0, 214 / 255.0, 156 / 255.0, 1};
const Color kDarkGray{102 / 255.0, 102 / 255.0, 102 / 255.0, 1};
const platform::Stroke kBlueLine{{47 / 255.0, 128 / 255.0, 237 / 255.0, 1}, 2};

std::vector<double> everyMonth(double days) { return std::vector<double>(12, days); }

platform::draw::StrokePath precipitationOf(const platform::RecordingCanvas& canvas) {
    return canvas.all<platform::draw::StrokePath>().back();
}

TEST(SolarChartView, DrawsAxisBarsAndMonths) {
    SolarChartView view{{everyMonth(10), everyMonth(10), everyMonth(11), everyMonth(0)}};
    view.solarData.sunny[11] = 31;
    view.solarData.partlyCloudy[11] = 0;
    view.solarData.overcast[11] = 0;
    const auto canvas = drawn(view, kSize);
    expectFrame(canvas, kSize);

    const auto lines = canvas.all<platform::draw::StrokePath>();
    ASSERT_EQ(lines.size(), 8u);
    const platform::Stroke grid{kGray.withOpacity(0.2), 1};
    for (int i = 0; i < 7; ++i) {
        const double y = 175 - 25 * i;
        EXPECT_THAT(lines[static_cast<std::size_t>(i)], isLine({35, y}, {485, y}, grid));
    }

    const auto bars = canvas.all<platform::draw::FillRect>();
    ASSERT_EQ(bars.size(), 36u);
    EXPECT_THAT(
        std::vector(bars.begin(), bars.begin() + 4),
        ElementsAre(isFill({41.25, 125, 25, 50}, kSunnyYellow), isFill({41.25, 75, 25, 50}, kOlive),
                    isFill({41.25, 20, 25, 55}, kDarkGray),
                    isFill({78.75, 125, 25, 50}, kSunnyYellow)));
    EXPECT_THAT(
        std::vector(bars.begin() + 33, bars.end()),
        ElementsAre(isFill({453.75, 20, 25, 155}, kSunnyYellow),
                    isFill({453.75, 20, 25, 0}, kOlive), isFill({453.75, 20, 25, 0}, kDarkGray)));

    const auto texts = canvas.all<platform::draw::Text>();
    ASSERT_EQ(texts.size(), 19u);
    EXPECT_THAT(texts[0], isText("0g", {23, 175}, {7, false, kGray}));
    EXPECT_THAT(texts[6], isText("30g", {23, 25}, {7, false, kGray}));
    EXPECT_THAT(texts[7], isText("Gen", {53.75, 185}, {8, false, kGray}));
    EXPECT_THAT(texts[18], isText("Dic", {466.25, 185}, {8, false, kGray}));
}

TEST(SolarChartView, DrawsPrecipitationOverTheBars) {
    SolarChartView view{{everyMonth(1), everyMonth(1), everyMonth(1), everyMonth(0)}};
    view.solarData.precip[1] = 7.5;
    const auto canvas = drawn(view, kSize);
    const auto& last = canvas.commands[canvas.commands.size() - 3];
    ASSERT_TRUE(std::holds_alternative<platform::draw::StrokePath>(last));
    const auto line = std::get<platform::draw::StrokePath>(last);
    EXPECT_EQ(line.stroke, kBlueLine);
    ASSERT_EQ(line.path.polylines.size(), 1u);
    const auto& points = line.path.polylines[0].points;
    ASSERT_EQ(points.size(), 12u);
    EXPECT_FALSE(line.path.polylines[0].closed);
    EXPECT_THAT(points[0], isAt(53.75, 175));
    EXPECT_THAT(points[1], isAt(91.25, 137.5));
    EXPECT_THAT(points[11], isAt(466.25, 175));
}

TEST(SolarChartView, LeavesOutWhatIsMissing) {
    const double nan = std::nan("");
    const SolarChartView view{{{1}, {2, nan, 3}, {}, {5, nan, 6}}};
    const auto canvas = drawn(view, kSize);
    EXPECT_THAT(
        canvas.all<platform::draw::FillRect>(),
        ElementsAre(isFill({41.25, 170, 25, 5}, kSunnyYellow), isFill({41.25, 160, 25, 10}, kOlive),
                    isFill({116.25, 160, 25, 15}, kOlive)));
    EXPECT_THAT(precipitationOf(canvas), isLine({53.75, 150}, {128.75, 145}, kBlueLine));
    EXPECT_EQ(canvas.all<platform::draw::Text>().size(), 19u);
    EXPECT_TRUE(precipitationOf(drawn(SolarChartView{}, kSize)).path.polylines[0].points.empty());
}

TEST(SolarChartView, KeepsTheBaselineUnderEndlessBars) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double endless : {1e6, 1e17, 1e300, 1e308, infinity}) {
        const SolarChartView view{{{endless, -endless}, {-endless, 10}, {7, 1}, {endless}}};
        const auto bars = drawn(view, kSize).all<platform::draw::FillRect>();
        ASSERT_EQ(bars.size(), 6u);
        // Up from the baseline out of the view; down from it; out of sight on top of that.
        EXPECT_NEAR(bars[0].rect.y + bars[0].rect.height, 175, 1e-3) << endless;
        EXPECT_LT(bars[0].rect.y, -1000) << endless;
        EXPECT_NEAR(bars[3].rect.y + bars[3].rect.height, 175, 1e-3) << endless;
        EXPECT_GT(bars[3].rect.y, 1000) << endless;
        EXPECT_GT(bars[4].rect.y, 1000) << endless;
        for (const auto& bar : bars) {
            EXPECT_TRUE(std::isfinite(bar.rect.y) && std::isfinite(bar.rect.height)) << endless;
        }
    }
}

TEST(SolarChartView, KnowsWhatLiesUnderAPoint) {
    SolarChartView view{{everyMonth(10), everyMonth(7.5), everyMonth(11), everyMonth(2)}};
    view.solarData.precip[0] = 12;
    EXPECT_EQ(view.hitTest({91, 150}, kSize), (Hit{1, Condition::kSunny}));
    EXPECT_EQ(view.hitTest({91, 120}, kSize), (Hit{1, Condition::kPartlyCloudy}));
    EXPECT_EQ(view.hitTest({91, 40}, kSize), (Hit{1, Condition::kOvercast}));
    EXPECT_EQ(view.hitTest({91, 167}, kSize), (Hit{1, Condition::kPrecipitation}));
    EXPECT_EQ(view.hitTest({53.75, 115}, kSize), (Hit{0, Condition::kPrecipitation}));
    EXPECT_EQ(view.hitTest({91, 10}, kSize), (Hit{1, std::nullopt}));
    EXPECT_EQ(view.hitTest({36, 185}, kSize), (Hit{0, std::nullopt}));
    EXPECT_EQ(view.hitTest({20, 100}, kSize), std::nullopt);

    EXPECT_EQ(view.describe({1, Condition::kPartlyCloudy}),
              "Febbraio · Parzialmente nuvoloso: 7,5 giorni");
    EXPECT_EQ(view.describe({0, std::nullopt}),
              "Gennaio\nSole: 10 giorni\nParzialmente nuvoloso: 7,5 giorni\nCoperto: 11 giorni\n"
              "Pioggia: 12 giorni");
    EXPECT_EQ(SolarChartView{}.describe({0, Condition::kSunny}), "Gennaio · Sole: nessun dato");
}

TEST(SolarChartView, SumsItselfUpInASentence) {
    SolarChartView view{{everyMonth(10), everyMonth(5), everyMonth(5), everyMonth(8)}};
    view.solarData.sunny[6] = 20.46;
    view.solarData.precip[10] = 9;
    EXPECT_EQ(view.summary(),
              "Il mese con più giorni di sole è Luglio (20,5 giorni), quello con più giorni di "
              "pioggia Novembre (9 giorni).");
    EXPECT_EQ(SolarChartView{}.summary(), "Nessun dato sulle condizioni del cielo.");
}

}  // namespace
}  // namespace kalvo::charts
