#pragma once

#include <vector>

#include "engine/lat_lon.h"

namespace kalvo::engine {

/// The outline of a piece of a country, in the order of its file.
using CountryRing = std::vector<LatLon>;

}  // namespace kalvo::engine
