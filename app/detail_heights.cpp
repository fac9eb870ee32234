#include "app/detail_heights.h"

#include <algorithm>

namespace kalvo::app {

DetailHeights divideDetailHeights(int column, int fixed, int natural) {
    constexpr int kLeastMap = 280;
    constexpr int kTallestChart = 276;  // with its title and the space around both
    const int free = column - fixed;
    const int least = std::min(natural, kTallestChart);
    if (free < kLeastMap + least) {
        return {.map = kLeastMap, .details = natural, .isOnePage = true};
    }
    const int fair = std::min(free / 2, free - kLeastMap);
    const int details = std::min(natural, std::max(least, fair));
    return {.map = free - details, .details = details, .isOnePage = false};
}

}  // namespace kalvo::app
