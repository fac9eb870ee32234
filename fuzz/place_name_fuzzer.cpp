#include "base/text.h"
#include "fuzz/fuzzing.h"
#include "online/place_name_decoder.h"

/// The input is an answer of the reverse geocoding.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto name = kalvo::online::decodePlaceName(kalvo::fuzz::asText(data, size));
    kalvo::fuzz::require(!name || kalvo::base::isValidUtf8(*name), "names are UTF-8");
    return 0;
}
