#include "charts/speed_histogram.h"

#include <algorithm>

#include <fmt/format.h>

namespace kalvo::charts {

SpeedHistogram speedHistogram(const engine::ClassCounts& counts) {
    SpeedHistogram seven{};
    std::copy_n(counts.begin(), std::min(counts.size(), seven.size()), seven.begin());
    return seven;
}

SpeedHistogram countsOfMonth(const engine::WindDistribution& distribution, std::string_view month) {
    const auto found = distribution.find(month);
    return found == distribution.end() ? SpeedHistogram{} : speedHistogram(found->second);
}

std::string describeCounts(std::string_view what,
                           const SpeedHistogram& counts,
                           std::optional<std::size_t> windClass,
                           std::string (*inUnit)(double)) {
    const auto line = [&](std::size_t index) {
        return fmt::format("{}: {}", engine::WindRange::labels[index],
                           inUnit(static_cast<double>(counts[index])));
    };
    if (windClass) return fmt::format("{} · {}", what, line(*windClass));
    std::string text = fmt::format("{}: {}", what, inUnit(totalOf(counts)));
    for (std::size_t i = 0; i < counts.size(); ++i) (text += '\n') += line(i);
    return text;
}

}  // namespace kalvo::charts
