#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Italian words and figures of the charts' tooltips and summaries.
namespace kalvo::charts {

[[nodiscard]] std::string_view monthName(std::size_t month);       // 0 is "Gennaio"
[[nodiscard]] std::string_view directionName(std::size_t sector);  // 0 is "Nord", 4 "Est"

/// "1 giorno", "7,5 giorni": at most one decimal; figures beyond a million shortened (1e+300).
[[nodiscard]] std::string formatDays(double days);
/// "1 ora", "812 ore".
[[nodiscard]] std::string formatHours(double hours);

}  // namespace kalvo::charts
