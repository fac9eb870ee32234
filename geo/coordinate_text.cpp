#include "geo/coordinate_text.h"

#include <cmath>
#include <string_view>

#include <fmt/format.h>

namespace kalvo::geo {

namespace {

std::string degreesText(double degrees, std::string_view positive, std::string_view negative) {
    std::string number = fmt::format("{:.1f}", std::abs(degrees));
    if (const auto point = number.find('.'); point != std::string::npos) number[point] = ',';
    return fmt::format("{}° {}", number, degrees < 0 ? negative : positive);
}

}  // namespace

std::string coordinateText(engine::LatLon place) {
    return fmt::format("{}, {}", degreesText(place.lat, "nord", "sud"),
                       degreesText(place.lon, "est", "ovest"));
}

}  // namespace kalvo::geo
