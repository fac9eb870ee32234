#include <numeric>
#include <string>

#include "engine/calculation_engine.h"
#include "fuzz/fuzzing.h"
#include "online/chart_decoders.h"

using kalvo::engine::CalculationEngine;
using kalvo::fuzz::require;

/// The input is a chart document; the three decoders read whatever they are given, and the figures
/// are worked out from what they make of it.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto json = kalvo::online::JsonDocument::parse(kalvo::fuzz::asText(data, size));
    if (!json) return 0;

    const auto winds = kalvo::online::parseWindSpeedsJSON(*json);
    for (std::size_t month = 0; month < CalculationEngine::months.size(); ++month) {
        const auto found = winds.find(CalculationEngine::months[month]);
        require(found != winds.end() && found->second.size() == 7, "every month has its counts");
        require(std::accumulate(found->second.begin(), found->second.end(), std::int64_t{0}) ==
                    CalculationEngine::daysInMonth[month],
                "counts add up to the month's length");
    }
    static_cast<void>(CalculationEngine::calculateProductionFromDistribution(winds, 1));

    require(kalvo::online::parseWindRoseJSON(*json).size() == 16, "a rose has sixteen sectors");

    if (const auto sky = kalvo::online::parseCloudCoverageJSON(&*json)) {
        require(sky->sunny.size() == 12 && sky->partlyCloudy.size() == 12 &&
                    sky->overcast.size() == 12 && sky->precip.size() == 12,
                "sky conditions have twelve months");
        static_cast<void>(
            CalculationEngine::formatKWh(CalculationEngine::calculateSolarProduction(*sky, 3)));
    }
    return 0;
}
