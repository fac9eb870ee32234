#include "charts/class_counts.h"

#include <algorithm>

namespace kalvo::charts {

SevenCounts sevenCounts(const engine::ClassCounts& counts) {
    SevenCounts seven{};
    std::copy_n(counts.begin(), std::min(counts.size(), seven.size()), seven.begin());
    return seven;
}

SevenCounts countsOfMonth(const engine::WindDistribution& distribution, std::string_view month) {
    const auto found = distribution.find(month);
    return found == distribution.end() ? SevenCounts{} : sevenCounts(found->second);
}

}  // namespace kalvo::charts
