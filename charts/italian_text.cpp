#include "charts/italian_text.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>

#include "base/numbers.h"

namespace kalvo::charts {

namespace {

/// Puts a point between the thousands of a figure with a decimal comma or none.
void groupThousands(std::string& text) {
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    for (std::size_t end = std::min(text.find(','), text.size()); end > first + 3; end -= 3) {
        text.insert(end - 3, 1, '.');
    }
}

std::string figure(double value) {
    constexpr double kLongest = 1e6;
    if (!std::isfinite(value)) return "?";
    if (std::abs(value) >= kLongest) {
        std::string text = fmt::format("{:.3g}", value);
        std::replace(text.begin(), text.end(), '.', ',');
        return text;
    }
    std::string text = base::italianDecimal(value, 1);
    if (text.ends_with(",0")) text.resize(text.size() - 2);
    if (text == "-0") return "0";
    groupThousands(text);
    return text;
}

std::string quantity(double value, std::string_view one, std::string_view many) {
    const std::string text = figure(value);
    return fmt::format("{} {}", text, text == "1" ? one : many);
}

}  // namespace

std::string_view monthName(std::size_t month) {
    static constexpr std::array<std::string_view, 12> kNames{
        "Gennaio", "Febbraio", "Marzo",     "Aprile",  "Maggio",   "Giugno",
        "Luglio",  "Agosto",   "Settembre", "Ottobre", "Novembre", "Dicembre"};
    return kNames.at(month);
}

std::string_view directionName(std::size_t sector) {
    static constexpr std::array<std::string_view, 16> kNames{
        "Nord",  "Nord-nord-est",    "Nord-est",   "Est-nord-est",
        "Est",   "Est-sud-est",      "Sud-est",    "Sud-sud-est",
        "Sud",   "Sud-sud-ovest",    "Sud-ovest",  "Ovest-sud-ovest",
        "Ovest", "Ovest-nord-ovest", "Nord-ovest", "Nord-nord-ovest"};
    return kNames.at(sector);
}

std::string formatDays(double days) { return quantity(days, "giorno", "giorni"); }
std::string formatHours(double hours) { return quantity(hours, "ora", "ore"); }

}  // namespace kalvo::charts
