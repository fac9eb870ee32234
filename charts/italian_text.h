#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Italian words and figures of the charts' tooltips and summaries.
namespace kalvo::charts {

[[nodiscard]] std::string_view monthName(std::size_t month);       // 0 is "Gennaio"
[[nodiscard]] std::string_view directionName(std::size_t sector);  // 0 is "Nord", 4 "Est"

/// Writes "1 giorno", "7,5 giorni", "1.683 giorni": at most one decimal, thousands grouped; figures
/// from a million on are shortened (1e+300).
[[nodiscard]] std::string formatDays(double days);
/// Writes "1 ora", "1.683 ore", as for days.
[[nodiscard]] std::string formatHours(double hours);

}  // namespace kalvo::charts
