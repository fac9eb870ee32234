#include "fuzz/fuzzing.h"
#include "online/climate_page.h"

using kalvo::fuzz::require;

/// The input is the climate page of a place.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto charts = kalvo::online::findChartAddresses(kalvo::fuzz::asText(data, size));
    if (!charts) return 0;
    require(charts->windSpeeds.starts_with("https:"), "charts are fetched by https");
    require(charts->windRose.starts_with("https:"), "charts are fetched by https");
    require(!charts->cloudCoverage || charts->cloudCoverage->starts_with("https:"),
            "charts are fetched by https");
    return 0;
}
