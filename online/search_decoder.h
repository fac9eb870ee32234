#pragma once

#include <string_view>
#include <vector>

#include "online/meteoblue_search_result.h"

namespace kalvo::online {

/// Returns the places in an answer of the site's place search, in its order. An answer of another
/// shape gives none; a place without name, coordinates or address fragment is left out, and so is
/// one whose coordinates, in degrees, lie beyond ±90 and ±180: the globe could not show it.
[[nodiscard]] std::vector<MeteoblueSearchResult> decodeSearchResults(std::string_view body);

/// Orders places by their distance from a point, taken on plain degrees: neither the convergence
/// of the meridians nor the date line plays a part. Places at one distance keep their order.
void sortByDistance(std::vector<MeteoblueSearchResult>& places, double lat, double lon);

}  // namespace kalvo::online
