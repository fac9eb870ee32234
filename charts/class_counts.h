#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "engine/climate_data.h"
#include "engine/wind_range.h"

namespace kalvo::charts {

using SevenCounts = std::array<std::int64_t, engine::WindRange::kCount>;

/// A list from the data as exactly seven counts: classes that a short list lacks are 0, entries
/// beyond the seventh are left out.
[[nodiscard]] SevenCounts sevenCounts(const engine::ClassCounts& counts);

/// The counts of a month; seven zeros for one that is missing.
[[nodiscard]] SevenCounts countsOfMonth(const engine::WindDistribution& distribution,
                                        std::string_view month);

/// The sum of counts as a double: exact up to 2^53, and without overflow beyond.
template <class Counts>
[[nodiscard]] double totalOf(const Counts& counts) {
    double total = 0;
    for (const std::int64_t count : counts) total += static_cast<double>(count);
    return total;
}

}  // namespace kalvo::charts
