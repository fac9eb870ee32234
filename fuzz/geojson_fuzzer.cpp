#include <string>

#include "fuzz/fuzzing.h"
#include "geojson/geojson.h"

using kalvo::fuzz::require;

/// The input is an outline file. What could be decoded must survive being written and read again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto map = kalvo::geojson::decodeGeoJSON(std::string(kalvo::fuzz::asText(data, size)));
    if (!map) return 0;
    const auto again = kalvo::geojson::decodeGeoJSON(kalvo::geojson::encodeGeoJSON(*map));
    require(again.has_value(), "what was encoded can be decoded");
    require(*again == *map, "encoding and decoding keep the map");
    return 0;
}
