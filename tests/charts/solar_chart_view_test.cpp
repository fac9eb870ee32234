#include "charts/solar_chart_view.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include "tests/support/recording_canvas.h"

namespace kalvo::charts {
namespace {

using testing::ElementsAre;
using tests::drawn;
using Condition = SolarChartView::Condition;
using Hit = SolarChartView::Hit;

// 500 x 200: bars of 25 points, 5 points a day, the baseline at 175.
constexpr graphics::Size kSize{500, 200};
std::vector<double> everyMonth(double days) { return std::vector<double>(12, days); }

/// Keeps the bars as numbers, of which a text would round the sums.
struct BarCanvas final : tests::RecordingCanvas {
    std::vector<graphics::Rect> bars;
    void fillRect(const graphics::Rect& rect, const graphics::Color& /*color*/) override {
        bars.push_back(rect);
    }
};

TEST(SolarChartView, DrawsAxisThenMonthsThenPrecipitation) {
    SolarChartView view{{everyMonth(10), everyMonth(10), everyMonth(11), everyMonth(0)}};
    view.solarData.sunny[11] = 31;
    view.solarData.partlyCloudy[11] = 0;
    view.solarData.overcast[11] = 0;
    view.solarData.precip[1] = 7.5;
    const std::vector<std::string> commands = drawn(view, kSize);
    ASSERT_EQ(commands.size(), 3u + 7 * 2 + 12 * 4 + 3);
    const auto part = [&](std::ptrdiff_t from, std::ptrdiff_t count) {
        return std::vector(commands.begin() + from, commands.begin() + from + count);
    };
    EXPECT_THAT(part(0, 5),
                ElementsAre("round #ffffff 0,0 500x200 6", "save", "clip 0,0 500x200 6",
                            "line gray@0.2 1 open 35,175 485,175", "text 0g gray 7 23,175"));
    EXPECT_THAT(part(15, 7),
                ElementsAre("line gray@0.2 1 open 35,25 485,25", "text 30g gray 7 23,25",
                            "fill #ffe600 41.25,125 25x50", "fill #d6d69c 41.25,75 25x50",
                            "fill #666666 41.25,20 25x55", "text Gen gray 8 53.75,185",
                            "fill #ffe600 78.75,125 25x50"));
    EXPECT_THAT(part(61, 7),
                ElementsAre("fill #ffe600 453.75,20 25x155", "fill #d6d69c 453.75,20 25x0",
                            "fill #666666 453.75,20 25x0", "text Dic gray 8 466.25,185",
                            "line #2f80ed 2 open 53.75,175 91.25,137.5 128.75,175 166.25,175 "
                            "203.75,175 241.25,175 278.75,175 316.25,175 353.75,175 391.25,175 "
                            "428.75,175 466.25,175",
                            "restore", "frame gray@0.2 1 0,0 500x200 6"));
}

TEST(SolarChartView, LeavesOutWhatIsMissing) {
    const double nan = std::nan("");
    const SolarChartView view{{{1}, {2, nan, 3}, {}, {5, nan, 6}}};
    EXPECT_THAT(drawn(view, kSize, "fill"),
                ElementsAre("fill #ffe600 41.25,170 25x5", "fill #d6d69c 41.25,160 25x10",
                            "fill #d6d69c 116.25,160 25x15"));
    EXPECT_EQ(drawn(view, kSize, "line").back(), "line #2f80ed 2 open 53.75,150 128.75,145");
    EXPECT_EQ(drawn(SolarChartView{}, kSize, "line").back(), "line #2f80ed 2 open");
}

TEST(SolarChartView, KeepsTheBaselineUnderEndlessBars) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double endless : {1e6, 1e17, 1e300, 1e308, infinity}) {
        const SolarChartView view{{{endless, -endless}, {-endless, 10}, {7, 1}, {endless}}};
        BarCanvas canvas;
        view.draw(canvas, kSize);
        const std::vector<graphics::Rect>& bars = canvas.bars;
        ASSERT_EQ(bars.size(), 6u);
        // Up from the baseline out of the view; down from it; out of sight on top of that.
        EXPECT_NEAR(bars[0].y + bars[0].height, 175, 1e-3) << endless;
        EXPECT_LT(bars[0].y, -1000) << endless;
        EXPECT_NEAR(bars[3].y + bars[3].height, 175, 1e-3) << endless;
        EXPECT_GT(bars[3].y, 1000) << endless;
        EXPECT_GT(bars[4].y, 1000) << endless;
        for (const graphics::Rect& bar : bars) {
            EXPECT_TRUE(std::isfinite(bar.y) && std::isfinite(bar.height)) << endless;
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
    for (const auto& [days, text] : {std::pair{1.0, "1 giorno"},
                                     {-0.01, "0 giorni"},
                                     {std::nan(""), "nessun dato"},
                                     {1e300, "1e+300 giorni"}}) {
        view.solarData.sunny[0] = days;
        EXPECT_EQ(view.describe({0, Condition::kSunny}), std::string("Gennaio · Sole: ") + text);
    }
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
