#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/climate_data.h"
#include "engine/wind_range.h"

namespace kalvo::charts {

using SpeedHistogram = std::array<std::int64_t, engine::WindRange::kCount>;

/// Returns a list from the data as exactly seven counts: classes that a short list lacks are 0,
/// entries beyond the seventh are left out.
[[nodiscard]] SpeedHistogram speedHistogram(const engine::ClassCounts& counts);

/// Returns the counts of a month; seven zeros for one that is missing.
[[nodiscard]] SpeedHistogram countsOfMonth(const engine::WindDistribution& distribution,
                                           std::string_view month);

/// Tells in words a class of counts, as in "Gennaio · 10-20 km/h: 9 giorni", or without a class the
/// total and every class on a line of its own.
[[nodiscard]] std::string describeCounts(std::string_view what,
                                         const SpeedHistogram& counts,
                                         std::optional<std::size_t> windClass,
                                         std::string (*inUnit)(double));

/// The sum of counts as a double: exact up to 2^53, and without overflow beyond.
template <class Counts>
[[nodiscard]] double totalOf(const Counts& counts) {
    double total = 0;
    for (const std::int64_t count : counts) total += static_cast<double>(count);
    return total;
}

}  // namespace kalvo::charts
