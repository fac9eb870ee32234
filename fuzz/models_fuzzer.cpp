#include <cstring>
#include <numeric>

#include "engine/calculation_engine.h"
#include "fuzz/fuzzing.h"

using kalvo::engine::CalculationEngine;
using kalvo::fuzz::require;

/// The input is a yield and a latitude as the bytes of two doubles, then the place's texts: a
/// catalogue may hold any number, and a place found on line any coordinates.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    double kwh = 0;
    double lat = 0;
    if (size < sizeof kwh + sizeof lat) return 0;
    std::memcpy(&kwh, data, sizeof kwh);
    std::memcpy(&lat, data + sizeof kwh, sizeof lat);
    const std::string_view text = kalvo::fuzz::asText(data, size).substr(sizeof kwh + sizeof lat);

    const auto winds = CalculationEngine::calculateMonthlyWindDistribution(
        {.kwh = kwh, .lat = lat, .lon = {}, .region = text});
    for (std::size_t month = 0; month < CalculationEngine::months.size(); ++month) {
        const auto& counts = winds.at(std::string(CalculationEngine::months[month]));
        require(std::accumulate(counts.begin(), counts.end(), std::int64_t{0}) ==
                    CalculationEngine::daysInMonth[month],
                "counts add up to the month's length");
    }
    static_cast<void>(CalculationEngine::formatKWh(
        CalculationEngine::calculateProductionFromDistribution(winds, 2)));
    static_cast<void>(CalculationEngine::formatKWh(kwh));

    const auto rose = CalculationEngine::calculateWindRoseData(
        {.cityLabel = text, .kwh = kwh, .lat = lat, .lon = {}, .region = text});
    require(rose.size() == 16, "a rose has sixteen sectors");

    const auto color = CalculationEngine::getWindColor(kwh);
    for (const double component : {color.red, color.green, color.blue, color.opacity}) {
        require(component >= 0 && component <= 1, "components are from 0 to 1");
    }
    return 0;
}
