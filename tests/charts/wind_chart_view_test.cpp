#include "charts/wind_chart_view.h"

#include <cstdint>
#include <limits>

#include "engine/calculation_engine.h"
#include "engine/wind_range.h"
#include "tests/charts/drawing.h"

namespace kalvo::charts {
namespace {

using engine::WindRange;
using platform::kGray;
using testing::ElementsAre;

// 650 x 200: the plot is 600 wide (50 a month, bars of 30) and 155 high (5 a day), its baseline
// at 175.
constexpr platform::Size kSize{650, 200};
constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

TEST(WindChartView, DrawsAxisAndMonthsWithoutData) {
    const auto canvas = drawn(WindChartView{}, kSize);
    expectFrame(canvas, kSize);
    const platform::Stroke dashed{kGray.withOpacity(0.3), 1, {2, 2}};
    EXPECT_THAT(
        canvas.all<platform::draw::StrokePath>(),
        ElementsAre(isLine({35, 150}, {635, 150}, dashed), isLine({35, 125}, {635, 125}, dashed),
                    isLine({35, 100}, {635, 100}, dashed), isLine({35, 75}, {635, 75}, dashed),
                    isLine({35, 50}, {635, 50}, dashed), isLine({35, 25}, {635, 25}, dashed)));
    const platform::TextStyle plain{8, false, kGray};
    const platform::TextStyle bold{8, true, kGray};
    EXPECT_THAT(canvas.all<platform::draw::Text>(),
                ElementsAre(isText("0g", {23, 175}, plain), isText("5g", {23, 150}, plain),
                            isText("10g", {23, 125}, plain), isText("15g", {23, 100}, plain),
                            isText("20g", {23, 75}, plain), isText("25g", {23, 50}, plain),
                            isText("30g", {23, 25}, plain), isText("Gen", {60, 187}, bold),
                            isText("Feb", {110, 187}, bold), isText("Mar", {160, 187}, bold),
                            isText("Apr", {210, 187}, bold), isText("Mag", {260, 187}, bold),
                            isText("Giu", {310, 187}, bold), isText("Lug", {360, 187}, bold),
                            isText("Ago", {410, 187}, bold), isText("Set", {460, 187}, bold),
                            isText("Ott", {510, 187}, bold), isText("Nov", {560, 187}, bold),
                            isText("Dic", {610, 187}, bold)));
    EXPECT_TRUE(canvas.all<platform::draw::FillRect>().empty());
}

TEST(WindChartView, StacksTheStrongestClassAtTheBottom) {
    const WindChartView view{{{"Gen", {2, 0, 3, 10, 0, 6, 10}}, {"Dic", {0, 31, 0, 0, 0, 0, 0}}}};
    EXPECT_THAT(drawn(view, kSize).all<platform::draw::FillRect>(),
                ElementsAre(isFill({45, 125, 30, 50}, WindRange::colors[6]),
                            isFill({45, 95, 30, 30}, WindRange::colors[5]),
                            isFill({45, 45, 30, 50}, WindRange::colors[3]),
                            isFill({45, 30, 30, 15}, WindRange::colors[2]),
                            isFill({45, 20, 30, 10}, WindRange::colors[0]),
                            isFill({595, 20, 30, 155}, WindRange::colors[1])));
}

TEST(WindChartView, DrawsMonthByMonthOverTheAxis) {
    const WindChartView view{{{"Gen", {1, 0, 0, 0, 0, 0, 0}}, {"Feb", {1, 0, 0, 0, 0, 0, 0}}}};
    const auto canvas = drawn(view, kSize);
    std::vector<std::string> order;
    for (const platform::draw::Command& command : canvas.commands) {
        if (const auto* text = std::get_if<platform::draw::Text>(&command)) {
            order.push_back(text->text);
        } else if (std::holds_alternative<platform::draw::FillRect>(command)) {
            order.emplace_back("bar");
        } else if (std::holds_alternative<platform::draw::StrokePath>(command)) {
            order.emplace_back("line");
        }
    }
    order.resize(18);
    EXPECT_THAT(order,
                ElementsAre("0g", "line", "5g", "line", "10g", "line", "15g", "line", "20g", "line",
                            "25g", "line", "30g", "Gen", "bar", "Feb", "bar", "Mar"));
}

TEST(WindChartView, KeepsNarrowBarsSixPointsWideOnTheirCentre) {
    // 110 wide: 60 for the plot, 5 a month, of which six tenths would be 3.
    const WindChartView view{{{"Mar", {0, 0, 0, 0, 0, 0, 31}}}};
    EXPECT_THAT(drawn(view, {110, 200}).all<platform::draw::FillRect>(),
                ElementsAre(isFill({44.5, 20, 6, 155}, WindRange::colors[6])));
}

TEST(WindChartView, ReadsFaultyDataAsFarAsTheyGo) {
    const WindChartView view{{{"Gen", {0, 4}},
                              {"Feb", {0, 0, 0, 0, 0, 0, 0, 9}},
                              {"Mar", {-5, 3, 0, 0, 0, 0, 0}},
                              {"Apr", {0, 0, 0, 0, 0, 0, 62}},
                              {"gen", {31, 0, 0, 0, 0, 0, 0}},
                              {"", {31, 0, 0, 0, 0, 0, 0}}}};
    EXPECT_THAT(drawn(view, kSize).all<platform::draw::FillRect>(),
                ElementsAre(isFill({45, 155, 30, 20}, WindRange::colors[1]),
                            isFill({145, 160, 30, 15}, WindRange::colors[1]),
                            isFill({195, -135, 30, 310}, WindRange::colors[6])));
}

TEST(WindChartView, KeepsTheBaselineUnderEndlessBars) {
    const WindChartView view{{{"Gen", {kLargest, 0, 0, 0, 0, kLargest, kLargest}}}};
    const auto bars = drawn(view, kSize).all<platform::draw::FillRect>();
    ASSERT_EQ(bars.size(), 3u);
    EXPECT_NEAR(bars[0].rect.y + bars[0].rect.height, 175, 1e-3);
    EXPECT_LT(bars[0].rect.y, -1e6);
    for (const auto& bar : bars) EXPECT_LE(bar.rect.y + bar.rect.height, 175.001);
}

TEST(WindChartView, KnowsWhatLiesUnderAPoint) {
    const WindChartView view{{{"Gen", {0, 0, 0, 15, 0, 0, 10}}, {"Apr", {0, 0, 0, 0, 0, 0, 1}}}};
    using Hit = WindChartView::Hit;
    EXPECT_EQ(view.hitTest({60, 174}, kSize), (Hit{0, 6}));
    EXPECT_EQ(view.hitTest({46, 124}, kSize), (Hit{0, 3}));
    EXPECT_EQ(view.hitTest({60, 40}, kSize), (Hit{0, std::nullopt}));   // over the bar
    EXPECT_EQ(view.hitTest({40, 170}, kSize), (Hit{0, std::nullopt}));  // beside it
    EXPECT_EQ(view.hitTest({634, 187}, kSize), (Hit{11, std::nullopt}));
    EXPECT_EQ(view.hitTest({30, 100}, kSize), std::nullopt);
    EXPECT_EQ(view.hitTest({640, 100}, kSize), std::nullopt);
    EXPECT_EQ(view.hitTest({20, 10}, {40, 20}), std::nullopt);  // no room for a plot

    EXPECT_EQ(view.describe({0, 3}), "Gennaio · 10-20 km/h: 15 giorni");
    EXPECT_EQ(view.describe({3, std::nullopt}),
              "Aprile: 1 giorno\n< 2 km/h: 0 giorni\n2-5 km/h: 0 giorni\n5-10 km/h: 0 giorni\n"
              "10-20 km/h: 0 giorni\n20-30 km/h: 0 giorni\n30-40 km/h: 0 giorni\n"
              "40-50 km/h: 1 giorno");
}

TEST(WindChartView, SumsItselfUpInASentence) {
    WindChartView view{{{"Feb", {0, 0, 0, 0, 1, 2, 3}}}};
    EXPECT_EQ(view.summary(),
              "Giorni al mese con vento da 20 km/h in su: il massimo è a Febbraio (6 giorni), "
              "il minimo a Gennaio (0 giorni).");
    EXPECT_EQ(WindChartView{}.summary(), "Nessun mese ha giorni con vento da 20 km/h in su.");
    view.distribution["Mar"] = {0, 0, 0, 0, kLargest, kLargest, kLargest};
    EXPECT_THAT(view.summary(), testing::HasSubstr("Marzo (2,77e+19 giorni)"));
}

}  // namespace
}  // namespace kalvo::charts
