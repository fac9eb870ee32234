#pragma once

#include <string>

#include "engine/country_ring.h"

namespace kalvo::geo {

/// Writes a place as Italian text for a screen reader: "41,9° nord, 12,5° est".
[[nodiscard]] std::string coordinateText(engine::LatLon place);

}  // namespace kalvo::geo
