#include "app/detail_heights.h"

#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace kalvo::app {
namespace {

TEST(DetailHeightsTest, KeepTheMapAndAWholeChartElseBecomeOnePage) {
    constexpr int kFixed = 105;  // 60 + 1 + 44
    for (const auto& [column, natural, map, details, isOnePage] :
         std::vector<std::tuple<int, int, int, int, bool>>{
             // Details that need less than half leave the rest to the map.
             {900, 250, 545, 250, false},
             {1105, 800, 500, 500, false},  // (1105 - 105) / 2
             {663, 800, 280, 278, false},   // less than half of 558: the map needs 280
             {661, 800, 280, 276, false},   // 105 + 280 + 276
             {660, 800, 280, 800, true},
             {635, 250, 280, 250, false},  // 105 + 280 + 250
             {634, 250, 280, 250, true},
             {0, 800, 280, 800, true},
         }) {
        const DetailHeights heights = divideDetailHeights(column, kFixed, natural);
        EXPECT_EQ(std::tuple(heights.map, heights.details, heights.isOnePage),
                  std::tuple(map, details, isOnePage))
            << column;
    }
}

}  // namespace
}  // namespace kalvo::app
