#include <algorithm>

#include "fuzz/fuzzing.h"
#include "online/search_decoder.h"

using kalvo::fuzz::require;

/// The input is an answer of the place search.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto places = kalvo::online::decodeSearchResults(kalvo::fuzz::asText(data, size));
    auto sorted = places;
    kalvo::online::sortByDistance(sorted, 45.0, 9.0);
    require(std::is_permutation(sorted.begin(), sorted.end(), places.begin(), places.end()),
            "sorting by distance keeps every place");
    return 0;
}
