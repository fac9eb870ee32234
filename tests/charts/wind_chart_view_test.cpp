#include "charts/wind_chart_view.h"

#include <cstdint>
#include <limits>

#include <gmock/gmock.h>

#include "tests/support/recording_canvas.h"

namespace kalvo::charts {
namespace {

using testing::ElementsAre;
using tests::drawn;

// 650 x 200: the plot is 600 wide (50 a month, bars of 30) and 155 high (5 a day), its baseline
// at 175.
constexpr graphics::Size kSize{650, 200};
constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

TEST(WindChartView, DrawsAxisThenMonthByMonthTheStrongestClassAtTheBottom) {
    const WindChartView view{{{"Gen", {2, 0, 3, 10, 0, 6, 10}}, {"Dic", {0, 31, 0, 0, 0, 0, 0}}}};
    EXPECT_THAT(
        drawn(view, kSize),
        ElementsAre("round #ffffff 0,0 650x200 6", "save", "clip 0,0 650x200 6",
                    "text 0g gray 8 23,175", "line gray@0.3 1-2-2 open 35,150 635,150",
                    "text 5g gray 8 23,150", "line gray@0.3 1-2-2 open 35,125 635,125",
                    "text 10g gray 8 23,125", "line gray@0.3 1-2-2 open 35,100 635,100",
                    "text 15g gray 8 23,100", "line gray@0.3 1-2-2 open 35,75 635,75",
                    "text 20g gray 8 23,75", "line gray@0.3 1-2-2 open 35,50 635,50",
                    "text 25g gray 8 23,50", "line gray@0.3 1-2-2 open 35,25 635,25",
                    "text 30g gray 8 23,25", "text Gen gray 8 bold 60,187",
                    "fill #ffd600 45,125 30x50", "fill #a4c639 45,95 30x30",
                    "fill #2ed158 45,45 30x50", "fill #a3f7bf 45,30 30x15",
                    "fill #cbd5e1 45,20 30x10", "text Feb gray 8 bold 110,187",
                    "text Mar gray 8 bold 160,187", "text Apr gray 8 bold 210,187",
                    "text Mag gray 8 bold 260,187", "text Giu gray 8 bold 310,187",
                    "text Lug gray 8 bold 360,187", "text Ago gray 8 bold 410,187",
                    "text Set gray 8 bold 460,187", "text Ott gray 8 bold 510,187",
                    "text Nov gray 8 bold 560,187", "text Dic gray 8 bold 610,187",
                    "fill #d1f7ec 595,20 30x155", "restore", "frame gray@0.2 1 0,0 650x200 6"));
}

TEST(WindChartView, KeepsNarrowBarsSixPointsWideOnTheirCenter) {
    // 110 wide: 60 for the plot, 5 a month, of which six tenths would be 3.
    EXPECT_THAT(drawn(WindChartView{{{"Mar", {0, 0, 0, 0, 0, 0, 31}}}}, {110, 200}, "fill"),
                ElementsAre("fill #ffd600 44.5,20 6x155"));
}

TEST(WindChartView, ReadsFaultyDataAsFarAsTheyGo) {
    const WindChartView view{{{"Gen", {0, 4}},
                              {"Feb", {0, 0, 0, 0, 0, 0, 0, 9}},
                              {"Mar", {-5, 3, 0, 0, 0, 0, 0}},
                              {"Apr", {0, 0, 0, 0, 0, 0, 62}},
                              {"gen", {31, 0, 0, 0, 0, 0, 0}},
                              {"", {31, 0, 0, 0, 0, 0, 0}}}};
    EXPECT_THAT(drawn(view, kSize, "fill"),
                ElementsAre("fill #d1f7ec 45,155 30x20", "fill #d1f7ec 145,160 30x15",
                            "fill #ffd600 195,-135 30x310"));
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
