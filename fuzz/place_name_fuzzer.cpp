#include "fuzz/fuzzing.h"
#include "online/place_name_decoder.h"
#include "platform/text.h"

/// The input is an answer of the reverse geocoding.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto name = kalvo::online::decodePlaceName(kalvo::fuzz::asText(data, size));
    kalvo::fuzz::require(!name || kalvo::platform::isValidUtf8(*name), "names are UTF-8");
    return 0;
}
