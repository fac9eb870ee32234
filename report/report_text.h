#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "report/report.h"

/// Italian words and figures of the printed page. No line breaks between a number and its unit:
/// they are joined by no-break spaces.
namespace kalvo::report {

/// Returns a whole number with its thousands grouped; from a thousand million on in the form
/// "1,62 × 10²⁰", and "∞" or "–" for what is no finite number.
[[nodiscard]] std::string formatFigure(double value);
/// Returns the power of ten below a large number, as ">10¹⁸".
[[nodiscard]] std::string formatMagnitude(double value);

/// "23 novembre 2026"
[[nodiscard]] std::string formatDate(const Moment& moment);
/// "ore 10:06"
[[nodiscard]] std::string formatTime(const Moment& moment);

/// "38,0176° N, 12,5362° E", or that the coordinates are not known.
[[nodiscard]] std::string formatCoordinates(const Report& report);

/// "Trapani (TP)"
[[nodiscard]] std::string placeName(const Report& report);
/// "Sicilia, Italia · 38,0176° N, 12,5362° E"; of an online place the coordinates alone.
[[nodiscard]] std::string placeDetails(const Report& report);

/// "3 turbine", "1 impianto".
[[nodiscard]] std::string countOfTurbines(const Report& report);
[[nodiscard]] std::string countOfPlants(const Report& report);

/// The name of a direction sector, 0 to 15: "N", "NNE".
[[nodiscard]] std::string_view sectorName(std::size_t sector);

}  // namespace kalvo::report
