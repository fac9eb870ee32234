#pragma once

#include <string>

namespace kalvo::geo {

/// A place in degrees as Italian text for a screen reader: "41,9° nord, 12,5° est".
[[nodiscard]] std::string coordinateText(double lat, double lon);

}  // namespace kalvo::geo
