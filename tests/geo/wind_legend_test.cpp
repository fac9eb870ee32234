#include "geo/wind_legend.h"

#include <gmock/gmock.h>

#include "tests/support/recording_canvas.h"

namespace kalvo::geo {
namespace {

using graphics::Size;
using testing::ElementsAre;

std::vector<std::string> legend(Size view, const std::string& kind) {
    tests::RecordingCanvas canvas;
    drawWindLegend(canvas, view);
    return canvas.ofKind(kind);
}

TEST(WindLegend, StandsAtTheBottomLeftAndShrinksInANarrowMap) {
    EXPECT_EQ(windLegendCard({400, 300}), (graphics::Rect{12, 227, 224, 61}));
    EXPECT_EQ(windLegendCard({399, 300}), (graphics::Rect{8, 217, 120, 75}));
    EXPECT_THAT(
        legend({400, 300}, "words"),
        ElementsAre("words Vento medio annuo a 10 m #17211c 11 bold left 24,246",
                    "words km/h #55625b 11 right 224,246", "words ≤ 8 #55625b 11 left 24,275.5",
                    "words 11 #55625b 11 center 74,275.5", "words 14 #55625b 11 center 124,275.5",
                    "words 17 #55625b 11 center 174,275.5",
                    "words ≥ 20 #55625b 11 right 224,275.5"));
    EXPECT_THAT(
        legend({399, 300}, "words"),
        ElementsAre("words Vento medio annuo #17211c 11 bold left 16,236",
                    "words a 10 m #17211c 11 bold left 16,250",
                    "words km/h #55625b 11 right 120,250", "words ≤ 8 #55625b 11 left 16,279.5",
                    "words 14 #55625b 11 center 68,279.5",
                    "words ≥ 20 #55625b 11 right 120,279.5"));
}

TEST(WindLegend, RampRunsFromTheCalmestToTheStrongestWind) {
    const auto slices = legend({400, 300}, "fill");
    ASSERT_EQ(slices.size(), 128u);
    // Each reaches the right end: no seam shows. The first and last are half a slice from the ends.
    EXPECT_EQ(slices.front(), "fill #b3dcfe 24,254 200x8");
    EXPECT_EQ(slices.back(), "fill #ff200f 222.438,254 1.5625x8");
}

TEST(WindLegend, MarksAYieldOnTheRampAndStaysOffItsEnds) {
    const auto marked = [](double kwh) {
        tests::RecordingCanvas canvas;
        drawWindLegendMark(canvas, {400, 300}, kwh);
        return canvas.commands;
    };
    // 4350 is the middle of 2800 to 5900; the ramp takes 24 to 224.
    EXPECT_THAT(marked(4350), ElementsAre("round #ffffff 121.75,250.75 4.5x14.5 2.25",
                                          "round #17211c 123,252 2x12 1"));
    EXPECT_EQ(marked(0).back(), "round #17211c 27,252 2x12 1");
    EXPECT_EQ(marked(1e9).back(), "round #17211c 219,252 2x12 1");
}

}  // namespace
}  // namespace kalvo::geo
