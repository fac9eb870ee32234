#include "geo/coordinate_text.h"

#include <cmath>
#include <string_view>

#include <fmt/format.h>

#include "base/numbers.h"

namespace kalvo::geo {

namespace {

std::string degreesText(double degrees, std::string_view positive, std::string_view negative) {
    return fmt::format("{}° {}", base::italianDecimal(std::abs(degrees), 1),
                       degrees < 0 ? negative : positive);
}

}  // namespace

std::string coordinateText(engine::LatLon place) {
    return fmt::format("{}, {}", degreesText(place.lat, "nord", "sud"),
                       degreesText(place.lon, "est", "ovest"));
}

}  // namespace kalvo::geo
