#include "report/report_text.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>

#include "base/numbers.h"
#include "engine/calculation_engine.h"

namespace kalvo::report {

namespace {

constexpr std::string_view kSpace = "\u00a0";

std::string withComma(std::string text) {
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

std::string superscript(int number) {
    static constexpr std::array<std::string_view, 10> kDigits{"⁰", "¹", "²", "³", "⁴",
                                                              "⁵", "⁶", "⁷", "⁸", "⁹"};
    std::string text;
    for (const char digit : std::to_string(number)) {
        text += kDigits.at(static_cast<std::size_t>(digit - '0'));
    }
    return text;
}

std::string degrees(double value, std::string_view positive, std::string_view negative) {
    return fmt::format("{}°{}{}", base::italianDecimal(std::abs(value), 4), kSpace,
                       value < 0 ? negative : positive);
}

std::string counted(std::int64_t count, std::string_view one, std::string_view many) {
    return fmt::format("{}{}{}", formatFigure(static_cast<double>(count)), kSpace,
                       count == 1 ? one : many);
}

}  // namespace

std::string formatFigure(double value) {
    constexpr double kLongest = 1e9;
    if (std::isnan(value)) return "–";
    if (std::isinf(value)) return value < 0 ? "-∞" : "∞";
    if (std::abs(std::nearbyint(value)) < kLongest) {
        return engine::CalculationEngine::formatKWh(value);
    }
    const std::string text = fmt::format("{:.2e}", value);
    const std::size_t exponent = text.find('e');
    return fmt::format("{0}{1}×{1}10{2}", withComma(text.substr(0, exponent)), kSpace,
                       superscript(std::stoi(text.substr(exponent + 1))));
}

std::string formatMagnitude(double value) {
    if (!std::isfinite(value) || std::abs(value) < 1) return formatFigure(value);
    return fmt::format("{}10{}", value < 0 ? "<-" : ">",
                       superscript(static_cast<int>(std::floor(std::log10(std::abs(value))))));
}

std::string formatDate(const Moment& moment) {
    static constexpr std::array<std::string_view, 12> kMonths{
        "gennaio", "febbraio", "marzo",     "aprile",  "maggio",   "giugno",
        "luglio",  "agosto",   "settembre", "ottobre", "novembre", "dicembre"};
    return fmt::format("{0}{3}{1}{3}{2}", moment.day,
                       kMonths.at(static_cast<std::size_t>(moment.month - 1)), moment.year, kSpace);
}

std::string formatTime(const Moment& moment) {
    return fmt::format("ore{}{}:{:02}", kSpace, moment.hour, moment.minute);
}

std::string formatCoordinates(const Report& report) {
    if (!report.latitude || !report.longitude) return "Coordinate non note";
    return degrees(*report.latitude, "N", "S") + ", " + degrees(*report.longitude, "E", "O");
}

std::string placeName(const Report& report) {
    if (report.province.empty()) return report.city;
    return fmt::format("{} ({})", report.city, report.province);
}

std::string placeDetails(const Report& report) {
    const std::string coordinates = formatCoordinates(report);
    if (report.country.empty()) return coordinates;
    // The small states are regions of their own: "San Marino" is said once.
    const bool isTheCountry =
        report.region.empty() || report.country.find(report.region) != std::string::npos;
    return fmt::format("{}{} · {}", isTheCountry ? "" : report.region + ", ", report.country,
                       coordinates);
}

std::string countOfTurbines(const Report& report) {
    return counted(report.quantity, "turbina", "turbine");
}

std::string countOfPlants(const Report& report) {
    return counted(report.quantity, "impianto", "impianti");
}

std::string_view sectorName(std::size_t sector) {
    static constexpr std::array<std::string_view, 16> kNames{"N",  "NNE", "NE", "ENE", "E",  "ESE",
                                                             "SE", "SSE", "S",  "SSW", "SW", "WSW",
                                                             "W",  "WNW", "NW", "NNW"};
    return kNames.at(sector);
}

}  // namespace kalvo::report
