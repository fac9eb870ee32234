#include "app/detail_heights.h"

#include <gtest/gtest.h>

namespace kalvo::app {
namespace {

TEST(DetailHeights, KeepTheMapAndAWholeChartElseBecomeOnePage) {
    constexpr int kFixed = 105;  // 60 + 1 + 44
    struct Case {
        int column;
        int natural;
        DetailHeights expected;
    };
    for (const Case& column : {
             // Details that need less than half leave the rest to the map.
             Case{900, 250, {545, 250, false}},
             Case{1105, 800, {500, 500, false}},  // (1105 - 105) / 2
             Case{663, 800, {280, 278, false}},   // less than half of 558: the map needs 280
             Case{661, 800, {280, 276, false}},   // 105 + 280 + 276
             Case{660, 800, {280, 800, true}},
             Case{635, 250, {280, 250, false}},  // 105 + 280 + 250
             Case{634, 250, {280, 250, true}},
             Case{0, 800, {280, 800, true}},
         }) {
        const DetailHeights heights = divideDetailHeights(column.column, kFixed, column.natural);
        EXPECT_EQ(heights.map, column.expected.map) << column.column;
        EXPECT_EQ(heights.details, column.expected.details) << column.column;
        EXPECT_EQ(heights.isOnePage, column.expected.isOnePage) << column.column;
    }
}

}  // namespace
}  // namespace kalvo::app
